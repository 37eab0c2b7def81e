#include "receiver_ui/main/main_window.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QCloseEvent>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTest>

#include "adapters/qt/qt_text.h"
#include "common/failure.h"
#include "support/qt_wait.h"
#include "support/raises.h"
#include "windows/desktop.h"

namespace vigrel::testing {
namespace {

class MainWindow : public ::testing::Test {
  protected:
    MainWindow() {
        m_Window.OnQueryUnload = [this](eCloseReason reason) {
            m_Reasons.push_back(reason);
            return m_Allow;
        };
        m_Window.OnUnload = [this] { ++m_Unloads; };
    }
    // As the window system sends it.
    void SendSpontaneously(QEvent& event) {
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(&m_Window, &event);
    }
    QAction* Entry(const char* name) { return m_Window.findChild<QAction*>(name); }
    std::string Caption(const char* name) { return FromQString(Entry(name)->text()); }

    cOpenWindows m_Windows;
    cMainWindow m_Window{m_Windows};
    std::vector<eCloseReason> m_Reasons;
    int m_Unloads = 0;
    bool m_Allow = true;
};

TEST_F(MainWindow, TheKeyThatAcknowledgesAllIsToldInTheMenuAndLeftToTheList) {
    EXPECT_EQ(Entry("Menu_AckAll")->shortcut(), QKeySequence(Qt::Key_F9));
    EXPECT_EQ(Entry("Menu_AckAll")->shortcutContext(), Qt::WidgetShortcut);
    int keys = 0, entries = 0;
    m_Window.List().OnKeyDown = [&](int keyCode, int) { keys += keyCode == 120; };
    m_Window.OnMenuAckAll = [&] { ++entries; };
    m_Window.show();
    QTest::keyClick(m_Window.findChild<QTableView*>("ListView_Alarms"), Qt::Key_F9);
    EXPECT_EQ(keys, 1);
    EXPECT_EQ(entries, 0);
}

TEST_F(MainWindow, TheKeyForHelpWorksFromTheList) {
    int helps = 0;
    m_Window.OnHelp = [&] { ++helps; };
    m_Window.show();
    QTest::keyClick(m_Window.findChild<QTableView*>("ListView_Alarms"), Qt::Key_F1);
    EXPECT_EQ(helps, 1);
}

TEST_F(MainWindow, OtherKeysThanThoseForHelpAndCloseDoNeither) {
    int helps = 0;
    m_Window.Show();
    QTest::keyClick(&m_Window, Qt::Key_F1);  // nobody helps yet
    m_Window.OnHelp = [&] { ++helps; };
    m_Allow = false;
    for (const auto& [key, modifier] : {std::pair{Qt::Key_F2, Qt::NoModifier},
                                        {Qt::Key_F4, Qt::NoModifier},
                                        {Qt::Key_F4, Qt::ShiftModifier},
                                        {Qt::Key_F5, Qt::AltModifier}}) {
        QTest::keyClick(&m_Window, key, modifier);
    }
    EXPECT_EQ(helps, 0);
    EXPECT_TRUE(m_Reasons.empty());
}

TEST_F(MainWindow, BeforeItIsToldItsGeometryItHasThatOfTheDesign) {
    EXPECT_EQ(m_Window.size(), QSize(533, 333));
    EXPECT_EQ(m_Window.windowIcon().pixmap(32).toImage(),
              QIcon(":/icons/vigrel-receiver.svg").pixmap(32).toImage());
    EXPECT_FALSE(m_Window.windowIcon().isNull());
}

TEST_F(MainWindow, TheKeyboardOfTheWindowIsTheLists) {
    QWidget* list = &m_Window.List().View();
    m_Window.show();
    m_Window.menuBar()->setFocus();
    m_Window.setFocus();
    EXPECT_EQ(m_Window.focusWidget(), list);
}

TEST_F(MainWindow, ItsElementsCarryTheirNames) {
    EXPECT_EQ(m_Window.objectName(), "Vigrel_Receiver_Main");
    EXPECT_NE(m_Window.findChild<QTableView*>("ListView_Alarms"), nullptr);
    for (const char* name :
         {"Menu_File", "Menu_StopSound", "Menu_StopLight", "Menu_AckAll", "Menu_AckAll_AndClosePopups",
          "Menu_Del1", "Menu_Exit", "Menu_Simulate", "Menu_SimAlarm"}) {
        EXPECT_NE(Entry(name), nullptr) << name;
    }
}

TEST_F(MainWindow, ItsCaptionsByDesign) {
    EXPECT_EQ(m_Window.Caption(), "Vigrel - Larmmottagare");
    EXPECT_EQ(Caption("Menu_File"), "&Arkiv");
    EXPECT_EQ(Caption("Menu_StopSound"), "&St\xE4ng av ljudsignal");
    EXPECT_EQ(Caption("Menu_StopLight"), "&St\xE4ng av ljussignal");
    EXPECT_EQ(Caption("Menu_AckAll"), "&Kvittera alla");
    EXPECT_EQ(Caption("Menu_AckAll_AndClosePopups"), "Kvittera alla och st\xE4ng alla &popupf\xF6nster");
    EXPECT_EQ(Caption("Menu_Exit"), "&Avsluta");
    EXPECT_EQ(Caption("Menu_Simulate"), "&Simulera");
    EXPECT_EQ(Caption("Menu_SimAlarm"), "&Larm...");
}

TEST_F(MainWindow, TheMenusHoldTheirEntriesInOrder) {
    QStringList names;
    for (const QAction* menu : m_Window.menuBar()->actions()) {
        names += menu->objectName();
        for (const QAction* entry : menu->menu()->actions()) names += entry->objectName();
    }
    EXPECT_EQ(names.join(' '),
              "Menu_File Menu_StopSound Menu_StopLight Menu_AckAll Menu_AckAll_AndClosePopups Menu_Del1 "
              "Menu_Exit Menu_Simulate Menu_SimAlarm");
    EXPECT_TRUE(Entry("Menu_Del1")->isSeparator());
}

TEST_F(MainWindow, EntriesTakeCaptionsEnabledAndVisible) {
    m_Window.SetCaption("Menu_Exit", "E&xit\tAlt+F4");
    EXPECT_EQ(Caption("Menu_Exit"), "E&xit\tAlt+F4");
    m_Window.SetEnabled("Menu_StopLight", false);
    EXPECT_FALSE(Entry("Menu_StopLight")->isEnabled());
    m_Window.SetVisible("Menu_Simulate", false);
    EXPECT_FALSE(Entry("Menu_Simulate")->isVisible());
    m_Window.SetCaption("Menu_File", "&File");
    EXPECT_EQ(Caption("Menu_File"), "&File");
    EXPECT_THROW(m_Window.SetEnabled("Menu_Nothing", true), cFailure);
}

TEST_F(MainWindow, EachEntryHasItsEvent) {
    std::string chosen;
    m_Window.OnMenuStopSound = [&] { chosen += "sound "; };
    m_Window.OnMenuStopLight = [&] { chosen += "light "; };
    m_Window.OnMenuAckAll = [&] { chosen += "ack "; };
    m_Window.OnMenuAckAllAndClosePopups = [&] { chosen += "popups "; };
    m_Window.OnMenuExit = [&] { chosen += "exit "; };
    m_Window.OnMenuSimAlarm = [&] { chosen += "simulate "; };
    for (const char* name : {"Menu_StopSound", "Menu_StopLight", "Menu_AckAll", "Menu_AckAll_AndClosePopups",
                             "Menu_Exit", "Menu_SimAlarm"}) {
        Entry(name)->trigger();
    }
    EXPECT_EQ(chosen, "sound light ack popups exit simulate ");
}

TEST_F(MainWindow, AnEntryWithoutListenerDoesNothing) {
    for (QAction* entry : m_Window.findChildren<QAction*>()) entry->trigger();
    EXPECT_TRUE(m_Reasons.empty());
}

TEST_F(MainWindow, OpeningTheFileMenuIsTold) {
    int opened = 0;
    m_Window.Show();
    QMenu* menu = Entry("Menu_File")->menu();
    menu->popup({});  // nobody hears it yet
    menu->close();
    m_Window.OnMenuFileOpens = [&] { ++opened; };
    menu->popup({});
    EXPECT_EQ(opened, 1);
    menu->close();
}

TEST_F(MainWindow, TheListFillsTheInside) {
    m_Window.Show();
    m_Window.resize(700, 500);
    RunEvents(30);
    const QWidget& list = m_Window.List().View();
    EXPECT_EQ(list.x(), 0);
    EXPECT_EQ(list.width() * 15, m_Window.InnerWidth());
    EXPECT_EQ(list.height() * 15, m_Window.InnerHeight());
    EXPECT_EQ(list.geometry().bottom(), m_Window.height() - 1);
    EXPECT_LT(m_Window.InnerHeight(), m_Window.Height());
}

TEST_F(MainWindow, TheListHasTheFocus) {
    m_Window.Show();
    EXPECT_TRUE(WaitUntil([&] { return m_Window.List().View().hasFocus(); }));
}

TEST_F(MainWindow, TheFocusRaisesItToo) {
    // A desktop may refuse to make a window the active one that nobody clicked.
    m_Window.Show();
    const cRaises raises(m_Window);
    WaitUntil([&] { return SkipFailure([&] { m_Window.SetFocus(); }) && raises.m_Count > 0; });
    EXPECT_EQ(raises.m_Count, 1);
}

TEST_F(MainWindow, ManyWhoAskForTheFrontAtOnceShareASecondWayThere) {
    m_Window.Show();
    RunEvents(200);
    const cRaises raises(m_Window);
    for (int i = 0; i < 20; ++i) m_Window.SetFocus();
    EXPECT_EQ(raises.m_Count, 1);
    EXPECT_TRUE(WaitUntil([&] { return raises.m_Count == 2; }));
    RunEvents(200);
    EXPECT_EQ(raises.m_Count, 2);
    m_Window.SetFocus();
    EXPECT_EQ(raises.m_Count, 3);
}

TEST_F(MainWindow, WhatIsHiddenOrAnIconByThenComesToTheFrontNoMore) {
    m_Window.Show();
    RunEvents(200);
    const cRaises raises(m_Window);
    m_Window.SetFocus();
    m_Window.SetFocus();
    m_Window.SetState(eWindowState::Minimised);
    RunEvents(200);
    EXPECT_EQ(raises.m_Count, 1);
    m_Window.SetState(eWindowState::Normal);
    m_Window.SetFocus();
    m_Window.SetFocus();
    m_Window.Hide();
    RunEvents(200);
    EXPECT_EQ(raises.m_Count, 2);
}

TEST_F(MainWindow, ShownAsAnIconItDoesNotComeToTheFront) {
    m_Window.SetState(eWindowState::Minimised);
    const cRaises raises(m_Window);
    m_Window.Show();
    EXPECT_EQ(raises.m_Count, 0);
    m_Window.SetState(eWindowState::Normal);
    m_Window.Show();
    EXPECT_EQ(raises.m_Count, 1);
}

TEST_F(MainWindow, ComingToTheFrontLeavesAQuestionInFrontAndOpen) {
    m_Window.Show();
    RunEvents(200);
    QDialog question;
    question.setModal(true);
    question.show();
    question.setWindowState(Qt::WindowMinimized);
    const cRaises raises(question);
    m_Window.SetFocus();
    EXPECT_FALSE(question.isMinimized());
    EXPECT_EQ(raises.m_Count, 1);
    question.hide();
    RunEvents(200);
    m_Window.SetFocus();
    EXPECT_EQ(raises.m_Count, 1);
}

TEST_F(MainWindow, FocusOnAHiddenOrMinimisedWindowIsAFailure) {
    EXPECT_THROW(m_Window.SetFocus(), cFailure);
    m_Window.Show();
    EXPECT_NO_THROW(m_Window.SetFocus());
    m_Window.SetState(eWindowState::Minimised);
    EXPECT_THROW(m_Window.SetFocus(), cFailure);
    m_Window.SetState(eWindowState::Normal);
    m_Window.Hide();
    EXPECT_THROW(m_Window.SetFocus(), cFailure);
}

TEST_F(MainWindow, AChangeOfStateOrSizeIsAResize) {
    m_Window.Show();
    RunEvents(20);
    int resizes = 0;
    m_Window.OnResize = [&] { ++resizes; };
    m_Window.SetWidth(9000);
    EXPECT_GE(resizes, 1);
    resizes = 0;
    m_Window.SetState(eWindowState::Minimised);
    EXPECT_GE(resizes, 1);
    EXPECT_EQ(m_Window.State(), eWindowState::Minimised);
}

TEST_F(MainWindow, AMinimisedStateCanBeUndoneInItsOwnResize) {
    m_Window.Show();
    m_Window.OnResize = [&] {
        if (m_Window.State() == eWindowState::Minimised) m_Window.SetState(eWindowState::Normal);
    };
    m_Window.SetState(eWindowState::Minimised);
    EXPECT_EQ(m_Window.State(), eWindowState::Normal);
}

TEST_F(MainWindow, GeometryIsInTwips) {
    m_Window.SetTop(1500);
    m_Window.SetLeft(3000);
    m_Window.SetHeight(6000);
    m_Window.SetWidth(9000);
    EXPECT_EQ(m_Window.Top(), 1500);
    EXPECT_EQ(m_Window.Left(), 3000);
    EXPECT_EQ(m_Window.Height(), 6000);
    EXPECT_EQ(m_Window.Width(), 9000);
    EXPECT_EQ(m_Window.pos(), QPoint(200, 100));
}

// --- closing

TEST_F(MainWindow, TheWindowManagersCloseHasReason0) {
    m_Window.Show();
    m_Allow = false;
    QCloseEvent close;
    SendSpontaneously(close);
    EXPECT_EQ(m_Reasons, std::vector{eCloseReason::Control});
    EXPECT_TRUE(m_Window.isVisible());
    EXPECT_EQ(m_Unloads, 0);
}

TEST_F(MainWindow, TheProgramsCloseHasReason1AndARefusalIsAFailure) {
    m_Window.Show();
    m_Allow = false;
    EXPECT_THROW(m_Window.Close(), cFailure);
    EXPECT_EQ(m_Reasons, std::vector{eCloseReason::Code});
    m_Allow = true;
    m_Window.Close();
    EXPECT_EQ(m_Unloads, 1);
    EXPECT_FALSE(m_Window.isVisible());
}

TEST_F(MainWindow, AnIconOfAMaximisedWindowComesBackMaximised) {
    m_Window.Show();
    m_Window.SetState(eWindowState::Maximised);
    m_Window.SetState(eWindowState::Minimised);
    EXPECT_EQ(m_Window.State(), eWindowState::Minimised);
    // What the window manager does when the icon is clicked.
    m_Window.setWindowState(m_Window.windowState() & ~Qt::WindowMinimized);
    EXPECT_EQ(m_Window.State(), eWindowState::Maximised);
    m_Window.SetState(eWindowState::Normal);
    EXPECT_EQ(m_Window.State(), eWindowState::Normal);
}

TEST_F(MainWindow, TheEndOfTheSessionHasReason2) {
    m_Window.Show();
    EXPECT_TRUE(m_Window.CloseFor(eCloseReason::SessionEnd));
    EXPECT_FALSE(m_Window.isVisible());
    EXPECT_EQ(m_Reasons, std::vector{eCloseReason::SessionEnd});
    EXPECT_EQ(m_Unloads, 1);
}

TEST_F(MainWindow, AQuitOfTheToolkitHasReason2) {
    m_Window.Show();
    m_Window.close();
    EXPECT_EQ(m_Reasons, std::vector{eCloseReason::SessionEnd});
}

TEST_F(MainWindow, AltF4ClosesWhereTheWindowManagerLeavesItToTheWindow) {
    m_Window.Show();
    m_Allow = false;
    QTest::keyClick(&m_Window.List().View(), Qt::Key_F4, Qt::AltModifier);
    EXPECT_EQ(m_Reasons, std::vector{eCloseReason::Control});
}

TEST_F(MainWindow, ItsEndIsTheEndOfTheEventLoop) {
    m_Window.Show();
    QWidget other;
    other.show();
    QTimer::singleShot(0, &m_Window, [&] { m_Window.Close(); });
    QTimer::singleShot(5000, &m_Window, [] { QCoreApplication::exit(9); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_TRUE(other.isVisible());
}

TEST_F(MainWindow, HidingItLeavesTheProgramRunning) {
    m_Window.Show();
    QTimer::singleShot(20, &m_Window, [&] { m_Window.Hide(); });
    QTimer::singleShot(100, &m_Window, [] { QCoreApplication::exit(9); });
    EXPECT_EQ(QCoreApplication::exec(), 9);
}

// --- the desktop

TEST(Desktop, TheScreenIsMeasuredInTwips) {
    const cQtScreen screen;
    EXPECT_EQ(screen.Width(), QGuiApplication::primaryScreen()->geometry().width() * 15);
    EXPECT_EQ(screen.Height(), QGuiApplication::primaryScreen()->geometry().height() * 15);
    EXPECT_EQ(screen.TwipsPerPixelX(), 15);
    EXPECT_EQ(screen.TwipsPerPixelY(), 15);
}

TEST(Desktop, TheClipboardTakesTextOfTheCodePage) {
    cQtClipboard clipboard;
    clipboard.SetText("\xE5\xE4\xF6\t1\r\n");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("åäö\t1\r\n"));
    clipboard.Clear();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "");
}

TEST(Desktop, ABeepIsTheToneOfOurOwn) {
    int tones = 0;
    cQtBeeper beeper([&] {
        ++tones;
        return true;
    });
    beeper.Beep();
    EXPECT_EQ(tones, 1);
}

}  // namespace
}  // namespace vigrel::testing
