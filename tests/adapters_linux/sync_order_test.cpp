// What reaches the disk, and in which order, by the calls that the operating system gets: a kill shows none
// of it, since the machine keeps what a program has written.

#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "adapters/linux/linux_files.h"
#include "common/file_procedures.h"
#include "support/temporary_folder.h"

namespace {

std::mutex theMutex;
std::vector<std::string> theCalls;

void Note(const std::string& call) {
    const std::lock_guard lock(theMutex);
    theCalls.push_back(call);
}

// The name of what a descriptor leads to, without its folders.
std::string NameOf(int descriptor) {
    std::array<char, 4096> path;
    const auto link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t size = readlink(link.c_str(), path.data(), path.size());
    return size < 0 ? "?" : std::filesystem::path(path.data(), path.data() + size).filename().string();
}

}  // namespace

// In place of the C library's in this program: noted, then done.
extern "C" int fsync(int descriptor) {
    Note("sync " + NameOf(descriptor));
    return static_cast<int>(syscall(SYS_fsync, descriptor));
}
extern "C" int syncfs(int descriptor) noexcept {
    Note("sync all of " + NameOf(descriptor));
    return static_cast<int>(syscall(SYS_syncfs, descriptor));
}
extern "C" int renameat(int folder, const char* name, int newFolder, const char* newName) noexcept {
    Note("rename to " + std::filesystem::path(newName).filename().string());
    return static_cast<int>(syscall(SYS_renameat2, folder, name, newFolder, newName, 0));
}

namespace vigrel::testing {
namespace {

class SyncOrder : public ::testing::Test {
  protected:
    using Calls = std::vector<std::string>;

    SyncOrder() {
        std::filesystem::create_directory(m_Folder.Path() / "Alarms");
        MadeCalls();
    }
    // Those since the last time.
    static Calls MadeCalls() {
        const std::lock_guard lock(theMutex);
        return std::exchange(theCalls, {});
    }

    cTemporaryFolder m_Folder;
    const std::string m_Alarm = m_Folder.Folder() + "Alarms\\A0000001.alm";
};

TEST_F(SyncOrder, AnAlarmIsOnDiskBeforeItHasItsNameAndTheNameBehindThat) {
    cLinuxFiles files(cLinuxFiles::eNames::Exact);
    // The folder is opened for the first, and kept for the second.
    for (int time = 0; time < 2; ++time) {
        ReplaceOwnFile(files, m_Alarm, "an alarm");
        EXPECT_EQ(MadeCalls(), (Calls{"sync A0000001.alm.$~", "rename to A0000001.alm", "sync Alarms"}));
    }
}

TEST_F(SyncOrder, AFileThatOthersSeeTooIsReplacedInTheSameOrder) {
    cLinuxFiles files;
    for (int time = 0; time < 2; ++time) {
        ReplaceFile(files, m_Alarm, "a configuration");
        EXPECT_EQ(MadeCalls(), (Calls{"sync A0000001.alm.$~", "rename to A0000001.alm", "sync Alarms"}));
    }
}

TEST_F(SyncOrder, ManyFilesAreSyncedTogether) {
    cLinuxFiles files(cLinuxFiles::eNames::Exact);
    const auto sync = files.StartSync(m_Folder.Folder() + "Alarms");
    EXPECT_TRUE(sync->Wait());
    EXPECT_EQ(MadeCalls(), Calls{"sync all of Alarms"});
}

}  // namespace
}  // namespace vigrel::testing
