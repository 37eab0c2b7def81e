#include "adapters/linux/linux_files.h"

#include "contract/files_contract.h"
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
