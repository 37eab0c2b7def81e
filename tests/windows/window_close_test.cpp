#include "windows/window_close.h"

#include <gtest/gtest.h>

#include "support/fake_windows.h"

namespace vigrel::testing {
namespace {

class WindowClose : public ::testing::Test {
  protected:
    WindowClose() {
        m_Window.OnQueryUnload = [this](eCloseReason) {
            m_Steps += "query ";
            return m_Allowed;
        };
        m_Window.OnUnload = [this] { m_Steps += "unload "; };
    }
    bool Close() { return m_Close.TryClose(eCloseReason::Control); }

    cOpenWindows m_Windows;
    testing::cFakeWindow m_Window;
    bool m_Allowed = true;
    std::string m_Steps;
    cWindowClose m_Close{m_Window, m_Windows,
                         [this] { m_Steps += m_Windows.Holds(m_Window) ? "closed while open " : "closed "; }};
};

TEST_F(WindowClose, AWindowThatIsNotOpenClosesWithoutAWord) {
    EXPECT_EQ(m_Close.State(), cWindowClose::eState::Closed);
    EXPECT_TRUE(Close());
    EXPECT_EQ(m_Steps, "");
}

TEST_F(WindowClose, AQueryThatIsRefusedLeavesItOpen) {
    m_Windows.Enter(m_Window);
    m_Allowed = false;
    EXPECT_FALSE(Close());
    EXPECT_EQ(m_Close.State(), cWindowClose::eState::Open);
    EXPECT_EQ(m_Steps, "query ");
}

TEST_F(WindowClose, TheStepsRunInTheirOrderAndOnce) {
    m_Windows.Enter(m_Window);
    EXPECT_TRUE(Close());
    EXPECT_EQ(m_Close.State(), cWindowClose::eState::Closed);
    EXPECT_TRUE(Close());
    EXPECT_EQ(m_Steps, "query unload closed ");
}

TEST_F(WindowClose, ACloseWithinTheUnloadStepRunsNothingTwice) {
    m_Windows.Enter(m_Window);
    m_Window.OnUnload = [this] {
        EXPECT_EQ(m_Close.State(), cWindowClose::eState::Closing);
        EXPECT_TRUE(Close());
        m_Steps += "unload ";
    };
    EXPECT_TRUE(Close());
    EXPECT_EQ(m_Steps, "query unload closed ");
}

TEST_F(WindowClose, OpenedAgainItAsksAgain) {
    m_Windows.Enter(m_Window);
    Close();
    m_Windows.Enter(m_Window);
    EXPECT_EQ(m_Close.State(), cWindowClose::eState::Open);
    EXPECT_TRUE(Close());
    EXPECT_EQ(m_Steps, "query unload closed query unload closed ");
}

TEST_F(WindowClose, TheQueryIsToldTheReason) {
    m_Windows.Enter(m_Window);
    eCloseReason told = eCloseReason::Control;
    m_Window.OnQueryUnload = [&](eCloseReason reason) {
        told = reason;
        return false;
    };
    m_Close.TryClose(eCloseReason::SessionEnd);
    EXPECT_EQ(told, eCloseReason::SessionEnd);
}

}  // namespace
}  // namespace vigrel::testing
