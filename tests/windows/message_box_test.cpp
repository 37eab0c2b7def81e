#include "windows/qt_message_box.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <functional>

#include "support/qt_wait.h"
#include "windows/plain_text.h"

namespace vigrel::testing {
namespace {

class MessageBox : public ::testing::Test {
  protected:
    // Shows a box and acts on it as the operator would.
    eMessageAnswer Show(eMessageIcon icon, eMessageButtons buttons,
                        const std::function<void(QMessageBox&)>& operate) {
        QTimer::singleShot(0, [&] {
            ASSERT_TRUE(WaitUntil([] { return QApplication::activeModalWidget() != nullptr; }));
            operate(*qobject_cast<QMessageBox*>(QApplication::activeModalWidget()));
        });
        return m_Box.Show("\xC4r det s\xE4kert? <b>1 & 2</b>", icon, buttons);
    }
    cQtMessageBox m_Box{"Vigrel Alarm Receiver"};
};

TEST_F(MessageBox, ShowsItsTextAsItStandsWithItsIcon) {
    Show(eMessageIcon::Stop, eMessageButtons::Ok, [](QMessageBox& box) {
        EXPECT_EQ(box.text(), QString::fromUtf8("Är det säkert? <b>1 & 2</b>"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.objectName(), "Vigrel_MessageBox");
        EXPECT_EQ(box.windowTitle(), "Vigrel Alarm Receiver");
        box.close();
    });
}

TEST_F(MessageBox, EachKindHasItsIconAndLiesOverAllWindows) {
    for (const auto& expected : {std::pair{eMessageIcon::Stop, QMessageBox::Critical},
                                 {eMessageIcon::Warning, QMessageBox::Warning},
                                 {eMessageIcon::Question, QMessageBox::Question}}) {
        Show(expected.first, eMessageButtons::Ok, [&](const QMessageBox& box) {
            EXPECT_EQ(box.icon(), expected.second);
            EXPECT_EQ(box.parentWidget(), nullptr);
            EXPECT_EQ(box.windowModality(), Qt::ApplicationModal);
            EXPECT_TRUE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
            EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
            QTest::keyClick(box.button(QMessageBox::Ok), Qt::Key_Return);
        });
    }
}

TEST_F(MessageBox, ABoxForAWhileHasTheSameTextAndCanBeClosedBefore) {
    bool seen = false;
    QTimer::singleShot(0, [&] {
        ASSERT_TRUE(WaitUntil([] { return QApplication::activeModalWidget() != nullptr; }));
        auto& box = *qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        EXPECT_EQ(box.text(), "no disk");
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        seen = true;
        box.button(QMessageBox::Ok)->click();
    });
    m_Box.ShowForAWhile("no disk", eMessageIcon::Warning);
    EXPECT_TRUE(seen);
}

// Names of any length stand in it, and reasons of many lines.
TEST_F(MessageBox, OfALongTextHasItsButtonsOnTheScreen) {
    const QString words = "Begin " + QString("W ").repeated(30000) + "end",
                  lines = "Begin\n" + QString("line\n").repeated(3000) + "end";
    for (const QString& text : {words, lines}) {
        const auto look = [](const QMessageBox& box) {
            EXPECT_LT(box.height(), 700);
            EXPECT_TRUE(box.text().startsWith("Begin") && box.text().endsWith("end"));
        };
        cPlainMessageBox plain(QMessageBox::Question, "Vigrel", text, QMessageBox::Yes | QMessageBox::No);
        plain.show();
        look(plain);
        QTimer::singleShot(0, [&] {
            ASSERT_TRUE(WaitUntil([] { return QApplication::activeModalWidget() != nullptr; }));
            auto& box = *qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            look(box);
            box.close();
        });
        plain.hide();
        m_Box.Show(text.toStdString(), eMessageIcon::Stop, eMessageButtons::Ok);
    }
}

TEST_F(MessageBox, LeavesTheKeyboardToTheWindowThatHadIt) {
    QWidget first, second;
    for (QWidget* window : {&first, &second, &first}) {
        window->show();
        window->activateWindow();
        ASSERT_TRUE(WaitUntil([&] { return window->isActiveWindow(); }));
        Show(eMessageIcon::Warning, eMessageButtons::Ok, [&](QMessageBox& box) {
            EXPECT_TRUE(WaitUntil([&] { return box.isActiveWindow(); }));
            box.close();
        });
        EXPECT_TRUE(WaitUntil([&] { return window->isActiveWindow(); }));
    }
    // One that has become an icon meanwhile stays one.
    Show(eMessageIcon::Warning, eMessageButtons::Ok, [&](QMessageBox& box) {
        first.setWindowState(Qt::WindowMinimized);
        box.close();
    });
    EXPECT_TRUE(first.isMinimized());
}

TEST_F(MessageBox, AnswersWithTheButtonPressed) {
    const auto press = [](QMessageBox::StandardButton button) {
        return [button](QMessageBox& box) { box.button(button)->click(); };
    };
    EXPECT_EQ(Show(eMessageIcon::Question, eMessageButtons::YesNo, press(QMessageBox::Yes)),
              eMessageAnswer::Yes);
    EXPECT_EQ(Show(eMessageIcon::Question, eMessageButtons::YesNo, press(QMessageBox::No)),
              eMessageAnswer::No);
    EXPECT_EQ(Show(eMessageIcon::Warning, eMessageButtons::Ok, press(QMessageBox::Ok)), eMessageAnswer::Ok);
}

TEST_F(MessageBox, AQuestionClosedWithoutAnAnswerIsNo) {
    EXPECT_EQ(Show(eMessageIcon::Question, eMessageButtons::YesNo, [](QMessageBox& box) { box.close(); }),
              eMessageAnswer::No);
    EXPECT_EQ(Show(eMessageIcon::Question, eMessageButtons::YesNo,
                   [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }),
              eMessageAnswer::No);
}

TEST_F(MessageBox, EnterOnAQuestionIsNoSoThatNothingIsConfirmedByAccident) {
    EXPECT_EQ(Show(eMessageIcon::Question, eMessageButtons::YesNo,
                   [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }),
              eMessageAnswer::No);
}

TEST_F(MessageBox, TimersGoOnWhileABoxStands) {
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(1);
    Show(eMessageIcon::Warning, eMessageButtons::Ok, [&](QMessageBox& box) {
        EXPECT_TRUE(WaitUntil([&] { return ticks > 2; }));
        box.close();
    });
}

}  // namespace
}  // namespace vigrel::testing
