#include "receiver_ui/dialogs/notice_window.h"

#include <gtest/gtest.h>

#include <QMenu>
#include <QStyle>
#include <QTest>

#include "core/receiver_ports.h"
#include "receiver_ui/dialogs/other_windows.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"
#include "support/fake_locale.h"
#include "support/fake_settings.h"
#include "support/fake_windows.h"
#include "support/markup.h"
#include "windows/application.h"
#include "windows/desktop.h"

namespace vigrel::testing {
namespace {

class NoticeWindow : public ::testing::Test {
  protected:
    QWidget* Window() const {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == "Vigrel_Receiver_Notice" && widget->isVisible()) return widget;
        }
        return nullptr;
    }

    cFakeFiles m_Files;
    const cFakeClock m_Clock{};
    const cFakeLocale m_Locale{};
    const cQtScreen m_Screen{};
    const cFakeSettings m_Settings{};
    cOpenWindows m_Windows;
    cFakeMessageBox m_Box{nullptr};
    cQtOtherWindows m_Others{{m_Files, m_Clock, m_Locale, m_Screen, m_Settings, m_Windows,
                              dynamic_cast<cApplication&>(*qApp), m_Box},
                             "C:\\App\\"};
};

TEST_F(NoticeWindow, ShowsItsTextAboveTheOthersWithoutTheKeyboard) {
    m_Others.ShowNotice("3 alarms\r\n\r\nmake room");
    ASSERT_NE(Window(), nullptr);
    EXPECT_EQ(Window()->findChild<QLabel*>("Label_Notice")->text(), "3 alarms\n\nmake room");
    EXPECT_TRUE(Window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(Window()->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_EQ(Window()->windowTitle(), "Vigrel Alarm Receiver");
}

TEST_F(NoticeWindow, IsOneWindowWhoseTextChangesAndWhichGoes) {
    m_Others.ShowNotice("3 alarms");
    const QWidget* first = Window();
    m_Others.ShowNotice("4 alarms");
    EXPECT_EQ(Window(), first);
    EXPECT_EQ(Window()->findChild<QLabel*>("Label_Notice")->text(), "4 alarms");
    EXPECT_EQ(m_Windows.OpenWindows().size(), 1u);
    m_Others.ShowNotice("");
    EXPECT_EQ(Window(), nullptr);
    EXPECT_TRUE(m_Windows.OpenWindows().empty());
    m_Others.ShowNotice("");
}

TEST_F(NoticeWindow, PutAwayItComesBackWithTheNextText) {
    m_Others.ShowNotice("3 alarms");
    QTest::keyClick(Window(), Qt::Key_Escape);
    EXPECT_EQ(Window(), nullptr);
    m_Others.ShowNotice("4 alarms");
    EXPECT_NE(Window(), nullptr);
}

TEST_F(NoticeWindow, MadeAnIconItComesBackWithTheNextText) {
    m_Others.ShowNotice("3 alarms");
    Window()->setWindowState(Qt::WindowMinimized);
    ASSERT_TRUE(Window()->isMinimized());
    m_Others.ShowNotice("4 alarms");
    EXPECT_FALSE(Window()->isMinimized());
}

TEST_F(NoticeWindow, StandsWholeHoweverLongItsTextBecomes) {
    m_Others.ShowNotice("short");
    QCoreApplication::processEvents();
    const auto labels = Window()->findChildren<QLabel*>();
    ASSERT_EQ(labels.size(), 2);
    const QLabel& words = *Window()->findChild<QLabel*>("Label_Notice");
    const QLabel& picture = *(labels[0] == &words ? labels[1] : labels[0]);
    EXPECT_EQ(picture.pixmap().toImage(),
              qApp->style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(48).toImage());
    EXPECT_EQ(picture.pos(), QPoint(16, 16));
    EXPECT_EQ(words.x(), picture.geometry().right() + 1 + 16);
    EXPECT_EQ(words.width(), 360);
    const int before = Window()->height();
    std::string text;
    for (int i = 0; i < 80; ++i) text += "many words ";
    m_Others.ShowNotice(text);
    QCoreApplication::processEvents();
    EXPECT_GT(Window()->height(), before);
    EXPECT_LT(Window()->width(), 1000);
    EXPECT_GE(words.height(), words.heightForWidth(words.width()));
    EXPECT_EQ(words.geometry().bottom() + 1 + 16, Window()->height());
    EXPECT_EQ(words.geometry().right() + 1 + 16, Window()->width());
}

TEST_F(NoticeWindow, AssistiveToolsReadEachText) {
    for (const auto& [text, read] :
         {std::pair{"3 alarms\r\nmake room", "3 alarms\nmake room"}, {"4 alarms", "4 alarms"}}) {
        m_Others.ShowNotice(text);
        EXPECT_EQ(Window()->findChild<QLabel*>("Label_Notice")->accessibleName(), read);
    }
}

TEST_F(NoticeWindow, OtherKeysThanEscapeLeaveIt) {
    m_Others.ShowNotice("3 alarms");
    QTest::keyClick(Window(), Qt::Key_A);
    QTest::keyClick(Window(), Qt::Key_Return);
    EXPECT_NE(Window(), nullptr);
}

TEST_F(NoticeWindow, MaximisedItStaysSoWithTheNextText) {
    m_Others.ShowNotice("3 alarms");
    Window()->setWindowState(Qt::WindowMaximized);
    m_Others.ShowNotice("4 alarms");
    EXPECT_TRUE(Window()->isMaximized());
}

TEST_F(NoticeWindow, LeavesAnOpenMenuOpen) {
    QWidget station;
    station.show();
    QMenu menu(&station);
    menu.addAction("Acknowledge all");
    menu.popup({});
    m_Others.ShowNotice("3 alarms");
    EXPECT_TRUE(menu.isVisible());
    EXPECT_EQ(Window()->windowType(), Qt::Dialog);
}

TEST_F(NoticeWindow, ItsTextIsPlain) {
    for (const char* text : kMarkup) {
        m_Others.ShowNotice(text);
        ExpectPlain(Window()->findChild<QLabel*>("Label_Notice"), QString(text));
    }
}

}  // namespace
}  // namespace vigrel::testing
