// The real program, run as a user runs it, on a folder of its own.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "report/written_station.h"
#include "support/tool_run.h"

namespace vigrel::report {
namespace {

namespace fs = std::filesystem;

class VigrelReport : public ::testing::Test, protected vigrel::testing::cToolFolder {
  protected:
    using cToolFolder::Run;
    VigrelReport() : cToolFolder(VIGREL_REPORT) {
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
};

TEST_F(VigrelReport, WritesAPageByTheWordsOfTheInstallationAndChangesNothing) {
    const fs::path log = m_Folder.Path() / "App/LogFiles/20260601.Log";
    fs::permissions(log, fs::perms::owner_read);
    const auto before = fs::last_write_time(log);
    EXPECT_EQ(Run("--from 2026-06-01 --to 2026-06-01 --html page.html App").exitCode, 0);
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
    EXPECT_EQ(Run("--from 2026-06-01 --to 2026-06-01 --csv tables --json App").exitCode, 0);
    EXPECT_NE(Content("out.txt").find("\"alarms\": 23"), std::string::npos);
    EXPECT_EQ(std::distance(fs::directory_iterator(m_Folder.Path() / "tables"), {}), 18);
    EXPECT_EQ(Run("--from 2026-06-01 --to 2026-06-01 App").exitCode, 0);
    EXPECT_NE(Content("out.txt").find("Alarmbericht: Mill"), std::string::npos);
}

TEST_F(VigrelReport, TellsWhatIsWrong) {
    EXPECT_EQ(RunTelling("--jsn App").exitCode, 2);
    EXPECT_EQ(Content("errors.txt"),
              "vigrel-report: the option --jsn is not known\nTry vigrel-report --help\n");
    EXPECT_EQ(RunTelling("Nowhere").exitCode, 1);
    EXPECT_NE(Content("errors.txt").find("Nowhere/: no station's folder"), std::string::npos);
    EXPECT_EQ(RunTelling("--html missing/page.html App").exitCode, 1);
    EXPECT_NE(Content("errors.txt").find("missing/page.html"), std::string::npos);
    EXPECT_EQ(Run("--help").exitCode, 0);
    EXPECT_NE(Content("out.txt").find("Usage:"), std::string::npos);
}

}  // namespace
}  // namespace vigrel::report
