// Files that somebody else put where the system's own would be.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>

#include "adapters/linux/kept_file.h"
#include "adapters/linux/linux_files.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "support/bytes.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

namespace fs = std::filesystem;

class ForeignFiles : public ::testing::Test {
  protected:
    std::string Path(const std::string& name) const { return m_Folder.Folder() + name; }
    fs::path Native(const std::string& name) const { return m_Folder.Path() / name; }
    void Put(const std::string& name, const std::string& content) {
        m_Files.WriteFile(Path(name), content, false);
    }
    std::string Content(const std::string& name) const { return m_Files.ReadFile(Path(name)); }
    struct stat Status(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(lstat(Native(name).c_str(), &status), 0) << name;
        return status;
    }
    std::string WhyNotRead(const std::string& path) const {
        const auto failure = CatchFailure([&] { m_Files.ReadFile(path); });
        if (!failure) return "read";
        EXPECT_EQ(failure->Number(), eFailure::PathAccess);
        return failure->what();
    }
    cTemporaryFolder m_Folder;
    cLinuxFiles m_Files;
};

TEST_F(ForeignFiles, WhatIsNoOrdinaryFileIsNotReadAndNotWaitedFor) {
    ASSERT_EQ(mkfifo(Native("pipe").c_str(), 0666), 0);
    fs::create_directory(Native("folder"));
    fs::create_symlink("/dev/zero", Native("device"));
    for (const char* name : {"pipe", "folder", "device"}) {
        EXPECT_EQ(WhyNotRead(Path(name)), Path(name) + ": no ordinary file");
    }
}

TEST_F(ForeignFiles, WhatCannotBeReadOfAFolderIsListedWithTheReason) {
    Put("A0000001.alm", "x");
    ASSERT_EQ(mkfifo(Native("A0000002.alm").c_str(), 0666), 0);
    fs::create_directory(Native("A0000003.alm"));
    Put("A0000004.alm", "");
    ASSERT_EQ(truncate(Native("A0000004.alm").c_str(), off_t{40} << 30), 0);
    fs::create_symlink("nowhere", Native("a0000005.ALM"));
    fs::create_symlink("A0000001.alm", Native("A0000006.alm"));
    ASSERT_EQ(mkfifo(Native("other").c_str(), 0666), 0);
    std::string found;
    auto [names, unreadable, problem] = m_Files.List(m_Folder.Folder(), "A???????.Alm");
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"A0000001.alm", "A0000006.alm"}));
    EXPECT_EQ(problem, "");
    std::sort(unreadable.begin(), unreadable.end(),
              [](const auto& a, const auto& b) { return a.name < b.name; });
    for (const auto& [name, reason] : unreadable) found += name + ": " + reason + "\n";
    EXPECT_EQ(found,
              "A0000002.alm: no ordinary file\n"
              "A0000003.alm: no ordinary file\n"
              "A0000004.alm: larger than 64 MB\n"
              "a0000005.ALM: No such file or directory\n");
    EXPECT_EQ(m_Files.ListNames(m_Folder.Folder(), "A???????.Alm").size(), 6u);
}

TEST_F(ForeignFiles, AFolderThatCannotBeListedIsNoEmptyOne) {
    EXPECT_EQ(m_Files.List(Path("none\\"), "*").problem, "");
    Put("Alarms", "a file");
    EXPECT_EQ(m_Files.List(Path("Alarms\\"), "*").problem, Native("Alarms").string() + "/: Not a directory");
    EXPECT_THROW(m_Files.ListNames(Path("Alarms\\"), "*"), cFailure);
    // Such as to a disk that is not there.
    fs::create_symlink("nowhere", Native("LogFiles"));
    EXPECT_EQ(m_Files.List(Path("LogFiles\\"), "*").problem,
              Native("LogFiles").string() + "/: No such file or directory");
    fs::create_directory(Native("elsewhere"));
    Put("elsewhere\\a", "x");
    fs::create_symlink("elsewhere", Native("planted"));
    const bool planted = lchown(Native("planted").c_str(), 4711, 4711) == 0;
    const auto listing = m_Files.List(Path("planted\\"), "*");
    EXPECT_EQ(listing.problem,
              planted ? Native("planted").string() + ": a link that another user made is not followed" : "");
    EXPECT_EQ(listing.names.size(), planted ? 0u : 1u);
}

TEST_F(ForeignFiles, AFileLargerThanAnyOfTheSystemIsNotRead) {
    Put("large", "");
    constexpr off_t kMost = 64 << 20;
    ASSERT_EQ(truncate(Native("large").c_str(), off_t{40} << 30), 0);
    EXPECT_EQ(WhyNotRead(Path("large")), Path("large") + ": larger than 64 MB");
    ASSERT_EQ(truncate(Native("large").c_str(), kMost), 0);
    EXPECT_EQ(Content("large").size(), std::size_t{kMost});
}

// Such as files of the kernel, whose size says nothing.
TEST_F(ForeignFiles, AFileThatHasNoEndIsNotReadWhateverItsSizeSays) {
    const auto endless = [] {
        struct stat status {};
        return stat("/proc/self/pagemap", &status) == 0 && S_ISREG(status.st_mode) && status.st_size == 0;
    };
    ASSERT_TRUE(endless());
    EXPECT_EQ(WhyNotRead("/proc/self/pagemap"), "/proc/self/pagemap: no ordinary file");
    fs::create_symlink("/proc/self/pagemap", Native("A0000001.alm"));
    Put("A0000002.alm", "");
    const auto listing = m_Files.List(m_Folder.Folder(), "A???????.Alm");
    EXPECT_EQ(listing.names, std::vector<std::string>{"A0000002.alm"});
    ASSERT_EQ(listing.unreadable.size(), 1u);
    EXPECT_EQ(listing.unreadable[0].name, "A0000001.alm");
    EXPECT_EQ(listing.unreadable[0].reason, "no ordinary file");
}

TEST_F(ForeignFiles, APipeIsNeitherWrittenNorWaitedFor) {
    ASSERT_EQ(mkfifo(Native("pipe").c_str(), 0666), 0);
    EXPECT_THROW(m_Files.AppendFile(Path("pipe"), "x"), cFailure);
    EXPECT_THROW(m_Files.WriteFile(Path("pipe"), "x", true), cFailure);
    EXPECT_TRUE(fs::is_fifo(Native("pipe")));
}

TEST_F(ForeignFiles, APlantedLinkIsNotWrittenThrough) {
    Put("secret", "mine");
    fs::create_symlink("secret", Native("20260315.Log"));
    EXPECT_THROW(m_Files.AppendFile(Path("20260315.Log"), "line"), cFailure);
    fs::create_symlink("secret", Native("A0000001.alm.$~"));
    ReplaceOwnFile(m_Files, Path("A0000001.alm"), "alarm");
    EXPECT_EQ(Content("A0000001.alm"), "alarm");
    EXPECT_FALSE(fs::is_symlink(Native("A0000001.alm")));
    EXPECT_EQ(Content("secret"), "mine");
}

TEST_F(ForeignFiles, ATemporaryThatSomebodyHoldsOpenIsNotUsed) {
    Put("a.$~", "");
    const int held = open(Native("a.$~").c_str(), O_RDWR);
    ReplaceOwnFile(m_Files, Path("a"), "new");
    EXPECT_EQ(write(held, "changed", 7), 7);
    close(held);
    EXPECT_EQ(Content("a"), "new");
}

TEST_F(ForeignFiles, AReplacedLinkLeadsToItsFileStill) {
    fs::create_directory(Native("etc"));
    Put("etc\\shared.ini", "old");
    fs::create_symlink("etc/shared.ini", Native("second.ini"));
    fs::create_symlink("second.ini", Native("VigrelReceiver.INI"));
    ReplaceFile(m_Files, Path("vigrelreceiver.ini"), "new");
    EXPECT_TRUE(fs::is_symlink(Native("VigrelReceiver.INI")));
    EXPECT_TRUE(fs::is_symlink(Native("second.ini")));
    EXPECT_FALSE(fs::is_symlink(Native("etc/shared.ini")));
    EXPECT_EQ(Content("etc\\shared.ini"), "new");
    EXPECT_EQ(m_Files.ListFiles(Path("etc"), "*").size(), 1u);
}

TEST_F(ForeignFiles, WhatACrashLeftBesideALinksTargetGoesUnlessAnotherUserMadeTheLink) {
    fs::create_directory(Native("etc"));
    for (const char* name : {"shared.ini", "shared.ini.$~", "Shared.INI.$~", "other.ini.$~"})
        std::ofstream(Native("etc") / name) << "x";
    fs::create_symlink("etc/shared.ini", Native("VigrelReceiver.INI"));
    const bool planted = lchown(Native("VigrelReceiver.INI").c_str(), 4711, 4711) == 0;
    RemoveTemporariesOfLinks(m_Files, Path(""), "vigrelreceiver.ini");
    EXPECT_EQ(fs::exists(Native("etc/shared.ini.$~")), planted);
    ASSERT_TRUE(!planted || lchown(Native("VigrelReceiver.INI").c_str(), geteuid(), getegid()) == 0);
    RemoveTemporariesOfLinks(m_Files, Path(""), "vigrelreceiver.ini");
    RemoveTemporariesOfLinks(m_Files, Path(""), "vigrelreceiver.ini");
    EXPECT_FALSE(fs::exists(Native("etc/shared.ini.$~")));
    EXPECT_EQ(m_Files.ListFiles(Path("etc"), "*").size(), 3u);
}

TEST_F(ForeignFiles, ALinkWhoseFileIsGoneGetsItBack) {
    fs::create_symlink("gone.ini", Native("a.ini"));
    ReplaceFile(m_Files, Path("a.ini"), "new");
    EXPECT_TRUE(fs::is_symlink(Native("a.ini")));
    EXPECT_EQ(Content("gone.ini"), "new");
}

TEST_F(ForeignFiles, LinksInACircleAreAFailure) {
    fs::create_symlink("b", Native("a"));
    fs::create_symlink("a", Native("b"));
    EXPECT_THROW(ReplaceFile(m_Files, Path("a"), "new"), cFailure);
}

TEST_F(ForeignFiles, AReplacedFileKeepsItsModeAndOwner) {
    for (const mode_t mode : {0600u, 0640u, 0664u, 0644u, 0400u}) {
        Put("a.ini", "old");
        // Only a privileged user can give a file away; any other one keeps his own.
        static_cast<void>(!chown(Native("a.ini").c_str(), 4711, 4712));
        chmod(Native("a.ini").c_str(), mode);
        const struct stat before = Status("a.ini");
        ReplaceFile(m_Files, Path("a.ini"), "new");
        const struct stat after = Status("a.ini");
        EXPECT_EQ(Content("a.ini"), "new");
        EXPECT_EQ(after.st_mode & 07777, mode);
        EXPECT_EQ(after.st_uid, before.st_uid);
        EXPECT_EQ(after.st_gid, before.st_gid);
    }
}

// Only who sets it up may have a file system without attributes.
std::string UsersAttribute(const std::string& path) {
    std::array<char, 16> value{};
    const ssize_t size = getxattr(path.c_str(), "user.plant", value.data(), value.size());
    return size < 0 ? "" : std::string(value.data(), static_cast<std::size_t>(size));
}

TEST_F(ForeignFiles, AReplacedFileKeepsTheAttributesOfUsers) {
    Put("a.ini", "old");
    const bool set = setxattr(Native("a.ini").c_str(), "user.plant", "north", 5, 0) == 0;
    ReplaceFile(m_Files, Path("a.ini"), "new");
    EXPECT_EQ(UsersAttribute(Native("a.ini")), set ? "north" : "");
}

// An access list in the form of the kernel: version, then tag, rights and id of each entry.
std::string AccessListOfAnotherUser() {
    return Bytes(
        "02000000"
        "0100 0600 FFFFFFFF (the owner)"
        "0200 0400 67120000 (user 4711)"
        "0400 0000 FFFFFFFF (the group)"
        "1000 0400 FFFFFFFF (the mask)"
        "2000 0000 FFFFFFFF (others)");
}

TEST_F(ForeignFiles, AReplacedFileKeepsItsAccessList) {
    Put("a.ini", "old");
    const std::string list = AccessListOfAnotherUser();
    const bool set =
        setxattr(Native("a.ini").c_str(), "system.posix_acl_access", list.data(), list.size(), 0) == 0;
    const mode_t mode = Status("a.ini").st_mode;
    ReplaceFile(m_Files, Path("a.ini"), "new");
    EXPECT_EQ(Status("a.ini").st_mode, mode);
    std::string kept(list.size(), '\0');
    const ssize_t size =
        getxattr(Native("a.ini").c_str(), "system.posix_acl_access", kept.data(), kept.size());
    EXPECT_EQ(size, set ? static_cast<ssize_t>(list.size()) : -1);
    EXPECT_EQ(kept == list, set);
}

TEST_F(ForeignFiles, AttributesGoToTheOpenFileWhateverItsNameStandsForByNow) {
    for (const char* name : {"like", "temporary", "victim"}) Put(name, name);
    chmod(Native("like").c_str(), 0666);
    chmod(Native("victim").c_str(), 0600);
    const int opened = open(Native("temporary").c_str(), O_WRONLY);
    fs::rename(Native("temporary"), Native("moved"));
    fs::create_symlink("victim", Native("temporary"));
    GiveAttributes(opened, Native("like").string());
    close(opened);
    EXPECT_EQ(Status("victim").st_mode & 07777, 0600u);
    EXPECT_EQ(Status("moved").st_mode & 07777, 0666u);
}

// Nor do the rights of what a link leads to become those of our file.
TEST_F(ForeignFiles, AttributesAreNotThoseOfALink) {
    Put("open to all", "");
    chmod(Native("open to all").c_str(), 0666);
    fs::create_symlink("open to all", Native("like"));
    Put("ours", "");
    chmod(Native("ours").c_str(), 0600);
    const int opened = open(Native("ours").c_str(), O_WRONLY);
    GiveAttributes(opened, Native("like").string());
    close(opened);
    EXPECT_EQ(Status("ours").st_mode & 07777, 0600u);
}

TEST_F(ForeignFiles, AFolderThatIsALinkOfAnotherUsersIsNotWrittenIn) {
    fs::create_directory(Native("elsewhere"));
    Put("elsewhere\\theirs", "kept");
    Put("ours", "ours");
    fs::create_symlink("elsewhere", Native("LogFiles"));
    const bool planted = lchown(Native("LogFiles").c_str(), 4711, 4711) == 0;
    const auto refused = [&](auto&& call) { return CatchFailure(call).has_value(); };
    EXPECT_EQ(refused([&] { m_Files.AppendFile(Path("LogFiles\\a.Log"), "x"); }), planted);
    EXPECT_EQ(refused([&] { m_Files.WriteFile(Path("logfiles\\b"), "x", true); }), planted);
    EXPECT_EQ(refused([&] { ReplaceOwnFile(m_Files, Path("LogFiles\\c"), "x"); }), planted);
    EXPECT_EQ(refused([&] { m_Files.SetNormalAttributes(Path("LogFiles\\theirs")); }), planted);
    EXPECT_EQ(refused([&] { m_Files.RenameFile(Path("ours"), Path("LogFiles\\d")); }), planted);
    EXPECT_EQ(refused([&] { m_Files.RemoveFile(Path("LogFiles\\theirs")); }), planted);
    EXPECT_EQ(m_Files.ListFiles(Path("elsewhere"), "*").size(), planted ? 1u : 4u);
    // Whoever owns the folder may put links into it.
    ASSERT_TRUE(!planted || chown(m_Folder.Path().c_str(), 4711, 4711) == 0);
    m_Files.AppendFile(Path("LogFiles\\e.Log"), "line");
    EXPECT_EQ(Content("elsewhere\\e.Log"), "line");
}

TEST_F(ForeignFiles, ALinkThatAnotherUserMadeIsNotFollowed) {
    Put("other.ini", "old");
    fs::create_symlink("other.ini", Native("a.ini"));
    const bool planted = lchown(Native("a.ini").c_str(), 4711, 4711) == 0;
    const auto failure = CatchFailure([&] { ReplaceFile(m_Files, Path("a.ini"), "new"); });
    EXPECT_EQ(failure.has_value(), planted);
    EXPECT_EQ(Content("other.ini"), planted ? "old" : "new");
    // Whoever owns the folder may put links into it.
    ASSERT_TRUE(!planted || chown(m_Folder.Path().c_str(), 4711, 4711) == 0);
    ReplaceFile(m_Files, Path("a.ini"), "newer");
    EXPECT_EQ(Content("other.ini"), "newer");
}

}  // namespace
}  // namespace vigrel::testing
