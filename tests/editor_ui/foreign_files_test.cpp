// What has the name of a file of the station and is none: told with its reason, and never waited for.

#include <sys/stat.h>

#include <filesystem>

#include "adapters/linux/linux_files.h"
#include "editor_ui/page_fixture.h"
#include "editor_ui/window/definitions_window.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

namespace fs = std::filesystem;

class ForeignFiles : public PageTest {
  protected:
    ForeignFiles() {
        fs::create_directory(Native("Receivers"));
        fs::create_directory(Native("Profiles"));
        m_RealWindow.show();
    }
    fs::path Native(const std::string& name) const { return m_Real.Path() / name; }
    void MakePipe(const std::string& name) { ASSERT_EQ(mkfifo(Native(name).c_str(), 0666), 0); }
    QString Opened(const char* name) {
        EXPECT_FALSE(m_RealWindow.OpenFile(QString::fromStdString(Native(name).string()))) << name;
        return std::exchange(m_Prompts.m_Asked, {});
    }

    cTemporaryFolder m_Real;
    cLinuxFiles m_RealFiles;
    cIni m_RealIni{m_RealFiles, m_Real.Folder()};
    cStationDefinitions m_RealStation{m_RealFiles, m_Clock, m_Random, m_Texts, m_RealIni};
    cEditorServices m_RealServices{m_RealFiles,
                                   m_Clock,
                                   m_RealIni,
                                   m_Forms,
                                   [](std::int32_t) { return std::string(); },
                                   m_Prompts,
                                   m_Settings,
                                   cDayTypeNames(m_RealIni, m_Forms),
                                   cDayTypeImages(m_RealIni),
                                   m_RealStation};
    cDefinitionsWindow m_RealWindow{m_RealServices};
};

TEST_F(ForeignFiles, WithTheNameOfADefinitionHaveARowThatSaysWhyTheyCantBeRead) {
    MakePipe("Receivers/Receiver_0007.dat");
    fs::create_directory(Native("Receivers/receiver_0099.dat"));
    fs::create_symlink("/dev/zero", Native("Receivers/Receiver_0009.dat"));
    fs::create_symlink("nowhere", Native("Receivers/Receiver_0010.dat"));
    // No name of a definition.
    fs::create_directory(Native("Receivers/Receiver_00AB.dat"));
    m_RealWindow.ShowReceivers();
    const auto row = [this](const std::string& name, const std::string& reason) {
        return name + " | " + m_Real.Folder() + "Receivers\\" + name + ": " + reason + " | \n";
    };
    EXPECT_EQ(Rows(*m_RealWindow.CurrentPage()),
              row("Receiver_0007.dat", "no ordinary file") + row("Receiver_0009.dat", "no ordinary file") +
                  row("Receiver_0010.dat", "there is no such file or folder") +
                  row("receiver_0099.dat", "no ordinary file"));
}

TEST_F(ForeignFiles, WithTheNameOfADefinitionAreNoticedAtTheNextLook) {
    m_RealWindow.ShowProfiles();
    EXPECT_EQ(Rows(*m_RealWindow.CurrentPage()), "");
    MakePipe("Profiles/Profile_0001.dat");
    m_RealWindow.ShowReceivers();
    m_RealWindow.ShowProfiles();
    EXPECT_EQ(Rows(*m_RealWindow.CurrentPage()).substr(0, 17), "Profile_0001.dat ");
    fs::remove(Native("Profiles/Profile_0001.dat"));
    m_RealWindow.ShowReceivers();
    m_RealWindow.ShowProfiles();
    EXPECT_EQ(Rows(*m_RealWindow.CurrentPage()), "");
}

TEST_F(ForeignFiles, InPlaceOfASheetAreToldAndNotOpened) {
    for (const char* name : {"week.sch", "year.cal", "ColourRules.txt", "OwnHolidays.txt"}) {
        MakePipe(name);
        EXPECT_TRUE(Opened(name).contains("no ordinary file")) << name;
        fs::remove(Native(name));
        fs::create_directory(Native(name));
        EXPECT_TRUE(Opened(name).contains("no ordinary file")) << name;
        fs::remove(Native(name));
    }
}

}  // namespace
}  // namespace vigrel::testing
