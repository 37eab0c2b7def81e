#include "windows/window_frame.h"

#include <gtest/gtest.h>

#include <QScreen>
#include <QWidget>

namespace vigrel::testing {
namespace {

class WindowFrame : public ::testing::Test {
  protected:
    WindowFrame() { m_Window.resize(300, 200); }
    QWidget m_Window;
    cWindowFrame m_Frame{m_Window};
    const QMargins m_Caption{2, 20, 2, 2};
};

TEST_F(WindowFrame, UnseenItsSizeIsThatOfTheInside) {
    EXPECT_EQ(m_Frame.State(), cWindowFrame::eState::Unseen);
    EXPECT_EQ(m_Frame.Size(), QSize(300, 200));
    EXPECT_EQ(m_Frame.Corner(), QPoint(0, 0));
}

TEST_F(WindowFrame, ASizeThatIsSetBeforeItIsSeenIsAnsweredAndFulfilledLater) {
    m_Frame.SetSize({400, 300});
    EXPECT_EQ(m_Frame.State(), cWindowFrame::eState::Wished);
    EXPECT_EQ(m_Window.size(), QSize(400, 300));
    m_Frame.Resized({400, 300});
    EXPECT_EQ(m_Frame.State(), cWindowFrame::eState::Wished);
    m_Frame.Meet(m_Caption);
    EXPECT_EQ(m_Frame.State(), cWindowFrame::eState::Seen);
    EXPECT_EQ(m_Window.size(), QSize(396, 278));
    EXPECT_EQ(m_Frame.Size(), QSize(400, 300));
    EXPECT_EQ(m_Frame.Corner(), QPoint(2, 20));
}

TEST_F(WindowFrame, AWishEndsWhenSomebodyElseSizesTheWindow) {
    m_Frame.SetSize({400, 300});
    m_Window.resize(500, 500);
    m_Frame.Resized({500, 500});
    EXPECT_EQ(m_Frame.State(), cWindowFrame::eState::Unseen);
    m_Frame.Meet(m_Caption);
    EXPECT_EQ(m_Window.size(), QSize(500, 500));
    EXPECT_EQ(m_Frame.Size(), QSize(504, 522));
}

TEST_F(WindowFrame, SeenItTakesItsShareOfASize) {
    m_Frame.Meet(m_Caption);
    EXPECT_EQ(m_Window.size(), QSize(300, 200));
    m_Frame.SetSize({400, 300});
    EXPECT_EQ(m_Frame.State(), cWindowFrame::eState::Seen);
    EXPECT_EQ(m_Window.size(), QSize(396, 278));
    m_Frame.SetSize({1, 1});
    EXPECT_EQ(m_Window.size(), QSize(0, 0));
}

TEST_F(WindowFrame, ASizeBeyondEveryScreenEndsAtTheScreens) {
    const QSize screens = m_Window.screen()->virtualSize();
    const QSize largest = screens.expandedTo({2048, 2048});
    m_Frame.SetSize({32000, 300});
    EXPECT_EQ(m_Frame.Size(), QSize(largest.width(), 300));
    m_Frame.SetSize({300, 32000});
    EXPECT_EQ(m_Frame.Size(), QSize(300, largest.height()));
    m_Frame.SetSize(screens);
    EXPECT_EQ(m_Frame.Size(), screens);
}

TEST_F(WindowFrame, AnotherFrameLeavesTheInsideAsItIs) {
    m_Frame.SetSize({400, 300});
    m_Frame.Meet(m_Caption);
    m_Frame.Meet({10, 10, 10, 10});
    EXPECT_EQ(m_Window.size(), QSize(396, 278));
    EXPECT_EQ(m_Frame.Size(), QSize(416, 298));
}

TEST_F(WindowFrame, MarginsOfNothingAreNoFrame) {
    m_Frame.SetSize({400, 300});
    m_Frame.Meet(QMargins());
    EXPECT_EQ(m_Frame.State(), cWindowFrame::eState::Wished);
}

TEST_F(WindowFrame, AWindowThatDoesNotShowHasNoFrameToMeet) {
    m_Frame.SetSize({400, 300});
    m_Frame.Meet();
    EXPECT_EQ(m_Frame.State(), cWindowFrame::eState::Wished);
}

}  // namespace
}  // namespace vigrel::testing
