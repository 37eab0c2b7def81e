// Whole stations among files that are broken, or that somebody else put there.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

#include "common/code_page.h"
#include "e2e/station.h"

namespace vigrel::testing {
namespace {

namespace fs = std::filesystem;

// For stations whose log can't be read: whether an alarm is taken within ten seconds.
bool TakesAnAlarm(const cStation& station) {
    for (int i = 0; i < 100; ++i) {
        if (station.Send({"--t0", "received"}).exitCode == 0) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return false;
}

TEST(ForeignConfiguration, OneThatCannotBeReadIsRefusedWithItsNameAndTheReason) {
    cStation station;
    station.ExpectStandardError();
    const std::string ini = (station.Folder() / "VigrelReceiver.INI").string();
    ASSERT_EQ(mkfifo(ini.c_str(), 0666), 0);
    station.Launch();
    EXPECT_EQ(station.WaitForEnd(), kRefusedStart);
    EXPECT_EQ(station.StandardError(), "vigrel-receiver: " + station.Folder().string() +
                                           "/: The configuration can't be read: " + ini +
                                           ": no ordinary file\n");
    EXPECT_TRUE(station.Log().empty());
}

TEST(ForeignConfiguration, AFolderOrPipeOfItsNameInAnotherCaseDoesNotStandInTheWay) {
    cStation station;
    fs::create_directory(station.Folder() / "vigrelreceiver.ini");
    ASSERT_EQ(mkfifo((station.Folder() / "VIGRELRECEIVER.INI").c_str(), 0666), 0);
    ASSERT_TRUE(station.Start()) << station.StandardError();
    EXPECT_EQ(station.Send({"--t0", "received"}).exitCode, 0);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

TEST(PlantedFolders, NothingIsWrittenThroughALinkOfAnotherUsers) {
    cStation station;
    const fs::path victim = station.Folder() / "victim";
    fs::create_directory(victim);
    fs::create_directory_symlink("victim", station.Folder() / "LogFiles");
    const bool planted = lchown((station.Folder() / "LogFiles").c_str(), 4711, 4711) == 0;
    station.Launch();
    EXPECT_TRUE(TakesAnAlarm(station));
    EXPECT_EQ(station.AlarmFiles().size(), 1u);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
    EXPECT_EQ(fs::is_empty(victim), planted);
}

TEST(UnlistedAlarms, AreToldAndTheStationRuns) {
    cStation station;
    station.ExpectStandardError();
    const std::string alarms = (station.Folder() / "Alarms").string();
    fs::create_directory_symlink("a disk that is not there", alarms);
    ASSERT_TRUE(station.Start()) << station.StandardError();
    EXPECT_TRUE(station.WaitForLog("T10053 (" + alarms + "/: No such file or directory)"));
    const std::string line = "vigrel-receiver: T10053 (" + alarms + "/: No such file or directory)\n";
    for (int i = 0; i < 100 && station.StandardError() != line; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_EQ(station.StandardError(), line);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

// A copy in upper case, such as one that comes back from a disk of another kind.
TEST(ForeignAlarms, OneWhoseNameDiffersInCaseOnlyTakesNoOtherAlong) {
    cStation station;
    ASSERT_TRUE(station.Start()) << station.StandardError();
    EXPECT_EQ(station.Send({"--t0", "here"}).exitCode, 0);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
    ASSERT_EQ(station.AlarmFiles().size(), 1u);
    const fs::path own = station.AlarmFiles()[0];
    std::string bytes = ReadAll(own);
    // The time of creation, in front of the file's number and what is reserved: too old for every limit.
    ASSERT_GT(bytes.size(), 72u);
    bytes.replace(bytes.size() - 72, 8, 8, '\0');
    fs::path copy = own;
    std::ofstream(copy.replace_extension(".ALM"), std::ios::binary) << bytes;
    ASSERT_TRUE(station.Start()) << station.StandardError();
    EXPECT_TRUE(station.WaitForLog("1 T10036"));
    EXPECT_TRUE(station.WaitForLog("1 T10041"));
    EXPECT_EQ(station.Stop(SIGTERM), 0);
    EXPECT_TRUE(fs::exists(own));
    EXPECT_FALSE(fs::exists(copy));
}

TEST(LargestFile, ALogThatReachesItKeepsNoAlarmAway) {
    constexpr rlim_t kMost = 100'000;
    cStation station;
    ASSERT_TRUE(station.Start()) << station.StandardError();
    EXPECT_EQ(station.Stop(SIGTERM), 0);
    const fs::path log = fs::directory_iterator(station.Folder() / "LogFiles")->path();
    fs::resize_file(log, kMost - 10);
    station.m_InChild = [] {
        const rlimit limit{kMost, kMost};
        setrlimit(RLIMIT_FSIZE, &limit);
    };
    station.Launch();
    EXPECT_TRUE(TakesAnAlarm(station));
    EXPECT_EQ(station.AlarmFiles().size(), 1u);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
    EXPECT_EQ(fs::file_size(log), kMost);
}

TEST(Lock, OneThatCannotBeTakenIsToldAndTheStationRuns) {
    cStation station;
    station.ExpectStandardError();
    const std::string lock = (station.Folder() / "VigrelReceiver.lock").string();
    fs::create_directory(lock);
    ASSERT_TRUE(station.Start()) << station.StandardError();
    const std::string line = "T11003: " + lock + ": Is a directory";
    EXPECT_TRUE(station.WaitForLog(line));
    EXPECT_EQ(station.StandardError(), "vigrel-receiver: " + line + "\n");
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

// The station's texts, in place of those that its tests use.
class ForeignTexts : public ::testing::Test {
  protected:
    ForeignTexts() { station.ExpectStandardError(); }
    fs::path File() const { return station.Folder() / "Vigrel_Texts.046"; }
    cStation station;
};

TEST_F(ForeignTexts, AreCompletedAndNotOverwritten) {
    const std::string own = "0=Test\r\n10040=mine\r\n10011=T10011";
    std::ofstream(File(), std::ios::binary) << own;
    ASSERT_TRUE(station.Start()) << station.StandardError();
    const std::string content = ReadAll(File());
    EXPECT_TRUE(content.starts_with(own + "\r\n10000=")) << content;
    EXPECT_NE(content.find("\r\n10049=Larm som inte finns p\xE5 disken:\r\n"), std::string::npos);
    const auto log = station.Log();
    ASSERT_GE(log.size(), 3u);
    EXPECT_EQ(log[1], "mine");
    const auto told = std::find_if(log.begin(), log.end(), [](const std::string& line) {
        return line.starts_with("Vigrel_Texts.046: ");
    });
    ASSERT_NE(told, log.end());
    EXPECT_NE(told->find(" saknade texter tillagda: 10000, 10004, "), std::string::npos) << *told;
    EXPECT_EQ(station.Stop(SIGTERM), 0);
    EXPECT_TRUE(station.Start());
    EXPECT_EQ(ReadAll(File()), content);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

TEST_F(ForeignTexts, ThatCannotBeReadAreStoodForByTheProgramsOwn) {
    fs::resize_file(File(), std::uintmax_t{65} << 20);
    station.Launch();
    const std::string problem = ", programmets egna anv\u00E4nds i st\u00E4llet: " +
                                (station.Folder() / "Vigrel_Texts.046").string() + ": larger than 64 MB";
    const std::string line = "Texterna kan inte l\u00E4sas" + problem;
    EXPECT_TRUE(TakesAnAlarm(station)) << station.StandardError();
    const auto log = station.Log();
    ASSERT_GE(log.size(), 3u);
    EXPECT_EQ(log[1], "Programmet startar");
    EXPECT_EQ(log[2], Utf8ToCodePage(line));
    EXPECT_EQ(station.StandardError(), "vigrel-receiver: " + line + "\n");
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

// A name of the machine that would colour, and then title, whatever terminal shows it.
constexpr const char* kSteering = "\x1B[31m\x1B]0;title\x07";

class Terminal : public ::testing::Test {
  protected:
    void ExpectNothingSteers(const std::string& line) const {
        const std::string error = station.StandardError();
        EXPECT_NE(error.find("\\x1B[31m\\x1B]0;title\\x07"), std::string::npos) << error;
        EXPECT_NE(error.find(line), std::string::npos) << error;
        for (const char c : error) EXPECT_TRUE(c == '\n' || static_cast<unsigned char>(c) >= 0x20) << error;
    }
    cStation station;
};

TEST_F(Terminal, IsNotSteeredByTheNameOfAFolderInABox) {
    station.ExpectStandardError();
    const fs::path folder = station.Folder() / kSteering;
    fs::create_directories(folder / "VigrelReceiver.INI");
    station.m_Environment["VIGREL_APPLICATION_PATH"] = folder.string();
    station.Launch();
    EXPECT_EQ(station.WaitForEnd(), kRefusedStart);
    ExpectNothingSteers("no ordinary file");
}

TEST_F(Terminal, IsNotSteeredByTheNameOfAFolderInAFailure) {
    station.ExpectStandardError();
    std::ofstream(station.Folder() / "file") << "in the way";
    station.m_Environment["VIGREL_APPLICATION_PATH"] = (station.Folder() / "file" / kSteering).string();
    station.Launch();
    EXPECT_EQ(station.WaitForEnd(), 70);
    ExpectNothingSteers("can't be made");
}

TEST_F(Terminal, IsNotSteeredByTheNameOfADisplay) {
    station.ExpectStandardError();
    station.m_Environment = {{"QT_QPA_PLATFORM", ""}, {"DISPLAY", std::string(":4711") + kSteering}};
    station.Launch();
    EXPECT_EQ(station.WaitForEnd(), kRefusedStart);
    ExpectNothingSteers("No display can be opened");
}

}  // namespace
}  // namespace vigrel::testing
