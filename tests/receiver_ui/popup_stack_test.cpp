#include "receiver_ui/popups/popup_stack.h"

#include <gtest/gtest.h>

namespace vigrel::testing {
namespace {

class cPopupThatCounts : public cStackedPopup {
  public:
    bool OnScreen() const override { return m_Reached > 0; }
    void RaiseOnScreen() override { ++m_Raised; }
    bool ReachScreen() override { return m_Reached++ == 0; }
    bool CanTakeKeyboard() const override { return OnScreen(); }
    void TakeKeyboard() override { ++m_Keyboards; }

    int m_Reached = 0, m_Raised = 0, m_Keyboards = 0;
};

class PopupStack : public ::testing::Test {
  protected:
    cPopupThatCounts m_First, m_Second, m_Third;
    cPopupStack m_Stack;
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

}  // namespace
}  // namespace vigrel::testing
