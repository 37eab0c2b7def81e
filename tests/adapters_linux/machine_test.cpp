#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <optional>
#include <string>
#include <thread>

#include "adapters/linux/file_rights.h"
#include "adapters/linux/folder_lock.h"
#include "adapters/linux/folder_turn.h"
#include "adapters/linux/linux_files.h"
#include "adapters/linux/local_running_apps.h"
#include "adapters/linux/standard_random.h"
#include "adapters/linux/system_clock.h"
#include "common/dates.h"
#include "support/no_descriptors.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

TEST(SystemClock, TellsTheLocalTime) {
    const cSystemClock clock;
    const DateTime before = clock.Now();
    const std::time_t now = std::time(nullptr);
    const std::tm local = *std::localtime(&now);
    const DateTime expected = DateSerial(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday) +
                              TimeSerial(local.tm_hour, local.tm_min, local.tm_sec);
    EXPECT_NEAR(before, expected, 2.0 / 86400);
    EXPECT_GE(clock.Now(), before);
}

// A time zone for a while.
class cTimeZone {
  public:
    explicit cTimeZone(const char* zone) {
        if (const char* former = std::getenv("TZ")) m_Former = former;
        setenv("TZ", zone, 1);
    }
    ~cTimeZone() {
        m_Former ? setenv("TZ", m_Former->c_str(), 1) : unsetenv("TZ");
        tzset();
    }
    cTimeZone(const cTimeZone&) = delete;
    cTimeZone& operator=(const cTimeZone&) = delete;

  private:
    std::optional<std::string> m_Former;
};

// Central European time by its rule, so that no file of zones is needed.
constexpr const char* kCentralEurope = "CET-1CEST,M3.5.0,M10.5.0/3";
constexpr std::time_t kSpring2026 = 1774746000;  // 2026-03-29 01:00 UTC
constexpr std::time_t kAutumn2026 = 1792890000;  // 2026-10-25 01:00 UTC

TEST(SystemClock, AnHourIsSkippedWhenSummerTimeBegins) {
    const cTimeZone zone(kCentralEurope);
    EXPECT_EQ(LocalDateTime({kSpring2026 - 1, 0}), DateSerial(2026, 3, 29) + TimeSerial(1, 59, 59));
    EXPECT_EQ(LocalDateTime({kSpring2026, 0}), DateSerial(2026, 3, 29) + TimeSerial(3, 0, 0));
}

TEST(SystemClock, AnHourIsReadTwiceWhenSummerTimeEnds) {
    const cTimeZone zone(kCentralEurope);
    EXPECT_EQ(LocalDateTime({kAutumn2026 - 1, 0}), DateSerial(2026, 10, 25) + TimeSerial(2, 59, 59));
    EXPECT_EQ(LocalDateTime({kAutumn2026, 0}), DateSerial(2026, 10, 25) + TimeSerial(2, 0, 0));
}

TEST(SystemClock, NoMomentOfASecondReadsAsTheNextOne) {
    const cTimeZone zone(kCentralEurope);
    for (const std::time_t second :
         {std::time_t{0}, kSpring2026 - 1, kAutumn2026, std::time_t{253402200000}}) {
        const int shown = static_cast<int>(second % 60);
        for (const long part : {0L, 1L, 500'000'000L, 999'799'999L, 999'900'001L, 999'999'999L}) {
            EXPECT_EQ(SplitDateTime(LocalDateTime({second, part})).second, shown) << second << " " << part;
        }
    }
}

TEST(SystemClock, FollowsATimeZoneThatIsChangedWhileItRuns) {
    const cSystemClock clock;
    const cTimeZone before("UTC0");
    const DateTime utc = clock.Now();
    const double steady = clock.Steady();
    const cTimeZone after("EAST-9");
    usleep(1'000'000);  // from the next second on
    EXPECT_NEAR(clock.Now() - utc, 9.0 / 24, 3.0 / 86400);
    EXPECT_NEAR(clock.Steady() - steady, 0, 3.0 / 86400);
}

TEST(SystemClock, TheSteadyClockRuns) {
    const cSystemClock clock;
    using std::chrono::steady_clock;
    const auto outerStart = steady_clock::now();
    const double before = clock.Steady();
    usleep(20000);
    const double seconds = (clock.Steady() - before) * 86400;
    const std::chrono::duration<double> outer = steady_clock::now() - outerStart;
    EXPECT_GE(seconds, 0.0199);
    EXPECT_LE(seconds, outer.count() + 0.0001);
}

TEST(StandardRandom, GivesValuesFromZeroToOneThatDependOnTheSeed) {
    cStandardRandom a;
    cStandardRandom b;
    a.Seed(46000.5);
    b.Seed(46000.5);
    double sum = 0;
    for (int i = 0; i < 1000; ++i) {
        const double value = a.Next();
        EXPECT_GE(value, 0);
        EXPECT_LT(value, 1);
        EXPECT_EQ(value, b.Next());
        sum += value;
    }
    EXPECT_NEAR(sum / 1000, 0.5, 0.1);
    b.Seed(46000.75);
    EXPECT_NE(a.Next(), b.Next());
}

TEST(FolderLock, ASecondProgramOnTheSameFolderIsNoticedWhileTheFirstRuns) {
    cTemporaryFolder folder;
    auto first = std::make_unique<cFolderLock>(folder.Folder());
    EXPECT_FALSE(first->AnotherIsRunning());
    EXPECT_FALSE(first->AnotherIsRunning());
    cFolderLock second(folder.Folder());
    EXPECT_TRUE(second.AnotherIsRunning());
    first.reset();
    EXPECT_FALSE(second.AnotherIsRunning());
}

TEST(FolderLock, AFileThatCannotBeOpenedIsToldAndDoesNotStandInTheWay) {
    cTemporaryFolder folder;
    const std::string path = folder.Path().string() + "/VigrelReceiver.lock";
    cFolderLock lock(folder.Folder());
    std::filesystem::create_directory(path);
    EXPECT_FALSE(lock.AnotherIsRunning());
    EXPECT_EQ(lock.Problem(), path + ": Is a directory");
    std::filesystem::remove(path);
    std::filesystem::create_symlink("elsewhere", path);
    EXPECT_FALSE(lock.AnotherIsRunning());
    EXPECT_EQ(lock.Problem(), path + ": Too many levels of symbolic links");
    std::filesystem::remove(path);
    EXPECT_FALSE(lock.AnotherIsRunning());
    EXPECT_EQ(lock.Problem(), "");
    EXPECT_TRUE(cFolderLock(folder.Folder()).AnotherIsRunning());
}

TEST(FolderLock, AMachineWithoutDescriptorsIsToldAndDoesNotStandInTheWay) {
    cTemporaryFolder folder, other;
    EXPECT_FALSE(cFolderLock(other.Folder()).AnotherIsRunning());
    cFolderLock lock(folder.Folder());
    {
        const cNoDescriptors none;
        EXPECT_FALSE(lock.AnotherIsRunning());
    }
    EXPECT_EQ(lock.Problem(), folder.Path().string() + "/: Too many open files");
    EXPECT_FALSE(lock.AnotherIsRunning());
    EXPECT_EQ(lock.Problem(), "");
}

TEST(FolderLock, TwoFoldersAreTwoStations) {
    cTemporaryFolder a;
    cTemporaryFolder b;
    cFolderLock first(a.Folder());
    cFolderLock second(b.Folder());
    EXPECT_FALSE(first.AnotherIsRunning());
    EXPECT_FALSE(second.AnotherIsRunning());
}

TEST(FolderLock, WhoMayOnlyReadTheFolderCannotHoldIt) {
    cTemporaryFolder folder;
    cFolderLock(folder.Folder()).AnotherIsRunning();
    // What everybody could lock who can read.
    const cFileHandle opened(open(folder.Path().c_str(), O_RDONLY));
    const cFileHandle file(open((folder.Path() / cFolderLock::kFile).c_str(), O_RDONLY));
    ASSERT_EQ(flock(opened.Get(), LOCK_EX | LOCK_NB), 0);
    ASSERT_EQ(flock(file.Get(), LOCK_EX | LOCK_NB), 0);
    struct flock lock {};
    lock.l_type = F_WRLCK;
    EXPECT_NE(fcntl(file.Get(), F_OFD_SETLK, &lock), 0);
    cFolderLock station(folder.Folder());
    EXPECT_FALSE(station.AnotherIsRunning());
}

TEST(FolderLock, ALinkInItsPlaceIsNotFollowed) {
    cTemporaryFolder folder, other;
    std::filesystem::create_symlink(other.Path() / "made", folder.Path() / cFolderLock::kFile);
    cFolderLock station(folder.Folder());
    EXPECT_FALSE(station.AnotherIsRunning());
    EXPECT_TRUE(std::filesystem::is_empty(other.Path()));
}

// The mode of a file made under a umask after KeepFilesPrivate.
mode_t ModeOfNewFile(mode_t given) {
    cTemporaryFolder folder;
    const mode_t before = umask(given);
    KeepFilesPrivate();
    cLinuxFiles().AppendFile(folder.Folder() + "a", "x");
    umask(before);
    struct stat status {};
    stat((folder.Path() / "a").c_str(), &status);
    return status.st_mode & 0777;
}

TEST(FileRights, NewFilesAreForTheirOwnerUnlessTheUmaskShutsOthersOut) {
    EXPECT_EQ(ModeOfNewFile(0022), 0600u);
    EXPECT_EQ(ModeOfNewFile(0000), 0600u);
    EXPECT_EQ(ModeOfNewFile(0002), 0600u);
    EXPECT_EQ(ModeOfNewFile(0077), 0600u);
    EXPECT_EQ(ModeOfNewFile(0027), 0640u);
    EXPECT_EQ(ModeOfNewFile(0007), 0660u);
}

TEST(FolderLock, AProgramThatWasKilledLeavesTheFolderFree) {
    cTemporaryFolder folder;
    const pid_t child = fork();
    if (child == 0) {
        cFolderLock lock(folder.Folder());
        const bool other = lock.AnotherIsRunning();
        std::_Exit(other ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    cFolderLock lock(folder.Folder());
    EXPECT_FALSE(lock.AnotherIsRunning());
}

TEST(FolderTurn, TheNextOneBeginsWhereTheOneBeforeEnds) {
    const cTemporaryFolder folder;
    std::atomic<bool> ended{false};
    auto first = std::make_unique<cFolderTurn>(folder.Folder());
    std::thread next([&] {
        const cFolderTurn turn(folder.Folder());
        EXPECT_TRUE(ended);
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    ended = true;
    first.reset();
    next.join();
}

TEST(FolderTurn, OneThatDoesNotEndAndAFolderThatIsNotThereStandInNobodysWay) {
    const cTemporaryFolder folder;
    const cFolderTurn first(folder.Folder());
    const auto start = std::chrono::steady_clock::now();
    const cFolderTurn next(folder.Folder(), std::chrono::milliseconds(50));
    const cFolderTurn nowhere(folder.Folder() + "nowhere\\");
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(50));
    EXPECT_LT(std::chrono::steady_clock::now() - start, cFolderTurn::kLongestWait / 2);
}

TEST(RunningApps, StatesAreKeptPerApplication) {
    cLocalRunningApps apps;
    EXPECT_EQ(apps.GetRunningApps(8), 0);
    apps.SetRunningApps(8, -1);
    EXPECT_EQ(apps.GetRunningApps(8), -1);
    EXPECT_EQ(apps.GetRunningApps(7), 0);
}

}  // namespace
}  // namespace vigrel::testing
