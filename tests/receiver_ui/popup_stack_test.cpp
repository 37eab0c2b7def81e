#include "receiver_ui/popups/popup_stack.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QThread>

#include "support/qt_wait.h"
#include "support/raises.h"

namespace vigrel::testing {
namespace {

class cPopupThatCounts : public cStackedPopup {
  public:
    bool OnScreen() const override { return m_Reached > 0; }
    void RaiseOnScreen() override { ++m_Raised; }
    bool ReachScreen() override {
        QThread::msleep(m_Milliseconds);
        return m_Reached++ == 0;
    }
    bool CanTakeKeyboard() const override { return OnScreen() && !m_IsIcon; }
    void TakeKeyboard() override { ++m_Keyboards; }

    int m_Reached = 0, m_Raised = 0, m_Keyboards = 0;
    unsigned long m_Milliseconds = 0;  // that it takes to reach the screen
    bool m_IsIcon = false;
};

class PopupStack : public ::testing::Test {
  protected:
    cPopupThatCounts m_First, m_Second, m_Third;
    cOpenWindows m_Windows;
    cPopupStack m_Stack{m_Windows};
};

TEST_F(PopupStack, AllWishesOfAPopupReachTheScreenAtOnce) {
    m_Stack.Raise(m_First);
    m_Stack.Schedule(m_First);
    m_Stack.Raise(m_First);
    m_Stack.Apply();
    EXPECT_EQ(m_First.m_Reached, 1);
    EXPECT_EQ(m_First.m_Raised, 1);
    m_Stack.Schedule(m_First);
    m_Stack.Apply();
    EXPECT_EQ(m_First.m_Reached, 2);
    EXPECT_FALSE(m_Stack.Waits());
}

TEST_F(PopupStack, ARemovedPopupReachesNoScreen) {
    m_Stack.Raise(m_First);
    m_Stack.Schedule(m_First);
    m_Stack.Remove(m_First);
    EXPECT_FALSE(m_Stack.Waits());
    m_Stack.Apply();
    EXPECT_EQ(m_First.m_Reached, 0);
    EXPECT_TRUE(m_Stack.Order().empty());
}

TEST_F(PopupStack, WhatLiesBelowTheLowestChangeIsNotRaised) {
    for (cPopupThatCounts* popup : {&m_First, &m_Second, &m_Third}) m_Stack.Raise(*popup);
    m_Stack.Apply();
    EXPECT_EQ(m_First.m_Raised, 1);
    m_Stack.PlaceBehind(m_Third, m_Second);
    m_Stack.Apply();
    EXPECT_EQ(m_Stack.Order(), (std::vector<cStackedPopup*>{&m_Second, &m_Third, &m_First}));
    EXPECT_EQ(m_First.m_Raised, 1);
    EXPECT_EQ(m_Second.m_Raised, 2);
    EXPECT_EQ(m_Third.m_Raised, 2);
}

TEST_F(PopupStack, TheKeyboardIsPassedToTheUppermostThatCanTakeItOnce) {
    for (cPopupThatCounts* popup : {&m_First, &m_Second, &m_Third}) m_Stack.Raise(*popup);
    m_Stack.Apply();
    m_Stack.Remove(m_Third);
    m_Stack.PassKeyboardOn();
    m_Stack.Apply();
    m_Stack.Apply();
    EXPECT_EQ(m_First.m_Keyboards, 0);
    EXPECT_EQ(m_Second.m_Keyboards, 1);
}

TEST_F(PopupStack, WhatIsWishedReachesTheScreenByItself) {
    m_Stack.Raise(m_First);
    EXPECT_EQ(m_First.m_Reached, 0);
    EXPECT_TRUE(WaitUntil([&] { return m_First.m_Reached == 1; }));
    m_Stack.Schedule(m_First);
    EXPECT_TRUE(WaitUntil([&] { return m_First.m_Reached == 2; }));
    EXPECT_EQ(m_First.m_Raised, 1);
}

TEST_F(PopupStack, ATurnEndsWithThePopupThatUsesItUp) {
    for (cPopupThatCounts* popup : {&m_First, &m_Second, &m_Third}) {
        popup->m_Milliseconds = cPopupStack::kTurnMilliseconds + 5;
        m_Stack.Raise(*popup);
    }
    ASSERT_TRUE(WaitUntil([&] { return m_First.m_Reached == 1; }));
    EXPECT_EQ(m_Second.m_Reached, 0);
    EXPECT_EQ(m_First.m_Raised, 1);
    m_Stack.Apply();
    EXPECT_EQ(m_Second.m_Reached, 1);
    EXPECT_EQ(m_Third.m_Reached, 1);
    EXPECT_FALSE(m_Stack.Waits());
}

TEST_F(PopupStack, WhileAlarmsComeInATurnIsFollowedByARestOfSeveralTimesItsLength) {
    QElapsedTimer turnAndRest;
    turnAndRest.start();
    m_First.m_Milliseconds = 20;
    m_Stack.Raise(m_First);
    ASSERT_TRUE(WaitUntil([&] { return m_First.m_Reached == 1; }));
    m_Stack.Raise(m_Second);
    ASSERT_TRUE(WaitUntil([&] { return m_Second.m_Reached == 1; }));
    EXPECT_GE(turnAndRest.elapsed(), 20 + 20 * cPopupStack::kRestsPerTurn - 5);
}

TEST_F(PopupStack, BehindOneThatIsGoneAPopupLiesLowest) {
    for (cPopupThatCounts* popup : {&m_First, &m_Second, &m_Third}) m_Stack.Raise(*popup);
    m_Stack.Remove(m_Third);
    m_Stack.PlaceBehind(m_Second, m_Third);
    EXPECT_EQ(m_Stack.Order(), (std::vector<cStackedPopup*>{&m_First, &m_Second}));
}

TEST_F(PopupStack, ARemovedPopupIsNotRaisedAgain) {
    for (cPopupThatCounts* popup : {&m_First, &m_Second, &m_Third}) m_Stack.Raise(*popup);
    m_Stack.Apply();
    m_Stack.Remove(m_Second);
    m_Stack.Apply();
    for (const cPopupThatCounts* popup : {&m_First, &m_Second, &m_Third}) EXPECT_EQ(popup->m_Raised, 1);
}

TEST_F(PopupStack, TheKeyboardIsPassedOnWithoutAnybodysAsking) {
    m_Stack.Raise(m_First);
    m_Stack.Apply();
    m_Stack.PassKeyboardOn();
    EXPECT_TRUE(WaitUntil([&] { return m_First.m_Keyboards == 1; }));
}

TEST_F(PopupStack, TheKeyboardWaitsForThePopupsThatWait) {
    m_First.m_IsIcon = true;
    m_First.m_Milliseconds = cPopupStack::kTurnMilliseconds + 5;
    m_Stack.Raise(m_First);
    m_Stack.Raise(m_Second);
    m_Stack.PassKeyboardOn();
    ASSERT_TRUE(WaitUntil([&] { return m_First.m_Reached == 1; }));
    EXPECT_EQ(m_Second.m_Keyboards, 0);
    m_Stack.Apply();
    EXPECT_EQ(m_First.m_Keyboards, 0);
    EXPECT_EQ(m_Second.m_Keyboards, 1);
}

TEST_F(PopupStack, APopupOfALaterAlarmInheritsNoKeyboard) {
    m_First.m_IsIcon = true;
    m_Stack.Raise(m_First);
    m_Stack.Apply();
    m_Stack.PassKeyboardOn();
    m_Stack.Apply();
    m_Stack.Raise(m_Second);
    m_Stack.Apply();
    EXPECT_EQ(m_Second.m_Keyboards, 0) << "none could take it then";
    m_Stack.PassKeyboardOn();
    m_Stack.Remove(m_First);
    m_Stack.Remove(m_Second);
    m_Stack.PassKeyboardOn();
    m_Stack.Raise(m_Third);
    m_Stack.Apply();
    EXPECT_EQ(m_Third.m_Keyboards, 0) << "none was left then";
}

TEST_F(PopupStack, AKeyboardThatLeftLongAgoStaysWhereItIs) {
    m_Stack.Raise(m_First);
    m_Stack.Apply();
    m_Stack.PassKeyboardOn();
    QThread::msleep(cPopupStack::kPassOnMilliseconds + 20);
    m_Stack.Apply();
    m_Stack.Apply();
    EXPECT_EQ(m_First.m_Keyboards, 0);
}

TEST_F(PopupStack, ANewOrderLeavesAQuestionInFront) {
    QDialog question;
    question.setModal(true);
    question.show();
    const cRaises raises(question);
    m_Stack.Raise(m_First);
    m_Stack.Apply();
    EXPECT_EQ(raises.m_Count, 1);
    m_Stack.Schedule(m_First);
    m_Stack.Apply();
    EXPECT_EQ(raises.m_Count, 1) << "where nothing was raised";
}

TEST_F(PopupStack, ComesUpAgainOverAWindowThatStaysOnTopToo) {
    m_Windows.KeepOver(eLayer::Main);
    EXPECT_FALSE(m_Stack.Waits());
    for (cPopupThatCounts* popup : {&m_First, &m_Second}) m_Stack.Raise(*popup);
    m_Stack.Apply();
    m_Windows.KeepOver(eLayer::Main);
    EXPECT_TRUE(WaitUntil([&] { return m_First.m_Raised == 2 && m_Second.m_Raised == 2; }));
    EXPECT_EQ(m_First.m_Reached, 1) << "nothing was wished of it";
    m_Windows.KeepOver(eLayer::Popups);
    m_Stack.Apply();
    EXPECT_EQ(m_Second.m_Raised, 2);
}

TEST_F(PopupStack, ANewOrderIsFollowedByWhatLiesOverThePopups) {
    int noticeRaised = 0;
    m_Windows.SetRaise(eLayer::Notice, [&] { ++noticeRaised; });
    m_Stack.Raise(m_First);
    m_Stack.Apply();
    EXPECT_EQ(noticeRaised, 1);
    m_Stack.Schedule(m_First);
    m_Stack.Apply();
    EXPECT_EQ(noticeRaised, 1) << "where nothing was raised";
}

}  // namespace
}  // namespace vigrel::testing
