// Beginning and end of whole stations that have no display.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <fstream>
#include <map>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "e2e/station.h"
#include "support/no_threads.h"

namespace vigrel::testing {
namespace {

constexpr int kNotYet = 75;

TEST(Ending, EveryStopSignalEndsItInOrder) {
    for (const int signal : {SIGTERM, SIGHUP}) {
        cStation station;
        ASSERT_TRUE(station.Start()) << station.StandardError();
        EXPECT_EQ(station.Stop(signal), 0) << signal;
        EXPECT_EQ(station.Log().back(), "T10020") << signal;
        EXPECT_NE(ReadAll(station.Folder() / "VigrelReceiver.INI").find("Vigrel_Receiver_Main.Width="),
                  std::string::npos);
    }
}

TEST(Ending, AnInterruptIsACloseOfTheOperatorsAndItsQuestionIsTold) {
    cStation station;
    station.ExpectStandardError();
    ASSERT_TRUE(station.Start()) << station.StandardError();
    EXPECT_EQ(station.Stop(SIGINT), 0);
    EXPECT_EQ(station.Log().back(), "T10021");
    EXPECT_EQ(station.StandardError(), "vigrel-receiver: " + station.Folder().string() + "/: T10022 - Yes\n");
}

TEST(Ending, AnInterruptIsRefusedWhereTheStationMayNotBeClosed) {
    cStation station;
    station.Configure("[General]\r\nDisableShutdown=1\r\n");
    ASSERT_TRUE(station.Start()) << station.StandardError();
    for (int i = 0; i < 3; ++i) {
        kill(station.Process(), SIGINT);
        EXPECT_EQ(station.Send({"--t0", "still here"}).exitCode, 0);
    }
    EXPECT_EQ(station.AlarmFiles().size(), 3u);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
    EXPECT_EQ(station.Log().back(), "T10020");
}

// A program that nobody sees tells on standard error, once, and waits for nobody.
class Unseen : public ::testing::Test {
  protected:
    static std::string Line(const cStation& station, const std::string& text) {
        return "vigrel-receiver: " + station.Folder().string() + "/: " + text + "\n";
    }
};

TEST_F(Unseen, ASecondStartNamesTheFolder) {
    cStation first;
    ASSERT_TRUE(first.Start()) << first.StandardError();
    cStation second(&first);
    second.ExpectStandardError();
    second.Launch();
    EXPECT_EQ(second.WaitForEnd(), kRefusedStart);
    EXPECT_EQ(second.StandardError(), Line(second, "T10010"));
    EXPECT_EQ(first.Send({"--t0", "still here"}).exitCode, 0);
}

TEST_F(Unseen, ATakenPortIsNamed) {
    cStation first;
    ASSERT_TRUE(first.Start()) << first.StandardError();
    cStation second;
    second.ExpectStandardError();
    second.m_Port = first.m_Port;
    second.Launch();
    EXPECT_EQ(second.WaitForEnd(), kRefusedStart);
    EXPECT_EQ(second.StandardError(), Line(second, "T10015 (" + std::to_string(first.m_Port) + ") T10016"));
}

TEST_F(Unseen, AWarningIsToldAndTheStationStarts) {
    std::string senders = "[Senders]\r\n";
    for (int i = 0; i < 100; ++i) senders += "P" + std::to_string(i) + "=0\r\n";
    cStation station;
    station.ExpectStandardError();
    station.Configure(senders);
    EXPECT_TRUE(station.Start());
    EXPECT_EQ(station.Send({"--t0", "received"}).exitCode, 0);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
    EXPECT_EQ(station.StandardError(), Line(station, "T10025"));
}

// The next files would get their numbers: the one by which the station is told to end, for example.
TEST_F(Unseen, WithoutStandardStreamsWhatIsToldReachesNothingElse) {
    cStation station;
    std::filesystem::create_directory(station.Folder() / "VigrelReceiver.lock");
    station.m_InChild = [] {
        for (const int stream : {0, 1, 2}) close(stream);
    };
    ASSERT_TRUE(station.Start());
    EXPECT_TRUE(
        station.WaitForLog("T11003: " + station.Folder().string() + "/VigrelReceiver.lock: Is a directory"));
    EXPECT_EQ(station.Send({"--t0", "still here"}).exitCode, 0);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

TEST_F(Unseen, AReaderOfStandardErrorThatHasGoneEndsNothing) {
    cStation station;
    std::filesystem::create_directory(station.Folder() / "VigrelReceiver.lock");
    station.m_InChild = [] {
        std::array<int, 2> ends{};
        if (pipe(ends.data()) != 0 || dup2(ends[1], STDERR_FILENO) < 0) _exit(1);
        close(ends[0]);
        close(ends[1]);
    };
    ASSERT_TRUE(station.Start());
    EXPECT_TRUE(
        station.WaitForLog("T11003: " + station.Folder().string() + "/VigrelReceiver.lock: Is a directory"));
    EXPECT_EQ(station.Send({"--t0", "still here"}).exitCode, 0);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

// By the timer that drives sound and icon too, twice a second.
TEST_F(Unseen, AFolderThatCannotBeListedIsToldAtTheFirstTick) {
    cStation station;
    station.ExpectStandardError();
    std::ofstream(station.Folder() / "Alarms") << "no folder";
    ASSERT_TRUE(station.Start());
    const auto start = std::chrono::steady_clock::now();
    const auto behind = [&] { return std::chrono::steady_clock::now() - start; };
    while (station.StandardError().empty() && behind() < std::chrono::seconds(10))
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_LT(behind(), std::chrono::milliseconds(1500));
    EXPECT_EQ(station.StandardError(),
              "vigrel-receiver: T10053 (" + (station.Folder() / "Alarms").string() + "/: Not a directory)\n");
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

TEST_F(Unseen, AMissingLanguageIsTold) {
    cStation station;
    station.ExpectStandardError();
    std::filesystem::remove(station.Folder() / "Vigrel_Texts.046");
    station.Launch();
    EXPECT_EQ(station.WaitForEnd(), kRefusedStart);
    const std::string error = station.StandardError();
    EXPECT_TRUE(error.starts_with("vigrel-receiver: " + station.Folder().string() + "/: No language: "))
        << error;
    EXPECT_NE(error.find("key Language of section General in VigrelReceiver.INI"), std::string::npos)
        << error;
    EXPECT_EQ(std::count(error.begin(), error.end(), '\n'), 1) << error;
    EXPECT_TRUE(station.Log().empty());
}

TEST_F(Unseen, AFailureIsTold) {
    cStation station;
    station.ExpectStandardError();
    station.Configure("[General]\r\nMaxEvents=99999999999\r\n");
    station.Launch();
    EXPECT_EQ(station.WaitForEnd(), 70);
    const std::string error = station.StandardError();
    EXPECT_TRUE(error.starts_with("vigrel-receiver: " + station.Folder().string() + "/: Failure: ")) << error;
    EXPECT_EQ(std::count(error.begin(), error.end(), '\n'), 1) << error;
}

// Whoever looks after the station tries again; it must not hang half started.
TEST_F(Unseen, AMachineWithoutThreadsIsToldAndEndsTheStart) {
    cStation station;
    station.ExpectStandardError();
    station.m_InChild = [] {
        if (!RefuseThreads()) _exit(1);
    };
    station.Launch();
    EXPECT_EQ(station.WaitForEnd(), 70);
    EXPECT_NE(station.StandardError().find("Failure: no thread: "), std::string::npos)
        << station.StandardError();
}

TEST_F(Unseen, AlarmsPopupsAndTheirEndPrintNothing) {
    cStation station;
    station.Configure(
        "[General]\r\nViewPopupForm=1\r\nShowInTaskBar=0\r\nEventSignal=1\r\nEventPopupFormat=[T0]\r\n"
        "PopupFormTopMostCategory=Fire\r\n");
    ASSERT_TRUE(station.Start({"/TOPMOST", "/DEBUG"})) << station.StandardError();
    EXPECT_EQ(station.Send({"--count", "5", "--t2", "Fire", "--quiet"}).exitCode, 0);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
    EXPECT_EQ(station.StandardError(), "");
}

TEST(NewFiles, AreForTheUserOfTheStationAlone) {
    namespace fs = std::filesystem;
    cStation station;
    station.m_InChild = [] { umask(S_IWGRP | S_IWOTH); };
    ASSERT_TRUE(station.Start()) << station.StandardError();
    EXPECT_EQ(station.Send({"--t0", "stored"}).exitCode, 0);
    const std::vector<fs::path> alarms = station.AlarmFiles();
    ASSERT_EQ(alarms.size(), 1u);
    const fs::path log = fs::directory_iterator(station.Folder() / "LogFiles")->path();
    for (const fs::path& made : {alarms[0], log, station.Folder() / "VigrelReceiver.lock",
                                 alarms[0].parent_path(), log.parent_path()}) {
        const fs::perms others =
            fs::status(made).permissions() & (fs::perms::group_all | fs::perms::others_all);
        EXPECT_EQ(others, fs::perms::none) << made;
    }
}

TEST(Sizes, BeyondEveryScreenKeepNoAlarmWaiting) {
    cStation station;
    station.Configure(
        "[General]\r\nViewPopupForm=1\r\nVigrel_Receiver_Main.Width=1e9\r\nVigrel_Receiver_Main.Height="
        "1e9\r\n"
        "[PopupForm]\r\nX_Size=40000\r\nY_Size=40000\r\n");
    ASSERT_TRUE(station.Start()) << station.StandardError();
    EXPECT_EQ(station.Send({"--count", "5", "--quiet"}).exitCode, 0);
    EXPECT_EQ(station.AlarmFiles().size(), 5u);
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

TEST(Display, OneThatDoesNotAnswerEndsTheProgramWithTheReason) {
    cStation station;
    station.ExpectStandardError();
    const std::vector<std::map<std::string, std::string>> displays{
        {{"DISPLAY", ":4711"}, {"WAYLAND_DISPLAY", ""}},
        {{"DISPLAY", ""}, {"WAYLAND_DISPLAY", "wayland-4711"}},
        {{"DISPLAY", ":4711"}, {"WAYLAND_DISPLAY", "wayland-4711"}},
        {{"DISPLAY", ":4711"}, {"WAYLAND_DISPLAY", ""}, {"QT_QPA_PLATFORM", "xcb"}},
        {{"DISPLAY", ":99"}, {"WAYLAND_DISPLAY", ""}, {"QT_QPA_PLATFORM", "name4711"}},
        {{"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}, {"QT_QPA_PLATFORM", "name4711"}}};
    std::vector<std::pair<std::map<std::string, std::string>, bool>> starts;
    for (const auto& display : displays) {
        for (const bool service : {false, true}) starts.emplace_back(display, service);
    }
    for (const auto& [display, service] : starts) {
        station.m_Environment = {{"QT_QPA_PLATFORM", ""},
                                 {"NOTIFY_SOCKET", service ? "/nowhere/notify" : ""}};
        for (const auto& [name, value] : display) station.m_Environment[name] = value;
        std::filesystem::remove(station.Folder() / "stderr.txt");
        station.Launch();
        // One that the session names may come, and a service manager tries again; a platform that the toolkit
        // hasn't got will not.
        const bool may = service && station.m_Environment["QT_QPA_PLATFORM"] != "name4711";
        EXPECT_EQ(station.WaitForEnd(), may ? kNotYet : kRefusedStart);
        const std::string error = station.StandardError();
        EXPECT_TRUE(error.starts_with("vigrel-receiver: No display can be opened: ")) << error;
        EXPECT_NE(error.find("4711"), std::string::npos) << error;
        EXPECT_TRUE(station.Log().empty());
    }
}

}  // namespace
}  // namespace vigrel::testing
