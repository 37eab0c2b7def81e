#include "adapters/linux/application_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "adapters/linux/linux_files.h"
#include "common/failure.h"
#include "common/path_text.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

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
    Put(other, "ReceiverTypes.txt", "1; SMS");
    Put(other, "ReceiverType_SMS.INI", "[S1]");
    const std::string folder = data.Path().string() + "/deep/VigrelReceiver\\";
    FillApplicationFolder(files, folder, other.Path().string());
    EXPECT_EQ(files.ReadFile(folder + "Templates\\VigrelReceiver.oni"), "[General]");
    EXPECT_EQ(files.ReadFile(folder + "Vigrel_Texts.044"), "0=English");
    EXPECT_EQ(files.ReadFile(folder + "Sounds\\alarm.wav"), "RIFF");
    EXPECT_EQ(files.ReadFile(folder + "ReceiverTypes.txt"), "1; SMS");
    EXPECT_EQ(files.ReadFile(folder + "ReceiverType_SMS.INI"), "[S1]");
}

// A disk that refuses every look.
class cBlindFiles : public cLinuxFiles {
  public:
    explicit cBlindFiles(std::string folder) : m_Folder(std::move(folder)) {}
    bool FileExists(std::string_view) const override { return false; }
    std::string ReadFile(std::string_view path) const override {
        if (path.starts_with(m_Folder)) throw cFailure(eFailure::InputOutput, std::string(path));
        return cLinuxFiles::ReadFile(path);
    }

  private:
    std::string m_Folder;
};

TEST_F(ApplicationFolder, WhatCannotBeLookedForIsNotReplaced) {
    Put(other, "Sounds/alarm.wav", "delivered");
    Put(data, "Sounds/alarm.wav", "the plant's");
    const std::string folder = data.Path().string() + "\\";
    cBlindFiles blind(folder);
    FillApplicationFolder(blind, folder, other.Path().string());
    EXPECT_EQ(files.ReadFile(folder + "Sounds\\alarm.wav"), "the plant's");
}

struct cEnd {};

// A program that ends at one of its changes to the disk.
class cEndingFiles : public cLinuxFiles {
  public:
    explicit cEndingFiles(int changes) : m_Left(changes) {}
    void WriteFile(std::string_view path, std::string_view bytes, bool sync) override {
        Change();
        cLinuxFiles::WriteFile(path, bytes, sync);
    }
    void WriteFileLike(std::string_view path, std::string_view bytes, std::string_view like) override {
        Change();
        cLinuxFiles::WriteFileLike(path, bytes, like);
    }
    void RenameFile(std::string_view from, std::string_view to) override {
        Change();
        cLinuxFiles::RenameFile(from, to);
    }
    void RemoveFile(std::string_view path) override {
        Change();
        cLinuxFiles::RemoveFile(path);
    }

  private:
    void Change() {
        if (m_Left-- == 0) throw cEnd();
    }
    int m_Left;
};

TEST_F(ApplicationFolder, WhatAnEndLeftHalfFilledIsFilledByTheNextStart) {
    const std::vector<std::string> delivered{"Vigrel_Texts.044", "Vigrel_Texts.046", "ReceiverTypes.txt",
                                             "Templates/VigrelReceiver.044", "Sounds/alarm.wav"};
    for (const std::string& name : delivered) Put(other, name, name);
    Put(program, "VigrelReceiver.INI", "mine");
    Put(program, "ColourRules.txt", "mine");
    bool ended = true;
    for (int changes = 0; ended; ++changes) {
        const std::string folder = data.Path().string() + "/" + std::to_string(changes) + "\\";
        cEndingFiles ending(changes);
        ended = false;
        try {
            FillApplicationFolder(ending, folder, other.Path().string(), program.Path().string());
        } catch (const cEnd&) {
            ended = true;
        }
        EXPECT_EQ(FillApplicationFolder(files, folder, other.Path().string(), program.Path().string()), ended)
            << changes;
        for (const std::string& name : delivered) EXPECT_TRUE(files.FileExists(folder + name)) << changes;
        EXPECT_EQ(files.ReadFile(folder + "VigrelReceiver.INI"), "mine");
        EXPECT_EQ(files.ReadFile(folder + "ColourRules.txt"), "mine");
        EXPECT_EQ(
            std::distance(std::filesystem::directory_iterator(data.Path() / std::to_string(changes)), {}), 7);
    }
}

TEST_F(ApplicationFolder, TheFolderMayBeNamedInAnyScript) {
    for (const char* name : {"иван", "Łódź", "日本", "a\\b", "Kn\xE4pp", "?"}) {
        const std::filesystem::path native = data.Path() / name;
        hints.variable = PathText(native.string());
        const std::string folder = FindApplicationFolder(hints);
        FillApplicationFolder(files, folder, "");
        files.WriteFile(folder + "VigrelReceiver.INI", "[General]", false);
        EXPECT_TRUE(std::filesystem::exists(native / "VigrelReceiver.INI")) << native;
        EXPECT_EQ(files.ReadFile(folder + "VIGRELRECEIVER.ini"), "[General]");
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(data.Path()), {}), 6);
}

TEST_F(ApplicationFolder, AFailureNamesTheFolderInItsOwnScript) {
    Put(other, "file", "");
    const std::string native = (other.Path() / "file" / "иван").string();
    const auto failure = CatchFailure([&] { FillApplicationFolder(files, PathText(native) + "\\", ""); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(WithPathsToUtf8(failure->what()),
              "The application folder " + native + "/ can't be made: Not a directory");
}

TEST_F(ApplicationFolder, AFolderInUseIsLeftAlone) {
    Put(other, "Templates/VigrelReceiver.oni", "new");
    Put(other, "Vigrel_Texts.044", "new");
    Put(data, "VigrelReceiver.ini", "mine");
    FillApplicationFolder(files, data.Folder(), other.Path().string());
    EXPECT_FALSE(files.FileExists(data.Folder() + "Vigrel_Texts.044"));
    EXPECT_EQ(files.ReadFile(data.Folder() + "VigrelReceiver.INI"), "mine");
}

TEST_F(ApplicationFolder, AFormerFoldersConfigurationIsTakenOverAndItsProgramsAreNot) {
    Put(program, "vigrelreceiver.ini", "mine");
    Put(program, "ColourRules.txt", "rules");
    Put(program, "Calendar.cal", "days");
    Put(program, "Vigrel_Texts.046", "changed");
    Put(program, "Profiles/Profile_0001.dat", "profile");
    Put(program, "vigrel-receiver", "program");
    Put(program, "lib/libx.so", "program");
    Put(program, "Alarms/A0000001.alm", "alarm");
    Put(program, "LogFiles/20260315.Log", "log");
    Put(other, "Vigrel_Texts.046", "delivered");
    Put(other, "Vigrel_Texts.044", "delivered");
    const std::string folder = data.Path().string() + "/VigrelReceiver\\";
    EXPECT_TRUE(FillApplicationFolder(files, folder, other.Path().string(), program.Path().string()));
    EXPECT_EQ(files.ReadFile(folder + "VigrelReceiver.INI"), "mine");
    EXPECT_EQ(files.ReadFile(folder + "ColourRules.txt"), "rules");
    EXPECT_EQ(files.ReadFile(folder + "Calendar.cal"), "days");
    EXPECT_EQ(files.ReadFile(folder + "Profiles\\Profile_0001.dat"), "profile");
    EXPECT_EQ(files.ReadFile(folder + "Vigrel_Texts.046"), "changed");
    EXPECT_EQ(files.ReadFile(folder + "Vigrel_Texts.044"), "delivered");
    for (const char* left : {"vigrel-receiver", "lib", "Alarms", "LogFiles"}) {
        EXPECT_FALSE(std::filesystem::exists(data.Path() / "VigrelReceiver" / left)) << left;
    }
    // Later on it is the station's own.
    Put(program, "vigrelreceiver.ini", "newer");
    EXPECT_FALSE(FillApplicationFolder(files, folder, other.Path().string(), program.Path().string()));
    EXPECT_EQ(files.ReadFile(folder + "VigrelReceiver.INI"), "mine");
}

TEST_F(ApplicationFolder, ProgramsAreNotCopied) {
    Put(other, "Templates/VigrelReceiver.oni", "[General]");
    Put(other, "Vigrel_Texts.044", "0=English");
    Put(other, "vigrel-receiver", "program");
    Put(other, "README.txt", "x");
    EXPECT_TRUE(FillApplicationFolder(files, data.Folder(), other.Path().string()));
    EXPECT_FALSE(files.FileExists(data.Folder() + "vigrel-receiver"));
    EXPECT_EQ(files.ListFiles(data.Folder(), "*"), std::vector<std::string>{"Vigrel_Texts.044"});
    EXPECT_FALSE(FillApplicationFolder(files, data.Folder(), other.Path().string()));
}

TEST_F(ApplicationFolder, AConfigurationThatCannotBeReadIsNotTakenForAnEmptyOne) {
    EXPECT_EQ(WhyNoConfiguration(files, other.Folder()), std::nullopt);
    const std::filesystem::path ini = other.Path() / "vigrelreceiver.INI";
    const auto whyNot = [&](const std::string& reason) {
        EXPECT_EQ(WhyNoConfiguration(files, other.Folder()),
                  "The configuration can't be read: " + ini.string() + ": " + reason);
        std::filesystem::remove(ini);
    };
    ASSERT_EQ(mkfifo(ini.c_str(), 0666), 0);
    whyNot("no ordinary file");
    std::filesystem::create_directory(ini);
    whyNot("no ordinary file");
    std::filesystem::create_symlink("nowhere", ini);
    whyNot("No such file or directory");
    Put(other, "vigrelreceiver.INI", "");
    std::filesystem::resize_file(ini, std::uintmax_t{65} << 20);
    whyNot("larger than 64 MB");
    Put(other, "vigrelreceiver.INI", "[General]");
    EXPECT_EQ(WhyNoConfiguration(files, other.Folder()), std::nullopt);
}

TEST_F(ApplicationFolder, WhatIsNoFileDoesNotHideTheConfiguration) {
    Put(other, "VigrelReceiver.ini", "mine");
    for (const char* name : {"VigrelReceiver.INI", "VIGRELRECEIVER.ini", "vigrelreceiver.INI"}) {
        std::filesystem::create_directory(other.Path() / name);
    }
    ASSERT_EQ(mkfifo((other.Path() / "vigrelreceiver.ini").c_str(), 0666), 0);
    EXPECT_EQ(WhyNoConfiguration(files, other.Folder()), std::nullopt);
    EXPECT_EQ(files.ReadFile(other.Folder() + "VigrelReceiver.INI"), "mine");
    EXPECT_FALSE(FillApplicationFolder(files, other.Folder(), ""));
}

// Whether the call is true for a user who owns nothing here.
bool AsStranger(const std::function<bool()>& call) {
    constexpr uid_t kNobody = 65534;
    const pid_t process = fork();
    if (process == 0) {
        // Whoever isn't root is no stranger to the test's folders; their mode keeps him out all the same.
        static_cast<void>(geteuid() == 0 && setuid(kNobody) != 0);
        _exit(call() ? 1 : 0);
    }
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 1;
}

TEST_F(ApplicationFolder, APortableInstallationThatCannotBeWrittenSaysWhereTheFilesAre) {
    EXPECT_EQ(WhyElsewhere(hints), std::nullopt);
    Put(program, "Templates/VigrelReceiver.oni", "[General]");
    EXPECT_EQ(WhyElsewhere(hints), std::nullopt);
    EXPECT_EQ(FormerFolder(hints), "");
    std::filesystem::permissions(program.Path(), std::filesystem::perms{0555});
    const std::string expected = program.Path().string() +
                                 " can't be written. The station keeps its files in " + data.Path().string() +
                                 "/VigrelReceiver/";
    EXPECT_TRUE(AsStranger([&] { return WhyElsewhere(hints) == expected; }));
    EXPECT_TRUE(AsStranger([&] { return FormerFolder(hints) == program.Path().string(); }));
    hints.variable = other.Path().string();
    EXPECT_TRUE(AsStranger([&] { return WhyElsewhere(hints) == std::nullopt; }));
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
}  // namespace vigrel::testing
