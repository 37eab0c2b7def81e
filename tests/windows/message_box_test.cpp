#include "windows/qt_message_box.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <functional>

#include "support/qt_wait.h"

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
