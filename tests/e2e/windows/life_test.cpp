// Beginning and end of stations on a screen: what their boxes hold up, and what becomes of them without it.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <fstream>
#include <thread>

#include "e2e/station.h"
#include "e2e/windows/operator.h"
#include "support/child_process.h"
#include "x11/x_server.h"

namespace vigrel::testing {
namespace {

// Three boxes of the start, left standing for longer than anything in the receiver waits: over a midnight,
// and beyond the longest silence of a sender.
TEST(BoxesLeftStanding, NoLogGoesAndNoSenderIsMissed) {
    cStation running;
    running.Configure("[General]\r\nKeepForDays=365\r\n");
    ASSERT_TRUE(running.Start()) << running.StandardError();
    const std::filesystem::path old = running.Folder() / "LogFiles" / "20260101.Log";
    std::ofstream(old) << "old";
    const std::size_t alarms = running.AlarmFiles().size();

    cStation second(&running);
    OnScreen(second);
    second.m_Environment["TZ"] = cZoneBeforeMidnight(15).m_Name;
    second.Launch();
    const std::string secondBox = FindWindow(second.Process(), "^Vigrel Alarm Receiver$");
    ASSERT_NE(secondBox, "");

    cStation withoutPort;
    withoutPort.m_Port = running.m_Port;
    withoutPort.Configure("[General]\r\nViewPopupForm=1\r\n[Senders]\r\nPLC1=1\r\n");
    OnScreen(withoutPort);
    withoutPort.Launch();
    const std::string portBox = FindWindow(withoutPort.Process(), "^Vigrel Alarm Receiver$");
    ASSERT_NE(portBox, "");

    cStation withTooMany;
    std::string senders = "[Senders]\r\n";
    for (int i = 0; i < 100; ++i) senders += "P" + std::to_string(i) + "=1\r\n";
    withTooMany.Configure(senders);
    OnScreen(withTooMany);
    withTooMany.Launch();
    ASSERT_NE(FindWindow(withTooMany.Process(), "^Vigrel Alarm Receiver$"), "");

    std::this_thread::sleep_for(std::chrono::seconds(75));
    EXPECT_TRUE(std::filesystem::exists(old));
    EXPECT_EQ(running.AlarmFiles().size(), alarms);
    EXPECT_TRUE(withoutPort.AlarmFiles().empty());
    EXPECT_TRUE(withTooMany.AlarmFiles().empty());
    for (cStation* station : {&second, &withoutPort, &withTooMany}) EXPECT_EQ(station->Stop(SIGTERM), 0);
    EXPECT_TRUE(std::filesystem::exists(old));
    EXPECT_EQ(running.Stop(SIGTERM), 0);
}

TEST(BoxesLeftStanding, AnInterruptAsksItsQuestionOnTheScreen) {
    cStation station;
    OnScreen(station);
    ASSERT_TRUE(station.Start()) << station.StandardError();
    ASSERT_NE(FindWindow(station.Process(), "T10000"), "");
    kill(station.Process(), SIGINT);
    const std::string box = FindWindow(station.Process(), "^Vigrel Alarm Receiver$");
    ASSERT_NE(box, "");
    // Alarms are received while it stands.
    EXPECT_EQ(station.Send({"--t0", "meanwhile"}).exitCode, 0);
    Press(box, {"alt+j"});  // ja
    EXPECT_EQ(station.WaitForEnd(), 0);
    EXPECT_EQ(station.Log().back(), "T10021");
}

// A box over the box would have to be answered first, whatever the one below was answered.
TEST(BoxesLeftStanding, ASecondInterruptAsksNoSecondQuestion) {
    cStation station;
    OnScreen(station);
    ASSERT_TRUE(station.Start()) << station.StandardError();
    ASSERT_NE(FindWindow(station.Process(), "T10000"), "");
    kill(station.Process(), SIGINT);
    const std::string box = FindWindow(station.Process(), "^Vigrel Alarm Receiver$");
    ASSERT_NE(box, "");
    for (int i = 0; i < 3; ++i) {
        kill(station.Process(), SIGINT);
        EXPECT_EQ(station.Send({"--t0", "meanwhile"}).exitCode, 0);
    }
    Press(box, {"alt+j"});  // ja
    EXPECT_EQ(station.WaitForEnd(), 0);
    EXPECT_EQ(station.Log().back(), "T10021");
}

// In twips; none is less than any.
int StoredWidth(const cStation& station) {
    const std::string ini = ReadAll(station.Folder() / "VigrelReceiver.INI");
    const std::string key = "Vigrel_Receiver_Main.Width=";
    const std::size_t at = ini.find(key);
    return at == std::string::npos ? -1 : std::stoi(ini.substr(at + key.size()));
}

// The screen is 1280 pixels wide, of 15 twips each; by design the window takes 8000 twips.
constexpr int kNearlyTheScreen = 1200 * 15;

TEST(MaximisedStart, SurvivesItsMinimisingAndTheStoredSizeIsTheLargeOne) {
    cStation station;
    OnScreen(station);
    ASSERT_TRUE(station.Start({"/MAXIMIZE", "/MINIMIZE"})) << station.StandardError();
    // The first activation makes an icon of it and shows the about box.
    std::this_thread::sleep_for(std::chrono::seconds(2));
    EXPECT_EQ(station.Stop(SIGTERM), 0);
    EXPECT_GT(StoredWidth(station), kNearlyTheScreen);
}

// Hidden it has no window on the screen that could tell its size.
TEST(MaximisedStart, SurvivesItsHidingAsAnIconToo) {
    const cChildProcess tray({"trayer", "--edge", "bottom", "--align", "right", "--widthtype", "request"});
    ASSERT_EQ(std::system("timeout 20 xdotool search --sync --onlyvisible --class trayer >/dev/null 2>&1"),
              0);
    cStation station;
    station.Configure("[General]\r\nShowInTaskBar=0\r\n");
    OnScreen(station);
    ASSERT_TRUE(station.Start({"/MAXIMIZE", "/MINIMIZE"})) << station.StandardError();
    std::this_thread::sleep_for(std::chrono::seconds(2));
    EXPECT_EQ(FindWindow(station.Process(), "^T10000 .* - Version", 0.5), "");
    EXPECT_FALSE(station.WaitForLog("T11006", 0.1));
    EXPECT_EQ(station.Stop(SIGTERM), 0);
    EXPECT_GT(StoredWidth(station), kNearlyTheScreen);
}

TEST(LostDisplay, TheLogSaysSoAndTheCodeLetsAServiceStartItAgain) {
    cStation station;
    station.ExpectStandardError();
    OnScreen(station);
    const char* own = std::getenv("DISPLAY");
    const std::string ours = own != nullptr ? own : "";
    {
        const cXServer screen;
        ASSERT_TRUE(station.Start()) << station.StandardError();
        ASSERT_NE(FindWindow(station.Process(), "T10000"), "");
        EXPECT_EQ(station.Send({"--t0", "before"}).exitCode, 0);
    }
    EXPECT_EQ(station.WaitForEnd(), 71);
    EXPECT_EQ(station.Log().back(), "T11008");
    EXPECT_EQ(station.AlarmFiles().size(), 1u);
    // Until it is back a start of the service is one to be tried again.
    station.m_Environment["DISPLAY"] = ":4711";
    station.m_Environment["NOTIFY_SOCKET"] = "/nowhere/notify";
    station.Launch();
    EXPECT_EQ(station.WaitForEnd(), 75);
    station.m_Environment.erase("DISPLAY");
    station.m_Environment.erase("NOTIFY_SOCKET");
    setenv("DISPLAY", ours.c_str(), 1);
    ASSERT_TRUE(station.Start()) << station.StandardError();
    EXPECT_EQ(station.Stop(SIGTERM), 0);
}

}  // namespace
}  // namespace vigrel::testing
