#include "adapters/linux/application_folder.h"

#include <gtest/gtest.h>

#include "adapters/linux/linux_files.h"
#include "common/failure.h"
#include "support/temporary_folder.h"

namespace vigrel {
namespace {

using testing::cTemporaryFolder;

class ApplicationFolder : public ::testing::Test {
  protected:
    ApplicationFolder() {
        hints.programFolder = program.Path().string();
        hints.userDataFolder = data.Path().string();
    }
    void Put(const cTemporaryFolder& folder, const std::string& name, const std::string& content) {
        std::filesystem::create_directories((folder.Path() / name).parent_path());
        files.WriteFile((folder.Path() / name).string(), content, false);
    }
    cTemporaryFolder program, data, other;
    cFolderHints hints;
    cLinuxFiles files;
};

TEST_F(ApplicationFolder, TheVariableComesFirst) {
    Put(program, "Templates/VigrelReceiver.oni", "");
    hints.variable = other.Path().string();
    EXPECT_EQ(FindApplicationFolder(hints), other.Path().string() + "\\");
    hints.variable = other.Path().string() + "/";
    EXPECT_EQ(FindApplicationFolder(hints), other.Path().string() + "\\");
}

TEST_F(ApplicationFolder, ARelativeVariableIsMadeAbsolute) {
    hints.variable = "station";
    EXPECT_EQ(FindApplicationFolder(hints), (std::filesystem::current_path() / "station").string() + "\\");
}

TEST_F(ApplicationFolder, AProgramFolderWithTemplatesOrConfigurationIsAPortableInstallation) {
    EXPECT_EQ(FindApplicationFolder(hints), data.Path().string() + "/VigrelReceiver\\");
    Put(program, "vigrelreceiver.ini", "");
    EXPECT_EQ(FindApplicationFolder(hints), program.Path().string() + "\\");
    hints.programFolder = other.Path().string();
    Put(other, "templates/x", "");
    EXPECT_EQ(FindApplicationFolder(hints), other.Path().string() + "\\");
}

TEST_F(ApplicationFolder, AFreshFolderIsFilledFromTheInstallation) {
    Put(other, "Templates/VigrelReceiver.oni", "[General]");
    Put(other, "Vigrel_Texts.044", "0=English");
    Put(other, "Sounds/alarm.wav", "RIFF");
    const std::string folder = data.Path().string() + "/deep/VigrelReceiver\\";
    FillApplicationFolder(files, folder, other.Path().string());
    EXPECT_EQ(files.ReadFile(folder + "Templates\\VigrelReceiver.oni"), "[General]");
    EXPECT_EQ(files.ReadFile(folder + "Vigrel_Texts.044"), "0=English");
    EXPECT_EQ(files.ReadFile(folder + "Sounds\\alarm.wav"), "RIFF");
}

TEST_F(ApplicationFolder, AFolderInUseIsLeftAlone) {
    Put(other, "Templates/VigrelReceiver.oni", "new");
    Put(other, "Vigrel_Texts.044", "new");
    Put(data, "VigrelReceiver.ini", "mine");
    FillApplicationFolder(files, data.Folder(), other.Path().string());
    EXPECT_FALSE(files.FileExists(data.Folder() + "Vigrel_Texts.044"));
    EXPECT_EQ(files.ReadFile(data.Folder() + "VigrelReceiver.INI"), "mine");
}

TEST_F(ApplicationFolder, WithoutAnInstallationTheFolderIsMadeEmpty) {
    FillApplicationFolder(files, other.Path().string() + "/fresh\\", "");
    EXPECT_TRUE(std::filesystem::is_directory(other.Path() / "fresh"));
}

TEST_F(ApplicationFolder, AFolderThatCannotBeMadeIsAFailureWithTheFolderAndTheReason) {
    Put(other, "file", "");
    const std::string folder = (other.Path() / "file" / "station").string();
    const auto failure = CatchFailure([&] { FillApplicationFolder(files, folder + "\\", ""); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), eFailure::PathAccess);
    EXPECT_EQ(std::string(failure->what()),
              "The application folder " + folder + "/ can't be made: Not a directory");
}

TEST_F(ApplicationFolder, AFileInPlaceOfTheFolderIsAFailure) {
    Put(other, "file", "");
    EXPECT_THROW(FillApplicationFolder(files, (other.Path() / "file").string() + "\\", ""), cFailure);
}

TEST_F(ApplicationFolder, TheInstallationLiesBesideTheProgramOrUnderItsPrefix) {
    EXPECT_EQ(FindInstalledFolder((program.Path() / "bin").string()), "");
    Put(program, "share/vigrel-receiver/Templates/x", "");
    EXPECT_EQ(FindInstalledFolder((program.Path() / "bin").string()),
              (program.Path() / "share/vigrel-receiver").string());
    Put(other, "Templates/x", "");
    EXPECT_EQ(FindInstalledFolder(other.Path().string()), other.Path().string());
}

}  // namespace
}  // namespace vigrel
