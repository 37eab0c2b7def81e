// The real program, run as a user runs it, on a folder of its own.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "report/written_station.h"
#include "support/temporary_folder.h"

namespace vigrel::report {
namespace {

namespace fs = std::filesystem;

class VigrelReport : public ::testing::Test {
  protected:
    VigrelReport() {
        testing::cFakeFiles files;
        testing::cWrittenStation station(files, "/App/", "049");
        const WallTime day = testing::Wall(2026, 6, 1);
        station.Start(day);
        for (int hour = 1; hour < 24; ++hour)
            station.Active(day + hour * 3600,
                           "L\xFC"
                           "fter (Dach/Technik//)");
        station.Finish();
        for (const std::string& path : files.AllPaths()) {
            if (path.find("Vigrel_Texts") != std::string::npos) continue;  // those of the installation do
            const fs::path target = m_Folder.Path() / path.substr(1);
            fs::create_directories(target.parent_path());
            std::ofstream(target, std::ios::binary) << files.ReadFile(path);
        }
    }
    std::string Content(const std::string& name) const {
        std::ifstream file(m_Folder.Path() / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    int Run(const std::string& arguments) const {
        const std::string command = "cd '" + m_Folder.Path().string() + "' && " VIGREL_REPORT " " +
                                    arguments + " >out.txt 2>errors.txt";
        return WEXITSTATUS(std::system(command.c_str()));
    }
    vigrel::testing::cTemporaryFolder m_Folder;
};

TEST_F(VigrelReport, WritesAPageByTheWordsOfTheInstallationAndChangesNothing) {
    const fs::path log = m_Folder.Path() / "App/LogFiles/20260601.Log";
    fs::permissions(log, fs::perms::owner_read);
    const auto before = fs::last_write_time(log);
    EXPECT_EQ(Run("--from 2026-06-01 --to 2026-06-01 --html page.html App"), 0);
    EXPECT_EQ(Content("errors.txt"), "");
    EXPECT_NE(Content("page.html").find("<html lang=\"de\">"), std::string::npos);
    EXPECT_NE(Content("page.html")
                  .find("L\xC3\xBC"
                        "fter, Dach"),
              std::string::npos);
    EXPECT_EQ(fs::last_write_time(log), before);
    EXPECT_EQ(std::distance(fs::directory_iterator(m_Folder.Path() / "App"), {}), 2);
}

TEST_F(VigrelReport, WritesTablesJsonAndText) {
    fs::create_directory(m_Folder.Path() / "tables");
    EXPECT_EQ(Run("--from 2026-06-01 --to 2026-06-01 --csv tables --json App"), 0);
    EXPECT_NE(Content("out.txt").find("\"alarms\": 23"), std::string::npos);
    EXPECT_EQ(std::distance(fs::directory_iterator(m_Folder.Path() / "tables"), {}), 16);
    EXPECT_EQ(Run("--from 2026-06-01 --to 2026-06-01 App"), 0);
    EXPECT_NE(Content("out.txt").find("Alarmbericht: Mill"), std::string::npos);
}

TEST_F(VigrelReport, TellsWhatIsWrong) {
    EXPECT_EQ(Run("--jsn App"), 2);
    EXPECT_EQ(Content("errors.txt"),
              "vigrel-report: the option --jsn is not known\nTry vigrel-report --help\n");
    EXPECT_EQ(Run("Nowhere"), 1);
    EXPECT_NE(Content("errors.txt").find("Nowhere/: no station's folder"), std::string::npos);
    EXPECT_EQ(Run("--html missing/page.html App"), 1);
    EXPECT_NE(Content("errors.txt").find("missing/page.html"), std::string::npos);
    EXPECT_EQ(Run("--help"), 0);
    EXPECT_NE(Content("out.txt").find("Usage:"), std::string::npos);
}

}  // namespace
}  // namespace vigrel::report
