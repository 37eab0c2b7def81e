#include "adapters/linux/linux_files.h"

#include <sys/stat.h>

#include <fstream>
#include <tuple>

#include "common/ini.h"
#include "contract/files_contract.h"
#include "support/no_descriptors.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

class cLinuxFilesRig {
  public:
    cFiles& Files() { return m_Files; }
    std::string Folder() const { return m_Folder.Folder(); }

  private:
    cTemporaryFolder m_Folder;
    cLinuxFiles m_Files;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, FilesContract, cLinuxFilesRig);

TEST(LinuxFiles, AFullDeviceIsAFailureOfItsOwn) {
    cLinuxFiles files;
    try {
        files.AppendFile("/dev/full", "x");
        FAIL() << "no failure";
    } catch (const cFailure& failure) {
        EXPECT_EQ(failure.Number(), eFailure::DiskFull);
    }
}

TEST(LinuxFiles, AnExactNameIsPreferredToOneInAnotherCase) {
    cTemporaryFolder folder;
    cLinuxFiles files;
    files.WriteFile(folder.Folder() + "x.txt", "lower", false);
    std::filesystem::copy(folder.Path() / "x.txt", folder.Path() / "X.TXT");
    files.WriteFile(folder.Folder() + "X.TXT", "upper", false);
    EXPECT_EQ(files.ReadFile(folder.Folder() + "x.txt"), "lower");
    EXPECT_EQ(files.ReadFile(folder.Folder() + "X.TXT"), "upper");
}

// A machine can run out of descriptors for a while. A file that is spelled in another way is not missing
// then: what takes it for missing makes a second one, which wins ever after.
TEST(LinuxFiles, WithoutDescriptorsNoNameIsTakenForMissing) {
    for (const auto& [given, there] :
         {std::pair{"VigrelReceiver.INI", "vigrelreceiver.ini"}, std::pair{"A0000001.alm", "A0000001.Alm"}}) {
        cTemporaryFolder folder;
        cLinuxFiles files;
        const std::string path = folder.Folder() + given;
        const auto read = [&] {
            const auto failure = CatchFailure([&] { files.ReadFile(path); });
            return failure ? std::optional(failure->Number()) : std::nullopt;
        };
        EXPECT_EQ(read(), eFailure::FileNotFound);
        files.WriteFile(folder.Folder() + there, "[General]\r\nLanguage=046\r\n", false);
        EXPECT_EQ(read(), std::nullopt);
        {
            const cNoDescriptors none;
            EXPECT_EQ(read(), eFailure::InputOutput);
            EXPECT_THROW(files.Spelling(path), cFailure);
            EXPECT_THROW(files.WriteFile(path, "", false), cFailure);
            EXPECT_THROW(files.RemoveFile(path), cFailure);
            EXPECT_FALSE(files.FileExists(path));
            EXPECT_EQ(files.Stamp(path).size, -1);
        }
        EXPECT_EQ(read(), std::nullopt);
        EXPECT_EQ(files.ListFiles(folder.Folder(), "*"), std::vector<std::string>{there});
    }
}

// Names of few letters are tried, others searched for.
TEST(LinuxFiles, OnlyOrdinaryFilesCountWhenANameIsFoundInAnotherCase) {
    for (const auto& [given, other, there] :
         {std::tuple{"A0000001.alm", "A0000001.ALM", "a0000001.Alm"},
          std::tuple{"VigrelReceiver.INI", "VIGRELRECEIVER.INI", "vigrelreceiver.ini"}}) {
        cTemporaryFolder folder;
        cLinuxFiles files;
        const std::string path = folder.Folder() + given;
        std::filesystem::create_directory(folder.Path() / given);
        EXPECT_FALSE(files.FileExists(path));
        EXPECT_THROW(files.ReadFile(path), cFailure);
        EXPECT_EQ(files.Spelling(path), folder.Path().string() + "/" + given);
        ASSERT_EQ(mkfifo((folder.Path() / other).c_str(), 0666), 0);
        EXPECT_EQ(files.Spelling(path), folder.Path().string() + "/" + given);
        std::ofstream(folder.Path() / "real") << "content";
        std::filesystem::create_symlink("real", folder.Path() / there);
        EXPECT_TRUE(files.FileExists(path));
        EXPECT_EQ(files.ReadFile(path), "content");
        EXPECT_EQ(files.Stamp(path).size, 7);
        EXPECT_EQ(files.Spelling(path), folder.Path().string() + "/" + there);
        ReplaceFile(files, path, "new");
        EXPECT_EQ(files.ReadFile(folder.Folder() + "real"), "new");
    }
}

TEST(LinuxFiles, AFileDoesNotHideAFolderOfItsNameInAnotherCase) {
    cTemporaryFolder folder;
    cLinuxFiles files;
    std::ofstream(folder.Path() / "LogFiles") << "in the way";
    std::filesystem::create_directory(folder.Path() / "logfiles");
    files.AppendFile(folder.Folder() + "LogFiles\\20260315.Log", "line");
    EXPECT_EQ(files.ReadFile(folder.Folder() + "logfiles\\20260315.Log"), "line");
}

TEST(LinuxFiles, ExactNamesAreTakenAsTheyAreSpelled) {
    cTemporaryFolder folder;
    cLinuxFiles files;
    cLinuxFiles exact(cLinuxFiles::eNames::Exact);
    files.WriteFile(folder.Folder() + "x.txt", "lower", false);
    EXPECT_EQ(files.Spelling(folder.Folder() + "X.TXT"), folder.Path().string() + "/x.txt");
    EXPECT_EQ(exact.ReadFile(folder.Folder() + "x.txt"), "lower");
    EXPECT_FALSE(exact.FileExists(folder.Folder() + "X.TXT"));
    EXPECT_THROW(exact.ReadFile(folder.Folder() + "X.TXT"), cFailure);
    EXPECT_THROW(exact.RemoveFile(folder.Folder() + "X.TXT"), cFailure);
    exact.WriteFile(folder.Folder() + "X.TXT", "upper", true);
    exact.RenameFile(folder.Folder() + "X.TXT", folder.Folder() + "Y.TXT");
    EXPECT_EQ(files.ReadFile(folder.Folder() + "x.txt"), "lower");
    EXPECT_EQ(files.ReadFile(folder.Folder() + "Y.TXT"), "upper");
}

// Folder with files "0", "1"... of so many times "x".
std::vector<std::string> PutMany(const cTemporaryFolder& folder, std::size_t count) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < count; ++i) {
        names.push_back(std::to_string(i));
        std::ofstream(folder.Path() / names.back()) << std::string(i % 300, 'x');
    }
    return names;
}

TEST(LinuxFiles, ManyFilesAreReadInTheOrderOfTheirNames) {
    const cLinuxFiles exact(cLinuxFiles::eNames::Exact);
    for (const std::size_t count : {0u, 1u, 500u, 501u, 3000u}) {
        cTemporaryFolder folder;
        const std::vector<std::string> names = PutMany(folder, count);
        std::size_t next = 0;
        exact.ReadFiles(folder.Folder(), names, [&](std::size_t index, const std::string& content) {
            ASSERT_EQ(index, next++);
            ASSERT_EQ(content.size(), index % 300);
        });
        EXPECT_EQ(next, count);
    }
}

TEST(LinuxFiles, AFileThatFailsEndsTheReadingInItsTurn) {
    const cLinuxFiles exact(cLinuxFiles::eNames::Exact);
    cTemporaryFolder folder;
    const std::vector<std::string> names = PutMany(folder, 2000);
    std::filesystem::remove(folder.Path() / "1234");
    std::size_t taken = 0;
    EXPECT_THROW(exact.ReadFiles(folder.Folder(), names, [&](std::size_t, const std::string&) { ++taken; }),
                 cFailure);
    EXPECT_EQ(taken, 1234u);
}

TEST(LinuxFiles, WhoeverTakesTheContentsMayEndTheReading) {
    const cLinuxFiles exact(cLinuxFiles::eNames::Exact);
    cTemporaryFolder folder;
    const std::vector<std::string> names = PutMany(folder, 2000);
    const auto stop = [](std::size_t index, const std::string&) {
        if (index == 700) throw cFailure(eFailure::Overflow, "enough");
    };
    EXPECT_THROW(exact.ReadFiles(folder.Folder(), names, stop), cFailure);
}

TEST(LinuxFiles, AnExactNameOfAFolderOrPipeIsNoFile) {
    cTemporaryFolder folder;
    const cLinuxFiles exact(cLinuxFiles::eNames::Exact);
    std::filesystem::create_directory(folder.Path() / "folder");
    ASSERT_EQ(mkfifo((folder.Path() / "pipe").c_str(), 0666), 0);
    EXPECT_THROW(exact.ReadFile(folder.Folder() + "folder"), cFailure);
    EXPECT_THROW(exact.ReadFile(folder.Folder() + "pipe"), cFailure);
}

// An editor can write twice within one tick of the file system's clock, and some tools put times back.
TEST(LinuxFiles, AnEditThatLeavesSizeAndTimeOfAFreshFileIsSeen) {
    cTemporaryFolder folder;
    cLinuxFiles files;
    const std::string path = folder.Folder() + "VigrelReceiver.INI";
    files.WriteFile(path, "[S]\r\na=1\r\n", false);
    const auto written = std::filesystem::last_write_time(folder.Path() / "VigrelReceiver.INI");
    const cIni ini(files, folder.Folder());
    EXPECT_EQ(ini.GetIniString("S", "a", ""), "1");
    std::fstream(folder.Path() / "VigrelReceiver.INI", std::ios::in | std::ios::out) << "[S]\r\na=2\r\n";
    std::filesystem::last_write_time(folder.Path() / "VigrelReceiver.INI", written);
    EXPECT_EQ(ini.GetIniString("S", "a", ""), "2");
}

TEST(LinuxFiles, ALinkToAFileIsAFile) {
    cTemporaryFolder folder;
    cLinuxFiles files;
    files.WriteFile(folder.Folder() + "real.txt", "x", false);
    std::filesystem::create_symlink(folder.Path() / "real.txt", folder.Path() / "link.txt");
    EXPECT_EQ(files.ListFiles(folder.Folder(), "link.*").size(), 1u);
}

TEST(LinuxFiles, WriteProtectionIsTakenAway) {
    cTemporaryFolder folder;
    cLinuxFiles files;
    files.WriteFile(folder.Folder() + "a.log", "x", false);
    std::filesystem::permissions(folder.Path() / "a.log", std::filesystem::perms::owner_read);
    files.SetNormalAttributes(folder.Folder() + "A.LOG");
    EXPECT_NE(
        std::filesystem::status(folder.Path() / "a.log").permissions() & std::filesystem::perms::owner_write,
        std::filesystem::perms::none);
}

}  // namespace
}  // namespace vigrel::testing
