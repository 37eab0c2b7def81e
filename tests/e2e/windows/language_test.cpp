// A first start with the delivered languages, by keyboard alone.

#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "e2e/station.h"
#include "e2e/windows/operator.h"

namespace vigrel::testing {
namespace {

// The text of an id in a delivered language.
std::string DeliveredText(const std::string& language, int id) {
    std::ifstream file(std::string(VIGREL_SHARE_DIR) + "/Vigrel_Texts." + language, std::ios::binary);
    const std::string key = std::to_string(id) + "=";
    for (std::string line; std::getline(file, line);) {
        if (!line.starts_with(key)) continue;
        if (line.back() == '\r') line.pop_back();
        return line.substr(key.size());
    }
    return {};
}

// A folder as it is after installation: the delivered texts, and no language chosen yet.
void PutDeliveredTexts(const cStation& station) {
    for (const auto& entry : std::filesystem::directory_iterator(station.Folder())) {
        std::filesystem::remove_all(entry.path());
    }
    for (const auto& entry : std::filesystem::directory_iterator(VIGREL_SHARE_DIR)) {
        if (entry.path().filename().string().starts_with("Vigrel_Texts.")) {
            std::filesystem::copy(entry.path(), station.Folder() / entry.path().filename());
        }
    }
    std::ofstream(station.Folder() / "VigrelReceiver.INI") << "[TCPIP]\r\nPort=" << station.m_Port << "\r\n";
}

TEST(FirstStart, TheLanguageIsChosenByKeyboardAndTheStationRunsInItAtOnce) {
    cStation station;
    PutDeliveredTexts(station);
    station.m_Environment = {{"QT_QPA_PLATFORM", "xcb"}, {"LC_ALL", "C.UTF-8"}, {"LANG", "C.UTF-8"}};
    station.Launch();
    const std::string window = FindWindow(station.Process(), "Vigrel - Select Language");
    ASSERT_NE(window, "") << station.StandardError();
    Press(window, {"n", "Return"});  // norsk
    EXPECT_TRUE(station.WaitForLog(DeliveredText("047", 10011))) << station.StandardError();
    const std::string ini = ReadAll(station.Folder() / "VigrelReceiver.INI");
    EXPECT_NE(ini.find("Language=047\r\n"), std::string::npos) << ini;
    EXPECT_NE(FindWindow(station.Process(), DeliveredText("047", 10000)), "");
    EXPECT_EQ(station.Stop(SIGTERM), 0);
    EXPECT_EQ(station.Log().back(), DeliveredText("047", 10020));
}

// A folder that holds nothing: the program fills it. Its port can be in use, so the start may end early.
class cFreshStation : public cStation {
  public:
    explicit cFreshStation(const std::map<std::string, std::string>& environment) {
        for (const auto& entry : std::filesystem::directory_iterator(Folder())) {
            std::filesystem::remove_all(entry.path());
        }
        m_Environment = environment;
        m_MakesConfiguration = true;
        Launch();
    }
};

// What a first start has put into the folder, by name.
std::map<std::string, std::string> Prepared(const cStation& station) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(station.Folder())) {
        const std::string name = std::filesystem::relative(entry.path(), station.Folder()).string();
        const bool ofTheRun = name.starts_with("LogFiles") || name.starts_with("stderr") ||
                              entry.path().extension() == ".lock" || entry.is_directory();
        if (!ofTheRun) files[name] = ReadAll(entry.path());
    }
    return files;
}

// The names of files that are not in both alike.
std::set<std::string> Differing(const std::map<std::string, std::string>& a,
                                const std::map<std::string, std::string>& b) {
    std::set<std::string> names;
    std::vector<std::pair<std::string, std::string>> files;
    std::set_symmetric_difference(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(files));
    for (const auto& file : files) names.insert(file.first);
    return names;
}

// Whether so many starts have come to their first line in the log, by now or soon.
bool Begin(const cStation& station, std::ptrdiff_t starts) {
    const std::string line = DeliveredText("046", 10040);
    const auto begun = [&] {
        const std::vector<std::string> log = station.Log();
        return std::count(log.begin(), log.end(), line);
    };
    for (int tries = 0; tries < 500 && begun() < starts; ++tries)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    return begun() == starts;
}

// As by two double clicks. Each took the other's files away half made.
TEST(FirstStart, SeveralAtTheSameMomentPrepareTheFolderAsOneDoes) {
    const std::map<std::string, std::string> environment{{"QT_QPA_PLATFORM", "offscreen"},
                                                         {"LC_ALL", "sv_SE.UTF-8"}};
    cFreshStation alone(environment);
    alone.ExpectStandardError();
    ASSERT_TRUE(Begin(alone, 1)) << alone.StandardError();
    const auto expected = Prepared(alone);
    for (int round = 0; round < 5; ++round) {
        cFreshStation first(environment);
        cStation second(&first), third(&first);
        first.ExpectStandardError();
        for (cStation* other : {&second, &third}) {
            other->ExpectStandardError();
            other->m_Environment = environment;
            other->m_MakesConfiguration = true;
            other->Launch();
        }
        EXPECT_TRUE(Begin(first, 3)) << first.StandardError() << second.StandardError();
        EXPECT_EQ(Differing(Prepared(first), expected), std::set<std::string>()) << round;
    }
}

TEST(FirstStart, WithoutAScreenTemplateTextsAndConfigurationAreInTheLanguageOfTheLocale) {
    cFreshStation station({{"QT_QPA_PLATFORM", "offscreen"}, {"LC_ALL", "sv_SE.UTF-8"}});
    EXPECT_TRUE(station.WaitForLog(DeliveredText("046", 10040))) << station.StandardError();
    const std::string ini = ReadAll(station.Folder() / "VigrelReceiver.ini");
    EXPECT_NE(ini.find("Language=046\r\n"), std::string::npos);
    EXPECT_NE(ini.find("ColumnText=Larm\r\n"), std::string::npos);
    EXPECT_EQ(ReadAll(station.Folder() / "Templates" / "VigrelReceiver.oni"),
              ReadAll(station.Folder() / "Templates" / "VigrelReceiver.046"));
}

TEST(FirstStart, TheChoiceOfAnotherLanguageBringsItsConfiguration) {
    cFreshStation station({{"QT_QPA_PLATFORM", "xcb"}, {"LC_ALL", "sv_SE.UTF-8"}});
    const std::string window = FindWindow(station.Process(), "Vigrel - Select Language");
    ASSERT_NE(window, "") << station.StandardError();
    Press(window, {"n", "Return"});
    EXPECT_TRUE(station.WaitForLog(DeliveredText("047", 10040))) << station.StandardError();
    const std::string ini = ReadAll(station.Folder() / "VigrelReceiver.ini");
    EXPECT_NE(ini.find("Language=047\r\n"), std::string::npos);
    EXPECT_NE(ini.find("ColumnText=Hendelsesdato\r\n"), std::string::npos);
    EXPECT_NE(ini.find("CountryFilter=Sweden\r\n"), std::string::npos);
    EXPECT_EQ(ReadAll(station.Folder() / "Templates" / "VigrelReceiver.oni"),
              ReadAll(station.Folder() / "Templates" / "VigrelReceiver.047"));
}

TEST(FirstStart, AWishedLanguageIsNotAskedFor) {
    cFreshStation station(
        {{"QT_QPA_PLATFORM", "xcb"}, {"LC_ALL", "sv_SE.UTF-8"}, {"VIGREL_LANGUAGE", "358"}});
    EXPECT_TRUE(station.WaitForLog(DeliveredText("358", 10040))) << station.StandardError();
}

// Whatever the desktop speaks: the answer's letter is that of the station's language.
TEST(LanguageOfABox, YesHasTheLetterOfTheStationsLanguage) {
    const std::map<std::string, std::string> letters{{"044", "y"}, {"045", "j"}, {"046", "j"},
                                                     {"047", "j"}, {"049", "j"}, {"358", "k"}};
    for (const auto& [language, letter] : letters) {
        cStation station;
        PutDeliveredTexts(station);
        std::ofstream(station.Folder() / "VigrelReceiver.INI", std::ios::app)
            << "[General]\r\nLanguage=" << language << "\r\n";
        station.m_Environment = {{"QT_QPA_PLATFORM", "xcb"}, {"LC_ALL", "C.UTF-8"}};
        station.Launch();
        ASSERT_TRUE(station.WaitForLog(DeliveredText(language, 10011))) << station.StandardError();
        kill(station.Process(), SIGINT);
        const std::string box = FindWindow(station.Process(), "^Vigrel Alarm Receiver$");
        ASSERT_NE(box, "") << language;
        Press(box, {"alt+" + letter});
        EXPECT_EQ(station.WaitForEnd(), 0) << language;
        EXPECT_EQ(station.Log().back(), DeliveredText(language, 10021));
    }
}

TEST(FirstStart, AWishForTheLocalesLanguageAsksNothingWhereTheLocaleNamesNone) {
    cFreshStation station({{"QT_QPA_PLATFORM", "xcb"}, {"LC_ALL", "C.UTF-8"}, {"VIGREL_LANGUAGE", "locale"}});
    EXPECT_TRUE(station.WaitForLog(DeliveredText("044", 10040))) << station.StandardError();
}

TEST(FirstStart, WithoutAChoiceTheProgramEndsWithoutAWord) {
    cStation station;
    PutDeliveredTexts(station);
    station.m_Environment = {{"QT_QPA_PLATFORM", "xcb"}, {"LC_ALL", "C.UTF-8"}};
    station.Launch();
    const std::string window = FindWindow(station.Process(), "Vigrel - Select Language");
    ASSERT_NE(window, "") << station.StandardError();
    Press(window, {"Escape"});
    EXPECT_EQ(station.WaitForEnd(), 69);
    EXPECT_TRUE(station.Log().empty());
}

TEST(FirstStart, HelpTellsSwitchesSurroundingsAndExitCodes) {
    const testing::cResult help = testing::RunProgram("vigrel-receiver", {"--help"});
    EXPECT_EQ(help.exitCode, 0);
    for (const char* word :
         {"/TOPMOST", "/DEBUG", "/MAXIMIZE", "/MINIMIZE", "/SIMULATE", "VIGREL_APPLICATION_PATH",
          "VIGREL_LANGUAGE", "\n   0  ", "\n   1  ", "\n  69  ", "\n  70  ", "\n  71  ", "\n  75  "}) {
        EXPECT_NE(help.output.find(word), std::string::npos) << word;
    }
    const testing::cResult version = testing::RunProgram("vigrel-receiver", {"--version"});
    EXPECT_TRUE(version.output.starts_with("vigrel-receiver ")) << version.output;
    EXPECT_EQ(version.exitCode, 0);
}

TEST(FirstStart, HelpIsPrintedAndNothingStarted) {
    cStation station;
    station.ExpectStandardError();
    station.Launch({"--help"});
    EXPECT_EQ(station.WaitForEnd(), 0);
    EXPECT_NE(station.StandardError().find("  69  the start was refused"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(station.Folder() / "Alarms"));
    EXPECT_FALSE(std::filesystem::exists(station.Folder() / "LogFiles"));
}

TEST(FirstStart, AStopSignalEndsAProgramThatStillAsksForItsLanguage) {
    for (const int signal : {SIGTERM, SIGINT}) {
        cStation station;
        PutDeliveredTexts(station);
        station.m_Environment = {{"QT_QPA_PLATFORM", "xcb"}, {"LC_ALL", "C.UTF-8"}};
        station.Launch();
        EXPECT_NE(FindWindow(station.Process(), "Vigrel - Select Language"), "");
        EXPECT_EQ(station.Stop(signal), 0) << signal;
        EXPECT_TRUE(station.Log().empty()) << signal;
    }
}

}  // namespace
}  // namespace vigrel::testing
