#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QProcess>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <functional>

#include "receiver_ui/dialogs/notice_window.h"
#include "receiver_ui/dialogs/operator_page.h"
#include "receiver_ui/main/main_window.h"
#include "receiver_ui/popups/popup_widget.h"
#include "support/qt_wait.h"
#include "windows/qt_message_box.h"
#include "x11/x_screen.h"

namespace vigrel::testing {
namespace {

// Over a main window that hides when it is made an icon.
class DialogsUnderX : public ::testing::Test {
  protected:
    DialogsUnderX() {
        m_Main.SetWidth(9000);
        m_Main.SetHeight(6000);
        m_Main.OnResize = [&] {
            if (m_Main.State() == eWindowState::Minimised) m_Main.Hide();
        };
        m_Main.Show();
        EXPECT_TRUE(WaitUntil([&] { return m_Screen.ActiveWindow() == IdOf(m_Main); }));
    }

    static xcb_window_t IdOf(const QWidget& widget) {
        return static_cast<xcb_window_t>(widget.windowHandle()->winId());
    }
    bool IsIcon(const QWidget& widget) { return m_Screen.HasState(IdOf(widget), "_NET_WM_STATE_HIDDEN"); }
    void Iconify(const QWidget& widget) {
        QProcess process;
        process.start("xdotool", {"windowminimize", QString::number(IdOf(widget))});
        ASSERT_TRUE(WaitUntil([&] { return process.state() == QProcess::NotRunning; }));
    }
    // By an icon's way.
    void HideMain() {
        Iconify(m_Main);
        ASSERT_TRUE(WaitUntil([&] { return !m_Main.isVisible(); }));
        RunEvents(100);
    }
    // As an alarm does.
    void BringMainToTheFront() {
        if (m_Main.State() == eWindowState::Minimised) m_Main.SetState(eWindowState::Normal);
        SkipFailure([&] { m_Main.SetFocus(); });
        m_Main.Show();
    }
    bool HasKeyboard(const QWidget& widget) {
        return WaitUntil([&] { return !IsIcon(widget) && m_Screen.ActiveWindow() == IdOf(widget); }, 3000);
    }
    // Asks again, but once in a while only: a busy window manager may answer what was asked before later.
    bool GiveKeyboard(QWidget& widget) {
        return WaitUntil([&] {
            widget.activateWindow();
            FlushToScreen();
            return HasKeyboard(widget) && (RunEvents(100), HasKeyboard(widget));
        });
    }

    cXScreen m_Screen;
    cOpenWindows m_Windows;
    cMainWindow m_Main{m_Windows};
};

// Windows that stay on top, and which of them lies over which.
class LayersUnderX : public DialogsUnderX {
  protected:
    void OpenPopup() {
        cPopupWindow& popup = m_Popups.MakePopup();
        popup.SetTopMost(true);
        popup.Show();
        m_Popup = dynamic_cast<cPopupWidget*>(&popup);
        EXPECT_TRUE(WaitUntil([&] { return m_Popup->isVisible() && Position(*m_Popup) >= 0; }));
    }
    // From the lowest window up; -1 for one that the window manager doesn't have.
    int Position(const QWidget& widget) const {
        const auto windows = m_Screen.RootWindows("_NET_CLIENT_LIST_STACKING");
        const auto found = std::find(windows.begin(), windows.end(), IdOf(widget));
        return found == windows.end() ? -1 : static_cast<int>(found - windows.begin());
    }
    bool IsOver(const QWidget& upper, const QWidget& lower) {
        const auto is = [&] { return Position(upper) > Position(lower); };
        return WaitUntil(is, 3000) && (RunEvents(100), is());
    }

    cPopupWidgetMaker m_Popups{m_Windows};
    cPopupWidget* m_Popup = nullptr;  // the newest
};

TEST_F(LayersUnderX, PopupsLieOverAMainWindowThatStaysOnTop) {
    m_Main.SetTopMost(true);
    OpenPopup();
    const cPopupWidget& first = *m_Popup;
    OpenPopup();
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(GiveKeyboard(*m_Popup));
        BringMainToTheFront();
        EXPECT_TRUE(HasKeyboard(m_Main));
        EXPECT_TRUE(IsOver(first, m_Main)) << i;
        EXPECT_TRUE(IsOver(*m_Popup, first)) << i;
    }
}

// Over a notice that its text has brought up.
class NoticesUnderX : public LayersUnderX {
  protected:
    NoticesUnderX() { Tell("The disk is full."); }
    void Tell(const char* text) {
        m_Notice.SetText(text);
        m_Notice.Show();
        EXPECT_TRUE(WaitUntil([&] { return Position(m_Notice) >= 0; }));
    }

    cNoticeWindow m_Notice{m_Windows};
};

TEST_F(NoticesUnderX, LieOverThePopupsThatCome) {
    for (int i = 0; i < 3; ++i) {
        OpenPopup();
        EXPECT_TRUE(IsOver(m_Notice, *m_Popup)) << i;
    }
    EXPECT_TRUE(HasKeyboard(m_Main));
}

TEST_F(NoticesUnderX, LieOverAMainWindowThatStaysOnTop) {
    m_Main.SetTopMost(true);
    QWidget other;
    other.show();
    ASSERT_TRUE(GiveKeyboard(other));
    BringMainToTheFront();
    EXPECT_TRUE(HasKeyboard(m_Main));
    EXPECT_TRUE(IsOver(m_Notice, m_Main));
}

TEST_F(NoticesUnderX, ComeBackToTheFrontWithTheirNextText) {
    OpenPopup();
    ASSERT_TRUE(IsOver(m_Notice, *m_Popup));
    // As a click on it does.
    m_Popup->raise();
    FlushToScreen();
    ASSERT_TRUE(IsOver(*m_Popup, m_Notice));
    Tell("The disk is still full.");
    EXPECT_TRUE(IsOver(m_Notice, *m_Popup));
}

TEST_F(NoticesUnderX, PutAwayStayAwayWhenAPopupComes) {
    Iconify(m_Notice);
    ASSERT_TRUE(WaitUntil([&] { return IsIcon(m_Notice); }));
    OpenPopup();
    RunEvents(100);
    EXPECT_TRUE(IsIcon(m_Notice));
}

// A question. Until it is answered nothing else takes a key or a click, so that it must be seen whatever
// happens meanwhile.
class BoxesUnderX : public LayersUnderX {
  protected:
    void Ask(const std::function<void(QMessageBox&)>& meanwhile) {
        QTimer::singleShot(0, [&] {
            ASSERT_TRUE(WaitUntil([] { return QApplication::activeModalWidget() != nullptr; }));
            auto& box = *qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            EXPECT_TRUE(WaitUntil([&] { return m_Screen.ActiveWindow() == IdOf(box); }));
            meanwhile(box);
            box.reject();
        });
        cQtMessageBox("Vigrel").Show("Close?", eMessageIcon::Question, eMessageButtons::YesNo);
    }
};

TEST_F(BoxesUnderX, LieOverThePopupsThatAreThereAndThoseThatCome) {
    OpenPopup();
    Ask([&](QMessageBox& box) {
        EXPECT_TRUE(IsOver(box, *m_Popup));
        for (int i = 0; i < 3; ++i) {
            OpenPopup();
            EXPECT_TRUE(IsOver(box, *m_Popup)) << i;
        }
        EXPECT_TRUE(HasKeyboard(box));
    });
}

TEST_F(BoxesUnderX, LieOverAMainWindowThatStaysOnTop) {
    m_Main.SetTopMost(true);
    QWidget other;
    other.show();
    ASSERT_TRUE(GiveKeyboard(other));
    Ask([&](QMessageBox& box) {
        EXPECT_TRUE(IsOver(box, m_Main));
        BringMainToTheFront();
        EXPECT_TRUE(IsOver(box, m_Main));
        EXPECT_TRUE(HasKeyboard(box));
    });
}

TEST_F(BoxesUnderX, AreSeenThoughTheBareDesktopWasShown) {
    RunEvents(200);  // the main window has come to the front
    m_Screen.ShowDesktop();
    ASSERT_TRUE(WaitUntil([&] { return !m_Screen.IsSeen(IdOf(m_Main)); }));
    Ask([&](QMessageBox& box) { EXPECT_TRUE(WaitUntil([&] { return m_Screen.IsSeen(IdOf(box)); })); });
}

TEST_F(BoxesUnderX, LieOverANotice) {
    cNoticeWindow notice(m_Windows);
    Ask([&](QMessageBox& box) {
        notice.SetText("The disk is full.");
        notice.Show();
        ASSERT_TRUE(WaitUntil([&] { return Position(notice) >= 0; }));
        EXPECT_TRUE(IsOver(box, notice));
    });
}

// Not to a popup, which the next Esc would close.
TEST_F(BoxesUnderX, LeaveTheKeyboardWhereItWas) {
    for (int i = 0; i < 3; ++i) OpenPopup();
    Ask([&](QMessageBox&) { OpenPopup(); });
    const auto isActive = [&] { return m_Screen.ActiveWindow() == IdOf(m_Main); };
    EXPECT_TRUE(WaitUntil(isActive, 3000));
    RunEvents(100);
    EXPECT_TRUE(isActive());
}

// The window manager takes the box away together with the main window.
TEST_F(BoxesUnderX, AreThereWhenTheMainWindowThatHidMeanwhileComesBack) {
    Ask([&](QMessageBox& box) {
        HideMain();
        BringMainToTheFront();
        EXPECT_TRUE(HasKeyboard(box));
        EXPECT_TRUE(IsOver(box, m_Main));
    });
}

TEST_F(BoxesUnderX, MadeAnIconComeBackWithTheNextAlarm) {
    Ask([&](QMessageBox& box) {
        Iconify(box);
        RunEvents(100);
        BringMainToTheFront();
        EXPECT_TRUE(HasKeyboard(box));
        Iconify(box);
        RunEvents(100);
        OpenPopup();
        EXPECT_TRUE(HasKeyboard(box));
        EXPECT_TRUE(IsOver(box, *m_Popup));
    });
}

// One popup at a time: the box belongs to none that gives way to the next.
TEST_F(BoxesUnderX, StayWhenThePopupHidesFromWhichTheyWereAsked) {
    OpenPopup();
    m_Popup->activateWindow();
    ASSERT_TRUE(WaitUntil([&] { return m_Popup->isActiveWindow(); }));
    Ask([&](QMessageBox& box) {
        cPopupWidget& popup = *m_Popup;
        popup.Hide();
        ASSERT_TRUE(WaitUntil([&] { return !popup.isVisible(); }));
        RunEvents(100);
        EXPECT_TRUE(HasKeyboard(box));
        popup.Close();
        RunEvents(100);
        EXPECT_TRUE(HasKeyboard(box));
    });
}

// --- the operator's page

class HelpUnderX : public DialogsUnderX {
  protected:
    HelpUnderX() { EXPECT_TRUE(ComesUp()); }
    QDialog& Page() const { return *m_Main.findChild<QDialog*>(); }
    bool ComesUp() {
        cOperatorPage::Show("", m_Main);
        return HasKeyboard(Page());
    }
};

TEST_F(HelpUnderX, ComesToTheFrontFromBehind) {
    ASSERT_TRUE(GiveKeyboard(m_Main));
    EXPECT_TRUE(ComesUp());
}

TEST_F(HelpUnderX, ComesBackFromAnIcon) {
    Iconify(Page());
    ASSERT_TRUE(WaitUntil([&] { return IsIcon(Page()); }));
    EXPECT_TRUE(ComesUp());
}

// The window manager takes the page away together with the main window.
TEST_F(HelpUnderX, ComesBackAfterTheMainWindowWasHidden) {
    for (int i = 0; i < 2; ++i) {
        HideMain();
        BringMainToTheFront();
        ASSERT_TRUE(HasKeyboard(m_Main)) << i;
        EXPECT_TRUE(ComesUp()) << i;
    }
}

}  // namespace
}  // namespace vigrel::testing
