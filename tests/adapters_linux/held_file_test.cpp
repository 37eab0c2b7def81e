#include "adapters/linux/held_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "adapters/linux/linux_files.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

// Files that are written over and over by one cLinuxFiles, and what others do to them meanwhile.
class HeldFile : public ::testing::Test {
  protected:
    // What others do is noticed a millisecond later.
    template <class Do>
    void ByAnother(Do doIt) {
        doIt();
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    void Append(const std::string& line) { m_Log.AppendFile(m_Folder.Folder() + "day.Log", line); }
    void Save(const std::string& content) {
        ReplaceOwnFile(m_Alarms, m_Folder.Folder() + "Alarms\\A0000001.alm", content);
    }
    std::string Content(const std::string& name) const {
        std::ifstream file(m_Folder.Path() / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static std::ptrdiff_t OpenDescriptors() {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    }

    cTemporaryFolder m_Folder;
    const std::filesystem::path m_LogPath = m_Folder.Path() / "day.Log";
    const std::filesystem::path m_AlarmsPath = m_Folder.Path() / "Alarms";
    cLinuxFiles m_Log, m_Alarms{cLinuxFiles::eNames::Exact};
};

TEST_F(HeldFile, WhatIsAppendedIsThereAtOnce) {
    Append("a\n");
    EXPECT_EQ(Content("day.Log"), "a\n");
    Append("b\n");
    EXPECT_EQ(Content("day.Log"), "a\nb\n");
}

TEST_F(HeldFile, ALogThatIsMovedAwayIsBegunAnew) {
    Append("a\n");
    ByAnother([&] { std::filesystem::rename(m_LogPath, m_Folder.Path() / "old"); });
    Append("b\n");
    EXPECT_EQ(Content("old"), "a\n");
    EXPECT_EQ(Content("day.Log"), "b\n");
}

TEST_F(HeldFile, ALogThatIsRemovedIsBegunAnew) {
    Append("a\n");
    ByAnother([&] { std::filesystem::remove(m_LogPath); });
    Append("b\n");
    EXPECT_EQ(Content("day.Log"), "b\n");
}

TEST_F(HeldFile, ALogThatTheProgramMovesOrRemovesIsBegunAnewAtOnce) {
    Append("a\n");
    m_Log.RenameFile(m_LogPath.string(), (m_Folder.Path() / "old").string());
    Append("b\n");
    EXPECT_EQ(Content("old"), "a\n");
    m_Log.RemoveFile(m_LogPath.string());
    Append("c\n");
    EXPECT_EQ(Content("day.Log"), "c\n");
}

TEST_F(HeldFile, ALinkInThePlaceOfALogIsNotFollowed) {
    Append("a\n");
    std::ofstream(m_Folder.Path() / "other") << "other";
    ByAnother([&] {
        std::filesystem::remove(m_LogPath);
        std::filesystem::create_symlink("other", m_LogPath);
    });
    EXPECT_THROW(Append("b\n"), cFailure);
    EXPECT_EQ(Content("other"), "other");
}

TEST_F(HeldFile, AFolderThatIsMovedAwayKeepsWhatItHadAndGetsNothingMore) {
    std::filesystem::create_directory(m_AlarmsPath);
    Save("before");
    ByAnother([&] {
        std::filesystem::rename(m_AlarmsPath, m_Folder.Path() / "old");
        std::filesystem::create_directory(m_AlarmsPath);
    });
    Save("after");
    EXPECT_EQ(Content("old/A0000001.alm"), "before");
    EXPECT_EQ(Content("Alarms/A0000001.alm"), "after");
}

TEST_F(HeldFile, AFolderThatIsGoneIsAFailureUntilItIsBack) {
    std::filesystem::create_directory(m_AlarmsPath);
    Save("before");
    ByAnother([&] { std::filesystem::rename(m_AlarmsPath, m_Folder.Path() / "old"); });
    try {
        Save("lost?");
        FAIL() << "no failure";
    } catch (const cFailure& failure) {
        EXPECT_EQ(failure.Number(), eFailure::FileNotFound);
    }
    EXPECT_EQ(Content("old/A0000001.alm"), "before");
    ByAnother([&] { std::filesystem::create_directory(m_AlarmsPath); });
    Save("after");
    EXPECT_EQ(Content("Alarms/A0000001.alm"), "after");
}

TEST_F(HeldFile, AFolderThatIsALinkIsWrittenWhereItLeadsNow) {
    for (const std::string name : {"first", "second"})
        std::filesystem::create_directory(m_Folder.Path() / name);
    std::filesystem::create_symlink("first", m_AlarmsPath);
    Save("1");
    ByAnother([&] {
        std::filesystem::remove(m_AlarmsPath);
        std::filesystem::create_symlink("second", m_AlarmsPath);
    });
    Save("2");
    EXPECT_EQ(Content("first/A0000001.alm"), "1");
    EXPECT_EQ(Content("second/A0000001.alm"), "2");
}

TEST_F(HeldFile, AFileIsRenamedIntoAnotherFolder) {
    std::filesystem::create_directory(m_AlarmsPath);
    Save("alarm");
    m_Alarms.RenameFile(m_Folder.Folder() + "Alarms\\A0000001.alm", m_Folder.Folder() + "kept");
    EXPECT_EQ(Content("kept"), "alarm");
    EXPECT_FALSE(std::filesystem::exists(m_AlarmsPath / "A0000001.alm"));
}

TEST_F(HeldFile, ManyFilesAndFoldersHoldNoMoreThanOne) {
    const std::ptrdiff_t before = OpenDescriptors();
    for (int i = 0; i < 50; ++i) {
        const std::string folder = m_Folder.Folder() + std::to_string(i) + "\\";
        m_Log.MakeFolder(folder);
        m_Log.AppendFile(folder + "a.Log", "line");
        m_Alarms.WriteFile(folder + "A0000001.alm", "alarm", true);
        m_Alarms.SyncFolder(folder);
    }
    EXPECT_LE(OpenDescriptors(), before + 2);
}

// What the kernel makes up is no file of a disk that other machines could share.
TEST(SharedFileSystem, OneOfThisMachineIsNotShared) {
    const cFileHandle file(open("/proc/self/status", O_RDONLY | O_CLOEXEC));
    EXPECT_FALSE(IsShared(file.Get()));
    EXPECT_TRUE(IsShared(-1));
}

}  // namespace
}  // namespace vigrel::testing
