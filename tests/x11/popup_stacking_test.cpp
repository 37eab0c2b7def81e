#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QProcess>
#include <QWindow>

#include "receiver_ui/popups/popup_widget.h"
#include "signals/popups.h"
#include "support/popup_station.h"
#include "support/qt_wait.h"
#include "x11/x_screen.h"

namespace vigrel::testing {
namespace {

// Popups on a real screen, over a window in which the operator is typing.
class PopupsUnderX : public ::testing::Test, protected cPopupStation {
  protected:
    PopupsUnderX() {
        m_Typing.resize(600, 400);
        m_Typing.show();
        // Its first show makes it active. Were that asked for besides, a busy window manager would do so at
        // any time later, and bring it to the front again over what came in between.
        EXPECT_TRUE(WaitUntil([&] { return m_Screen.ActiveWindow() == IdOf(m_Typing); }));
    }
    ~PopupsUnderX() override {
        m_Popups.ClosePopups();
        EXPECT_TRUE(WaitUntil([&] { return Stacked().empty(); }));
    }

    // Opens a popup as the next alarm does; the event loop isn't reached.
    void Open(const std::string& category) {
        m_Clock.AddSeconds(1);
        m_Popups.ShowPopup(Alarm(category));
        m_Opened.emplace_back(dynamic_cast<cPopupWidget*>(m_Windows.OpenWindows().back()));
    }
    void OpenAll(const std::vector<std::string>& categories) {
        for (const std::string& category : categories) Open(category);
    }
    cPopupWidget& Popup(int number) { return *m_Opened.at(static_cast<std::size_t>(number - 1)); }
    // The widget's own id can be that of a native window that is gone.
    static xcb_window_t IdOf(const QWidget& widget) {
        return static_cast<xcb_window_t>(widget.windowHandle()->winId());
    }
    // What the window manager says: the popups that it shows, the uppermost first; "t" is the other window.
    std::string Stacked() const {
        std::string text;
        for (const xcb_window_t window : m_Screen.RootWindows("_NET_CLIENT_LIST_STACKING")) {
            if (window == IdOf(m_Typing)) continue;
            for (std::size_t i = 0; i < m_Opened.size(); ++i) {
                if (m_Opened[i] && m_Opened[i]->windowHandle() && IdOf(*m_Opened[i]) == window) {
                    text = std::to_string(i + 1) + text;
                }
            }
        }
        return text;
    }
    bool StacksAs(const std::string& order) {
        return WaitUntil([&] { return Stacked() == order; }) || (RunEvents(10), Stacked() == order);
    }
    void ClickPicture(cPopupWidget& popup, int clicks) {
        const auto& picture = *popup.findChild<cPopupPicture*>("Picture_Alarm_1");
        ASSERT_TRUE(WaitUntil([&] { return popup.windowHandle()->isExposed(); }));
        const QPoint place = picture.mapToGlobal(picture.rect().center());
        QProcess mouse;
        mouse.start("xdotool", {"mousemove", QString::number(place.x()), QString::number(place.y()), "sleep",
                                "0.2", "click", "--repeat", QString::number(clicks), "--delay", "120", "1"});
        EXPECT_TRUE(WaitUntil([&] { return mouse.state() == QProcess::NotRunning; }, 5000));
    }
    // As the operator does with Alt+Tab.
    void GiveKeyboard(int number) {
        Popup(number).activateWindow();
        EXPECT_TRUE(HasKeyboard(number));
    }
    bool HasKeyboard(int number) {
        const auto has = [&] {
            return Popup(number).isActiveWindow() && m_Screen.ActiveWindow() == IdOf(Popup(number));
        };
        return WaitUntil(has, 5000);
    }

    cXScreen m_Screen;
    QLineEdit m_Typing;
    cOpenWindows m_Windows;
    cPopupWidgetMaker m_Maker{m_Windows};
    cPopups m_Popups{Services(m_Windows, m_Maker)};
    std::vector<QPointer<cPopupWidget>> m_Opened;
};

TEST_F(PopupsUnderX, SixInABurstStandInTheirOrder) {
    m_Settings.m_PopupFormTopMostCategory = "A,B";
    OpenAll({"X", "B", "A", "B", "A", "Y"});
    EXPECT_TRUE(StacksAs("536421")) << Stacked();
}

TEST_F(PopupsUnderX, SixOneByOneStandInTheirOrder) {
    m_Settings.m_PopupFormTopMostCategory = "A,B";
    const char* expected[] = {"1", "21", "321", "3421", "53421", "536421"};
    int step = 0;
    for (const char* category : {"X", "B", "A", "B", "A", "Y"}) {
        Open(category);
        EXPECT_TRUE(StacksAs(expected[step])) << step << ": " << Stacked();
        ++step;
    }
}

TEST_F(PopupsUnderX, WithoutAListTheNewestLiesOnTop) {
    for (int i = 0; i < 6; ++i) {
        Open("X");
        RunEvents(20);
    }
    EXPECT_TRUE(StacksAs("654321")) << Stacked();
}

TEST_F(PopupsUnderX, OneOfSixShowsAndTheNextComesWithEachClose) {
    m_Settings.m_PopupFormTopMostCategory = "A,B";
    m_Settings.m_ViewOnlyOnePopupForm = true;
    OpenAll({"X", "B", "A", "B", "A", "Y"});
    for (const char* shown : {"3", "5", "2", "4", "1", "6"}) {
        ASSERT_TRUE(StacksAs(shown)) << Stacked();
        Popup(shown[0] - '0').Close();
    }
    EXPECT_TRUE(StacksAs(""));
}

TEST_F(PopupsUnderX, AClosedPopupLeavesTheOthersInTheirOrder) {
    m_Settings.m_PopupFormTopMostCategory = "A";
    OpenAll({"X", "A", "X", "A"});
    ASSERT_TRUE(StacksAs("4231")) << Stacked();
    Popup(2).Close();
    EXPECT_TRUE(StacksAs("431")) << Stacked();
    Open("X");
    EXPECT_TRUE(StacksAs("4531")) << Stacked();
}

TEST_F(PopupsUnderX, PopupsLieOverOtherWindowsWithoutTakingTheKeyboard) {
    OpenAll({"X", "Y"});
    ASSERT_TRUE(StacksAs("21"));
    RunEvents(100);
    EXPECT_EQ(m_Screen.ActiveWindow(), IdOf(m_Typing));
    EXPECT_TRUE(m_Screen.HasState(IdOf(Popup(1)), "_NET_WM_STATE_ABOVE"));
    EXPECT_EQ(m_Screen.RootWindows("_NET_CLIENT_LIST_STACKING").front(), IdOf(m_Typing));
    m_Typing.activateWindow();
    m_Typing.raise();
    RunEvents(50);
    EXPECT_EQ(m_Screen.RootWindows("_NET_CLIENT_LIST_STACKING").front(), IdOf(m_Typing));
}

// Alarms that keep coming in would let nobody get at an entry.
// Whoever looks at his desktop sees the alarm, and what he has open comes back.
TEST_F(PopupsUnderX, APopupIsSeenWhileTheBareDesktopIsShown) {
    Open("X");
    ASSERT_TRUE(StacksAs("1"));
    m_Screen.ShowDesktop();
    ASSERT_TRUE(WaitUntil([&] { return !m_Screen.IsSeen(IdOf(m_Typing)); }));
    RunEvents(50);
    EXPECT_FALSE(m_Screen.IsSeen(IdOf(Popup(1))));
    Open("Y");
    EXPECT_TRUE(StacksAs("21"));
    for (const QWidget* window : {static_cast<QWidget*>(&Popup(2)), static_cast<QWidget*>(&Popup(1)),
                                  static_cast<QWidget*>(&m_Typing)}) {
        EXPECT_TRUE(WaitUntil([&] { return m_Screen.IsSeen(IdOf(*window)); }));
    }
    RunEvents(200);
    EXPECT_FALSE(Popup(2).isActiveWindow());
}

TEST_F(PopupsUnderX, AnOpenMenuStaysOpenAndWorks) {
    QMenu menu(&m_Typing);
    int chosen = 0;
    QObject::connect(menu.addAction("Acknowledge all"), &QAction::triggered, [&] { ++chosen; });
    menu.popup(m_Typing.mapToGlobal(QPoint(0, 0)));
    ASSERT_TRUE(WaitUntil([&] { return menu.windowHandle()->isExposed(); }));
    OpenAll({"X", "Y"});
    ASSERT_TRUE(StacksAs("21"));
    RunEvents(100);
    EXPECT_TRUE(menu.isVisible());
    EXPECT_EQ(QApplication::activePopupWidget(), &menu);
    const QPoint entry = menu.mapToGlobal(menu.actionGeometry(menu.actions()[0]).center());
    QProcess mouse;
    mouse.start("xdotool",
                {"mousemove", QString::number(entry.x()), QString::number(entry.y()), "click", "1"});
    EXPECT_TRUE(WaitUntil([&] { return chosen == 1; }, 5000));
    EXPECT_TRUE(WaitUntil([&] { return mouse.state() == QProcess::NotRunning; }));
    // They are ordinary windows all the same.
    EXPECT_TRUE(m_Screen.HasState(IdOf(Popup(2)), "_NET_WM_STATE_ABOVE"));
    EXPECT_EQ(Popup(2).windowType(), Qt::Window);
    EXPECT_EQ(m_Screen.ActiveWindow(), IdOf(m_Typing));
}

// It would stand over the popup that shows in its place, and mean the hidden one.
TEST_F(PopupsUnderX, APopupThatHidesTakesItsMenuAlong) {
    m_Settings.m_PopupFormTopMostCategory = "A";
    m_Settings.m_ViewOnlyOnePopupForm = true;
    Open("B");
    ASSERT_TRUE(StacksAs("1"));
    QMenu menu(Popup(1).findChild<cPopupLabel*>());
    menu.addAction("Copy");
    menu.popup(Popup(1).mapToGlobal(QPoint(50, 50)));
    ASSERT_TRUE(WaitUntil([&] { return menu.windowHandle()->isExposed(); }));
    Open("A");
    ASSERT_TRUE(StacksAs("2"));
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(PopupsUnderX, APopupOfAnUnlistedCategoryIsNotTopmostWhenOneShows) {
    m_Settings.m_PopupFormTopMostCategory = "A";
    m_Settings.m_ViewOnlyOnePopupForm = true;
    Open("X");
    ASSERT_TRUE(StacksAs("1"));
    RunEvents(50);
    EXPECT_FALSE(m_Screen.HasState(IdOf(Popup(1)), "_NET_WM_STATE_ABOVE"));
    EXPECT_EQ(m_Screen.ActiveWindow(), IdOf(m_Typing));
    // It was raised all the same.
    EXPECT_TRUE(WaitUntil(
        [&] { return m_Screen.RootWindows("_NET_CLIENT_LIST_STACKING").back() == IdOf(Popup(1)); }));
}

TEST_F(PopupsUnderX, TheNextPopupTakesNoKeyboardEither) {
    m_Settings.m_ViewOnlyOnePopupForm = true;
    OpenAll({"X", "Y"});
    ASSERT_TRUE(StacksAs("1"));
    Popup(1).Close();
    ASSERT_TRUE(StacksAs("2"));
    RunEvents(100);
    EXPECT_EQ(m_Screen.ActiveWindow(), IdOf(m_Typing));
}

// Not the window behind, where the next key would do something else.
TEST_F(PopupsUnderX, TheKeyboardOfAClosedPopupGoesToTheUppermostOfTheOthers) {
    OpenAll({"X", "Y", "Z"});
    ASSERT_TRUE(StacksAs("321"));
    GiveKeyboard(3);
    Popup(3).Close();
    EXPECT_TRUE(HasKeyboard(2));
    Popup(2).Close();
    EXPECT_TRUE(HasKeyboard(1));
    Popup(1).Close();
    EXPECT_TRUE(WaitUntil([&] { return m_Screen.ActiveWindow() == IdOf(m_Typing); }));
}

TEST_F(PopupsUnderX, TheKeyboardOfAClosedPopupGoesToTheOneThatShowsInItsPlace) {
    m_Settings.m_ViewOnlyOnePopupForm = true;
    OpenAll({"X", "Y", "Z"});
    for (const int number : {1, 2}) {
        ASSERT_TRUE(StacksAs(std::to_string(number)));
        GiveKeyboard(number);
        Popup(number).Close();
        ASSERT_TRUE(StacksAs(std::to_string(number + 1)));
        EXPECT_TRUE(HasKeyboard(number + 1));
    }
}

TEST_F(PopupsUnderX, TheKeyboardPassesOverAnIcon) {
    OpenAll({"X", "Y", "Z"});
    ASSERT_TRUE(StacksAs("321"));
    Popup(2).showMinimized();
    ASSERT_TRUE(WaitUntil([&] { return m_Screen.HasState(IdOf(Popup(2)), "_NET_WM_STATE_HIDDEN"); }));
    GiveKeyboard(3);
    Popup(3).Close();
    EXPECT_TRUE(HasKeyboard(1));
    EXPECT_TRUE(m_Screen.HasState(IdOf(Popup(2)), "_NET_WM_STATE_HIDDEN"));
}

TEST_F(PopupsUnderX, APopupThatComesBesideTheOneWithTheKeyboardDoesNotTakeIt) {
    OpenAll({"X"});
    ASSERT_TRUE(StacksAs("1"));
    GiveKeyboard(1);
    OpenAll({"Y"});
    ASSERT_TRUE(StacksAs("21"));
    RunEvents(100);
    EXPECT_TRUE(HasKeyboard(1));
}

// The second click was meant for the popup that the first one closed; what lies there now hasn't been read.
TEST_F(PopupsUnderX, ADoubleClickOnAPictureClosesOne) {
    Configure("WindowPosition=STATIC\nX_Start=100\nY_Start=200\n");
    for (const bool onlyOne : {false, true}) {
        m_Settings.m_ViewOnlyOnePopupForm = onlyOne;
        OpenAll({"X", "X", "X"});
        const std::string before = onlyOne ? "4" : "321";
        ASSERT_TRUE(StacksAs(before)) << Stacked();
        ClickPicture(Popup(before[0] - '0'), 2);
        ASSERT_TRUE(StacksAs(onlyOne ? "5" : "21")) << Stacked();
        RunEvents(200);
        EXPECT_EQ(m_State.m_PopupFormCount, 2) << onlyOne;
        ClickPicture(Popup(onlyOne ? 5 : 2), 1);
        EXPECT_TRUE(StacksAs(onlyOne ? "6" : "1")) << Stacked();
        m_Popups.ClosePopups();
    }
}

TEST_F(PopupsUnderX, AllClosedAtOnceLeaveTheKeyboardToTheWindowBehind) {
    OpenAll({"X", "Y", "Z"});
    ASSERT_TRUE(StacksAs("321"));
    GiveKeyboard(3);
    m_Popups.ClosePopups();
    EXPECT_TRUE(WaitUntil([&] { return m_Screen.ActiveWindow() == IdOf(m_Typing); }));
    // Nor is it kept for a popup of a later alarm.
    Open("X");
    ASSERT_TRUE(StacksAs("4"));
    RunEvents(100);
    EXPECT_EQ(m_Screen.ActiveWindow(), IdOf(m_Typing));
}

TEST_F(PopupsUnderX, TheFrameStandsWhereTheFileSays) {
    Configure(
        "X_Size=400\nY_Size=150\nWindowPosition=MOVING\nX_Start=100\nY_Start=200\nX_Stop=900\nY_Stop=900\n");
    OpenAll({"X", "X", "X"});
    ASSERT_TRUE(StacksAs("321"));
    for (int number = 1; number <= 3; ++number) {
        const int step = 50 * (number - 1);
        EXPECT_TRUE(WaitUntil([&] {
            return Popup(number).frameGeometry() == QRect(100 + step, 200 + step, 400, 150);
        })) << number
            << ": " << Popup(number).frameGeometry().x() << "," << Popup(number).frameGeometry().y() << " "
            << Popup(number).frameGeometry().width() << "x" << Popup(number).frameGeometry().height();
    }
}

TEST_F(PopupsUnderX, APopupThatWasHiddenComesBackWhereItStood) {
    m_Settings.m_PopupFormTopMostCategory = "A";
    m_Settings.m_ViewOnlyOnePopupForm = true;
    Configure("X_Size=400\nY_Size=150\nWindowPosition=STATIC\nX_Start=100\nY_Start=200\n");
    Open("B");
    const QRect place(100, 200, 400, 150);
    for (int number = 2; number < 6; ++number) {
        ASSERT_TRUE(StacksAs("1"));
        ASSERT_TRUE(WaitUntil([&] { return Popup(1).frameGeometry() == place; })) << number;
        // Nothing moves it later either.
        RunEvents(50);
        ASSERT_EQ(Popup(1).frameGeometry(), place) << number;
        Open("A");
        ASSERT_TRUE(StacksAs(std::to_string(number)));
        EXPECT_EQ(Popup(1).Left(), 1500);
        EXPECT_EQ(Popup(1).Top(), 3000);
        EXPECT_EQ(Popup(1).Width(), 6000);
        EXPECT_EQ(Popup(1).Height(), 2250);
        Popup(number).Close();
    }
}

TEST_F(PopupsUnderX, NoPopupIsSeenWhereItWillNotStay) {
    Configure("WindowPosition=STATIC\nX_Start=100\nY_Start=200\n");
    m_Screen.WatchPlaces();
    OpenAll({"X", "X"});
    ASSERT_TRUE(StacksAs("21"));
    RunEvents(100);
    const auto places = m_Screen.PlacesSeen();
    EXPECT_GE(places.size(), 2u);
    for (const cXScreen::cPlace place : places) {
        EXPECT_NEAR(place.x, 100, 30);
        EXPECT_NEAR(place.y, 200, 30);
    }
}

TEST_F(PopupsUnderX, AMinimisedPopupComesBackWhenItIsNext) {
    OpenAll({"X", "Y"});
    ASSERT_TRUE(StacksAs("21"));
    Popup(1).showMinimized();
    ASSERT_TRUE(WaitUntil([&] { return m_Screen.HasState(IdOf(Popup(1)), "_NET_WM_STATE_HIDDEN"); }));
    Popup(2).Close();
    EXPECT_TRUE(WaitUntil([&] { return !m_Screen.HasState(IdOf(Popup(1)), "_NET_WM_STATE_HIDDEN"); }));
}

}  // namespace
}  // namespace vigrel::testing
