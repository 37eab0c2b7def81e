#include "receiver_ui/main/main_window.h"

#include <gtest/gtest.h>

#include <utility>

#include <QLineEdit>
#include <QProcess>
#include <QWindow>
#include <memory>

#include "support/qt_wait.h"
#include "x11/x_screen.h"

namespace vigrel::testing {
namespace {

// The main window on a real screen, beside a window of another program in which the operator is typing.
class MainWindowUnderX : public ::testing::Test {
  protected:
    MainWindowUnderX() {
        m_Other.resize(900, 700);
        m_Other.show();
        TypeInOther();
    }
    static xcb_window_t IdOf(const QWidget& widget) {
        return static_cast<xcb_window_t>(widget.windowHandle()->winId());
    }
    // Asks once in a while only: a request that the window manager answers late would disturb what follows.
    void TypeInOther() {
        const auto isActive = [&] { return m_Screen.ActiveWindow() == IdOf(m_Other); };
        EXPECT_TRUE(isActive() || WaitUntil([&] {
                        m_Other.activateWindow();
                        m_Other.raise();
                        FlushToScreen();
                        return WaitUntil(isActive, 2000);
                    }));
        RunEvents(20);
    }
    void ShowMain() {
        m_Main.Show();
        EXPECT_TRUE(WaitUntil([&] { return IsActive(); }));
    }
    bool IsActive() { return m_Main.windowHandle() != nullptr && m_Screen.ActiveWindow() == IdOf(m_Main); }
    bool IsIcon() { return m_Screen.HasState(IdOf(m_Main), "_NET_WM_STATE_HIDDEN"); }
    bool IsOnTop() {
        const auto windows = m_Screen.RootWindows("_NET_CLIENT_LIST_STACKING");
        return !windows.empty() && windows.back() == IdOf(m_Main);
    }
    bool IsInFront() {
        return WaitUntil([&] { return IsActive() && IsOnTop() && !IsIcon(); }, 3000);
    }
    // As a window manager's own controls do it.
    static void Tool(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        ASSERT_TRUE(WaitUntil([&] { return process.state() == QProcess::NotRunning; }));
        ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    }
    void IconifyFromOutside() { Tool("xdotool", {"windowminimize", QString::number(IdOf(m_Main))}); }
    void PressKeys(const QString& keys) { Tool("xdotool", {"key", keys}); }

    cXScreen m_Screen;
    QLineEdit m_Other;
    cOpenWindows m_Windows;
    cMainWindow m_Main{m_Windows};
};

// --- geometry

struct cGeometry {
    double left, top, width, height;
    bool operator==(const cGeometry&) const = default;
};
std::ostream& operator<<(std::ostream& out, const cGeometry& g) {
    return out << g.left << "," << g.top << " " << g.width << "x" << g.height;
}
cGeometry GeometryOf(const cWindow& window) {
    return {window.Left(), window.Top(), window.Width(), window.Height()};
}

TEST_F(MainWindowUnderX, GeometryDoesNotDriftFromRunToRun) {
    const cGeometry first{1500, 1200, 9000, 6000};
    cGeometry stored = first;
    for (int run = 0; run < 4; ++run) {
        cOpenWindows windows;
        cMainWindow window(windows);
        window.SetTop(stored.top);
        window.SetLeft(stored.left);
        window.SetHeight(stored.height);
        window.SetWidth(stored.width);
        EXPECT_EQ(GeometryOf(window), first) << "before it is shown, run " << run;
        window.Show();
        RunEvents(200);
        stored = GeometryOf(window);
        EXPECT_EQ(stored, first) << "run " << run;
        EXPECT_LT(window.InnerHeight(), window.Height());
        window.Hide();
    }
}

TEST_F(MainWindowUnderX, TheFrameStandsWhereItWasPut) {
    m_Main.SetTop(1500);
    m_Main.SetLeft(3000);
    m_Main.SetHeight(6000);
    m_Main.SetWidth(9000);
    ShowMain();
    EXPECT_TRUE(WaitUntil([&] { return m_Main.frameGeometry() == QRect(200, 100, 600, 400); }))
        << GeometryOf(m_Main);
    EXPECT_TRUE(WaitUntil([&] { return m_Main.InnerWidth() < 9000; }));
}

TEST_F(MainWindowUnderX, GeometryDoesNotDriftByHidingAndMinimising) {
    m_Main.SetTop(1500);
    m_Main.SetLeft(3000);
    m_Main.SetHeight(6000);
    m_Main.SetWidth(9000);
    ShowMain();
    RunEvents(100);
    Tool("xdotool", {"windowmove", QString::number(IdOf(m_Main)), "250", "150"});
    EXPECT_TRUE(WaitUntil([&] { return m_Main.Left() != 3000; }));
    RunEvents(50);
    const cGeometry shown = GeometryOf(m_Main);
    for (int i = 0; i < 3; ++i) {
        m_Main.Hide();
        RunEvents(50);
        ShowMain();
        RunEvents(50);
        EXPECT_EQ(GeometryOf(m_Main), shown) << "hidden " << i;
        m_Main.SetState(eWindowState::Minimised);
        EXPECT_TRUE(WaitUntil([&] { return IsIcon(); }));
        RunEvents(50);
        m_Main.SetState(eWindowState::Normal);
        EXPECT_TRUE(WaitUntil([&] { return !IsIcon(); }));
        RunEvents(50);
        EXPECT_EQ(GeometryOf(m_Main), shown) << "minimised " << i;
    }
}

TEST_F(MainWindowUnderX, AWindowThatWasOnlyEverMinimisedKeepsItsGeometry) {
    m_Main.SetTop(1500);
    m_Main.SetLeft(3000);
    m_Main.SetHeight(6000);
    m_Main.SetWidth(9000);
    const cGeometry wished = GeometryOf(m_Main);
    m_Main.SetState(eWindowState::Minimised);
    m_Main.Show();
    RunEvents(200);
    EXPECT_EQ(m_Main.State(), eWindowState::Minimised);
    EXPECT_EQ(GeometryOf(m_Main), wished);
    m_Main.SetState(eWindowState::Normal);
    RunEvents(200);
    EXPECT_EQ(GeometryOf(m_Main), wished);
}

TEST_F(MainWindowUnderX, AHiddenWindowStillAnswersWithItsFrame) {
    // Not placed by us: the window manager chooses.
    m_Main.SetHeight(6000);
    m_Main.SetWidth(9000);
    ShowMain();
    RunEvents(100);
    const cGeometry shown = GeometryOf(m_Main);
    m_Main.Hide();
    RunEvents(100);
    EXPECT_EQ(GeometryOf(m_Main), shown);
    m_Main.SetLeft(3000);
    m_Main.SetTop(1500);
    m_Main.SetWidth(7500);
    EXPECT_EQ(GeometryOf(m_Main), (cGeometry{3000, 1500, 7500, 6000}));
    ShowMain();
    RunEvents(100);
    EXPECT_EQ(GeometryOf(m_Main), (cGeometry{3000, 1500, 7500, 6000}));
}

TEST_F(MainWindowUnderX, AMaximisedWindowFillsTheScreen) {
    m_Main.SetState(eWindowState::Maximised);
    ShowMain();
    EXPECT_TRUE(WaitUntil([&] { return m_Main.frameGeometry().width() >= 1280; }));
    EXPECT_EQ(m_Main.State(), eWindowState::Maximised);
    m_Main.SetState(eWindowState::Normal);
    EXPECT_TRUE(WaitUntil([&] { return m_Main.frameGeometry().width() < 1000; }));
}

// --- an alarm brings the window to the front: state, focus, show

class ComingToTheFront : public MainWindowUnderX {
  protected:
    void Restore() {
        if (m_Main.State() == eWindowState::Minimised) m_Main.SetState(eWindowState::Normal);
        SkipFailure([&] { m_Main.SetFocus(); });
        SkipFailure([&] { m_Main.Show(); });
    }
    // By a click on the notification icon.
    void Open() {
        m_Main.SetState(eWindowState::Normal);
        m_Main.Show();
        m_Main.SetFocus();
    }
};

TEST_F(ComingToTheFront, FromBehindOthers) {
    ShowMain();
    TypeInOther();
    Restore();
    EXPECT_TRUE(IsInFront());
}

TEST_F(ComingToTheFront, FromAShownDesktop) {
    ShowMain();
    RunEvents(200);
    m_Screen.ShowDesktop();
    ASSERT_TRUE(WaitUntil([&] { return !m_Screen.IsSeen(IdOf(m_Main)); }));
    RunEvents(50);
    Restore();
    EXPECT_TRUE(WaitUntil([&] { return m_Screen.IsSeen(IdOf(m_Main)); }));
    EXPECT_TRUE(IsInFront());
}

TEST_F(ComingToTheFront, FromMinimisedByTheProgram) {
    ShowMain();
    m_Main.SetState(eWindowState::Minimised);
    ASSERT_TRUE(WaitUntil([&] { return IsIcon(); }));
    TypeInOther();
    Restore();
    EXPECT_TRUE(IsInFront());
    EXPECT_EQ(m_Main.State(), eWindowState::Normal);
}

TEST_F(ComingToTheFront, FromMinimisedByTheWindowManager) {
    ShowMain();
    IconifyFromOutside();
    ASSERT_TRUE(WaitUntil([&] { return m_Main.State() == eWindowState::Minimised; }));
    TypeInOther();
    Restore();
    EXPECT_TRUE(IsInFront());
}

TEST_F(ComingToTheFront, FromAStartAsAnIcon) {
    m_Main.SetState(eWindowState::Minimised);
    m_Main.Show();
    ASSERT_TRUE(WaitUntil([&] { return IsIcon(); }));
    EXPECT_EQ(m_Screen.ActiveWindow(), IdOf(m_Other));
    Restore();
    EXPECT_TRUE(IsInFront());
}

TEST_F(ComingToTheFront, FromHidden) {
    ShowMain();
    m_Main.Hide();
    RunEvents(50);
    TypeInOther();
    Restore();
    EXPECT_TRUE(IsInFront());
}

TEST_F(ComingToTheFront, FromTheNotificationAreaAgainAndAgain) {
    m_Main.OnResize = [&] {
        if (m_Main.State() == eWindowState::Minimised) m_Main.Hide();
    };
    m_Main.SetWidth(9000);
    m_Main.SetHeight(6000);
    ShowMain();
    // The window manager's frame comes in its own time.
    cGeometry shown = GeometryOf(m_Main);
    WaitUntil([&] {
        const cGeometry before = std::exchange(shown, (RunEvents(300), GeometryOf(m_Main)));
        return before == shown;
    });
    for (int i = 0; i < 3; ++i) {
        IconifyFromOutside();
        ASSERT_TRUE(WaitUntil([&] { return !m_Main.isVisible(); })) << i;
        TypeInOther();
        i % 2 == 0 ? Open() : Restore();
        EXPECT_TRUE(IsInFront()) << i;
        EXPECT_EQ(m_Main.State(), eWindowState::Normal);
        RunEvents(50);
        EXPECT_EQ(GeometryOf(m_Main), shown) << i;
    }
}

TEST_F(ComingToTheFront, FromHiddenAfterTheWindowManagerHadRestoredIt) {
    ShowMain();
    m_Main.SetState(eWindowState::Minimised);
    ASSERT_TRUE(WaitUntil([&] { return IsIcon(); }));
    Tool("xdotool", {"windowactivate", QString::number(IdOf(m_Main))});
    ASSERT_TRUE(WaitUntil([&] { return !IsIcon(); }));
    m_Main.Hide();
    RunEvents(50);
    TypeInOther();
    Open();
    EXPECT_TRUE(IsInFront());
}

// A window manager may refuse, and the operator may be quicker elsewhere.
TEST_F(ComingToTheFront, ThatFailsAsksForAttention) {
    const auto asks = [&] { return m_Screen.HasState(IdOf(m_Main), "_NET_WM_STATE_DEMANDS_ATTENTION"); };
    ShowMain();
    RunEvents(800);
    EXPECT_FALSE(asks()) << "of one that is in front";
    TypeInOther();
    RunEvents(100);
    m_Main.SetFocus();
    m_Other.activateWindow();
    FlushToScreen();
    EXPECT_TRUE(WaitUntil(asks, 5000));
    EXPECT_EQ(m_Screen.ActiveWindow(), IdOf(m_Other));
}

TEST_F(MainWindowUnderX, AMaximisedWindowThatHidesAsAnIconKeepsItsGeometry) {
    m_Main.SetState(eWindowState::Maximised);
    ShowMain();
    ASSERT_TRUE(WaitUntil([&] { return m_Main.frameGeometry().width() >= 1280; }));
    RunEvents(100);
    const cGeometry maximised = GeometryOf(m_Main);
    m_Main.OnResize = [&] {
        if (m_Main.State() == eWindowState::Minimised) m_Main.Hide();
    };
    m_Main.SetState(eWindowState::Minimised);
    ASSERT_TRUE(WaitUntil([&] { return !m_Main.isVisible(); }));
    EXPECT_EQ(GeometryOf(m_Main), maximised);
    m_Main.SetState(eWindowState::Normal);
    EXPECT_LT(m_Main.Width(), maximised.width);
    ShowMain();
    EXPECT_TRUE(WaitUntil([&] { return m_Main.frameGeometry().width() < 1000; }));
}

TEST_F(ComingToTheFront, AMaximisedWindowStaysMaximised) {
    m_Main.SetState(eWindowState::Maximised);
    ShowMain();
    TypeInOther();
    Restore();
    EXPECT_TRUE(IsInFront());
    EXPECT_EQ(m_Main.State(), eWindowState::Maximised);
}

TEST_F(MainWindowUnderX, AStartAsAHiddenIconStaysHidden) {
    m_Main.OnResize = [&] {
        if (m_Main.State() == eWindowState::Minimised) m_Main.Hide();
    };
    m_Main.SetState(eWindowState::Minimised);
    m_Main.Show();
    EXPECT_TRUE(WaitUntil([&] { return !m_Main.isVisible(); }));
    RunEvents(100);
    EXPECT_FALSE(m_Main.isVisible());
}

TEST_F(MainWindowUnderX, APreventedMinimiseJumpsBack) {
    for (const eWindowState last : {eWindowState::Normal, eWindowState::Maximised}) {
        m_Main.OnResize = nullptr;
        m_Main.SetState(last);
        ShowMain();
        RunEvents(50);
        m_Main.OnResize = [&] {
            if (m_Main.State() == eWindowState::Minimised) m_Main.SetState(last);
        };
        IconifyFromOutside();
        EXPECT_TRUE(WaitUntil([&] { return !IsIcon() && m_Main.State() == last; }));
        RunEvents(100);
        EXPECT_FALSE(IsIcon());
        EXPECT_EQ(m_Main.State(), last);
    }
}

TEST_F(MainWindowUnderX, AMinimiseThatIsUndoneAtOnceLeavesAWindow) {
    for (int i = 0; i < 3; ++i) {
        ShowMain();
        m_Main.SetState(eWindowState::Minimised);
        RunEvents(i);  // somewhere in the midst of the window manager's work
        m_Main.SetState(eWindowState::Normal);
        RunEvents(400);
        EXPECT_FALSE(IsIcon());
        EXPECT_EQ(m_Main.State(), eWindowState::Normal);
        EXPECT_TRUE(m_Main.windowHandle()->isExposed());
    }
}

TEST_F(MainWindowUnderX, TopMostLiesOverTheActiveWindowThroughHidingAndMinimising) {
    m_Main.SetTopMost(true);
    ShowMain();
    TypeInOther();
    EXPECT_TRUE(WaitUntil([&] { return IsOnTop(); }));
    m_Main.Hide();
    RunEvents(50);
    ShowMain();
    TypeInOther();
    EXPECT_TRUE(WaitUntil([&] { return IsOnTop(); }));
    m_Main.SetTopMost(false);
    m_Other.raise();
    FlushToScreen();
    EXPECT_TRUE(WaitUntil([&] { return !IsOnTop(); }));
}

// --- keys and close

TEST_F(MainWindowUnderX, AltF4IsACloseByTheWindowManager) {
    std::vector<eCloseReason> reasons;
    m_Main.OnQueryUnload = [&](eCloseReason reason) {
        reasons.push_back(reason);
        return false;
    };
    ShowMain();
    PressKeys("alt+F4");
    EXPECT_TRUE(WaitUntil([&] { return !reasons.empty(); }));
    RunEvents(50);
    EXPECT_EQ(reasons, std::vector{eCloseReason::Control});
    EXPECT_TRUE(m_Main.isVisible());
}

TEST_F(MainWindowUnderX, F9ReachesTheListOnce) {
    std::vector<int> keys;
    m_Main.List().OnKeyDown = [&](int code, int) { keys.push_back(code); };
    ShowMain();
    PressKeys("F9");
    EXPECT_TRUE(WaitUntil([&] { return !keys.empty(); }));
    RunEvents(50);
    EXPECT_EQ(keys, std::vector<int>{120});
}

TEST_F(MainWindowUnderX, OpeningTheMenuDoesNotTakeTheListsFocusAway) {
    int lost = 0;
    bool opened = false;
    m_Main.List().OnFocusChange = [&] { ++lost; };
    m_Main.OnMenuFileOpens = [&] { opened = true; };
    ShowMain();
    EXPECT_TRUE(WaitUntil([&] { return m_Main.List().View().hasFocus(); }));
    PressKeys("alt+a");
    EXPECT_TRUE(WaitUntil([&] { return opened; }));
    RunEvents(50);
    PressKeys("Escape");
    RunEvents(50);
    EXPECT_EQ(lost, 0);
    TypeInOther();
    EXPECT_TRUE(WaitUntil([&] { return lost == 1; }));
}

}  // namespace
}  // namespace vigrel::testing
