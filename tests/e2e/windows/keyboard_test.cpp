// An operator without a mouse: a round over list, menu and popups under a window manager.

#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <string>
#include <thread>

#include "e2e/station.h"
#include "e2e/windows/operator.h"

namespace vigrel::testing {
namespace {

constexpr int kAlarms = 6;
// By their titles.
const char* const kMainWindow = "^T10000 .* - ";
const char* const kPopup = "\\(none\\)$";

std::ptrdiff_t LinesOf(const cStation& station, const std::string& text) {
    const std::vector<std::string> log = station.Log();
    return std::count_if(log.begin(), log.end(),
                         [&](const std::string& line) { return line.starts_with(text + " "); });
}

// Whether the log has so many lines that begin with the text, by now or soon.
bool Logs(const cStation& station, const std::string& text, std::ptrdiff_t count) {
    for (int tries = 0; tries < 100 && LinesOf(station, text) < count; ++tries) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return LinesOf(station, text) == count;
}

// The popup that has the keyboard by now or soon, when it is another than the one before; empty for none.
std::string NextPopup(const std::string& before) {
    for (int tries = 0; tries < 100; ++tries) {
        std::string window = ActiveWindow();
        if (window != before && TitleOf(window) == "T10000 (none)") return window;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return {};
}

class KeyboardRound : public ::testing::Test {
  protected:
    // Six alarms, whose sound goes on until somebody ends it.
    void Start(const std::string& settings) {
        m_Station.m_Environment = {{"QT_QPA_PLATFORM", "xcb"}, {"LC_ALL", "C.UTF-8"}};
        m_Station.Configure(
            "[General]\r\nViewPopupForm=1\r\nEventRestore=0\r\nColumns=DateTime,t0\r\nEventSignal=3\r\n" +
            settings + "[PopupForm]\r\nWindowPosition=MOVING\r\nX_Stop=600\r\nY_Stop=600\r\n");
        ASSERT_TRUE(m_Station.Start({"/MAXIMIZE"})) << m_Station.StandardError();
        m_Main = FindWindow(m_Station.Process(), kMainWindow);
        ASSERT_NE(m_Main, "");
        // The box that greets at the first look goes by any key.
        Press(m_Main, {"Escape"});
        Press(m_Main, {"Escape"});
        for (int i = 0; i < kAlarms; ++i) {
            ASSERT_EQ(m_Station.Send({"--t0", "alarm " + std::to_string(i)}).exitCode, 0);
        }
        ASSERT_TRUE(Logs(m_Station, "T10043", kAlarms));
        ASSERT_NE(FindWindow(m_Station.Process(), kPopup), "");
    }
    void CloseAllPopups() {
        Press(FindWindow(m_Station.Process(), kPopup), {});
        std::string popup;
        for (int closed = 1; closed <= kAlarms; ++closed) {
            // An operator looks at it before the next key.
            popup = NextPopup(popup);
            ASSERT_NE(popup, "") << closed;
            PressHere({closed % 2 == 1 ? "Escape" : "alt+F4"});
            ASSERT_TRUE(Logs(m_Station, "T10037", closed)) << closed;
        }
        // No key too many has reached the window behind, which would ask whether the station is to end.
        EXPECT_EQ(FindWindow(m_Station.Process(), "^Vigrel Alarm Receiver$", 1), "");
    }

    cStation m_Station;
    std::string m_Main;
};

TEST_F(KeyboardRound, SoundRowAllRowsPopups) {
    Start("");
    // The menu opens its first entry's neighbours by the arrow keys: the first ends the sound.
    Press(m_Main, {"alt", "Down", "Return"});
    EXPECT_TRUE(m_Station.WaitForLog("T10044"));
    Press(m_Main, {"Home", "Down", "Up", "Return"});
    EXPECT_TRUE(Logs(m_Station, "T10039", 1));
    Press(m_Main, {"F9"});
    EXPECT_TRUE(Logs(m_Station, "T10039", kAlarms));
    CloseAllPopups();
    EXPECT_EQ(m_Station.Stop(SIGTERM), 0);
}

TEST_F(KeyboardRound, PopupsOfWhichOneShowsAcknowledgeAsTheyClose) {
    Start("ViewOnlyOnePopupForm=1\r\nAckEventWhenPopupFormIsClosed=1\r\n");
    CloseAllPopups();
    EXPECT_TRUE(Logs(m_Station, "T10039", kAlarms));
    EXPECT_EQ(m_Station.Stop(SIGTERM), 0);
}

// A station whose alarms call in every way, and somebody who types in another program: a second station's
// window.
class TypingElsewhere : public ::testing::Test {
  protected:
    void Start(const std::string& restore) {
        const std::map<std::string, std::string> environment = {{"QT_QPA_PLATFORM", "xcb"},
                                                                {"LC_ALL", "C.UTF-8"}};
        m_Station.m_Environment = m_Other.m_Environment = environment;
        m_Station.Configure(
            "[General]\r\nViewPopupForm=1\r\nColumns=DateTime,t0\r\nEventSignal=3\r\nEventRestore=" +
            restore + "\r\n");
        m_Other.Configure("[General]\r\nColumns=DateTime,t0\r\n");
        m_Window = StartedWindow(m_Station);
        m_OtherWindow = StartedWindow(m_Other);
        ASSERT_NE(m_Window, "");
        ASSERT_EQ(ActiveWindow(), m_OtherWindow);
        for (int i = 0; i < 3; ++i) ASSERT_EQ(m_Station.Send({"--t0", "alarm"}).exitCode, 0);
        ASSERT_NE(FindWindow(m_Station.Process(), kPopup), "");
    }
    static std::string StartedWindow(cStation& station) {
        EXPECT_TRUE(station.Start({"/MAXIMIZE"})) << station.StandardError();
        std::string window = FindWindow(station.Process(), kMainWindow);
        Press(window, {"Escape"});
        Press(window, {"Escape"});
        return window;
    }
    // Whether the window has the keyboard all the time that follows.
    static bool Keeps(const std::string& window) {
        for (int looks = 0; looks < 30; ++looks) {
            if (ActiveWindow() != window) return false;
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        return true;
    }

    cStation m_Station, m_Other;
    std::string m_Window, m_OtherWindow;
};

TEST_F(TypingElsewhere, IsNotDisturbedByAStationThatDoesNotComeToTheFront) {
    Start("0");
    EXPECT_TRUE(Keeps(m_OtherWindow));
    EXPECT_EQ(m_Station.Stop(SIGTERM), 0);
    EXPECT_EQ(m_Other.Stop(SIGTERM), 0);
}

TEST_F(TypingElsewhere, EndsWhereTheStationComesToTheFront) {
    Start("1");
    EXPECT_FALSE(Keeps(m_OtherWindow));
    EXPECT_EQ(ActiveWindow(), m_Window);
    EXPECT_EQ(m_Station.Stop(SIGTERM), 0);
    EXPECT_EQ(m_Other.Stop(SIGTERM), 0);
}

}  // namespace
}  // namespace vigrel::testing
