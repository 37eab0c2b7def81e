#include "windows/window_hiding.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace vigrel::testing {
namespace {

// The off-screen platform gives windows no frame of its own.
class WindowHiding : public ::testing::Test {
  protected:
    WindowHiding() { m_Window.setGeometry(100, 80, 300, 200); }
    void ShowWithFrame() {
        m_Window.show();
        m_Frame.Meet({2, 20, 2, 2});
    }
    QWidget m_Window;
    cWindowFrame m_Frame{m_Window};
    int m_GivenUp = 0;
    cWindowHiding m_Hiding{m_Window, m_Frame, [this] { ++m_GivenUp; }};
};

TEST_F(WindowHiding, AWindowThatWasNeverShownIsThereAndMoves) {
    m_Hiding.Vanish();
    EXPECT_FALSE(m_Hiding.Hidden());
    EXPECT_EQ(m_GivenUp, 0);
    m_Hiding.PlaceAt({7, 9});
    EXPECT_EQ(m_Window.pos(), QPoint(7, 9));
    EXPECT_EQ(m_Hiding.Place(), QPoint(7, 9));
}

TEST_F(WindowHiding, ThePlaceIsThatOfTheFrameOnceItIsSeen) {
    EXPECT_EQ(m_Hiding.Place(), QPoint(100, 80));
    ShowWithFrame();
    EXPECT_EQ(m_Hiding.Place(), m_Window.geometry().topLeft() - QPoint(2, 20));
}

TEST_F(WindowHiding, HiddenItGivesItsNativeWindowUpAndRemembersItsPlace) {
    ShowWithFrame();
    const QPoint place = m_Hiding.Place();
    m_Hiding.Vanish();
    EXPECT_TRUE(m_Hiding.Hidden());
    EXPECT_FALSE(m_Window.isVisible());
    // Not within the event in which it hides.
    EXPECT_EQ(m_GivenUp, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_GivenUp, 1);
    m_Window.move(0, 0);
    EXPECT_EQ(m_Hiding.Place(), place);
    m_Hiding.Vanish();
    EXPECT_EQ(m_GivenUp, 1);
}

TEST_F(WindowHiding, ItReappearsWhereItWasWithTheSizeOfNow) {
    ShowWithFrame();
    const QPoint inside = m_Window.geometry().topLeft();
    m_Hiding.Vanish();
    m_Window.move(0, 0);
    m_Window.resize(50, 60);
    m_Hiding.Reappear();
    EXPECT_FALSE(m_Hiding.Hidden());
    EXPECT_EQ(m_Window.geometry(), QRect(inside, QSize(50, 60)));
}

TEST_F(WindowHiding, APlaceSetWhileHiddenCountsWhenItReappears) {
    ShowWithFrame();
    m_Hiding.Vanish();
    m_Hiding.PlaceAt({40, 50});
    EXPECT_EQ(m_Hiding.Place(), QPoint(40, 50));
    m_Hiding.Reappear();
    EXPECT_EQ(m_Window.geometry().topLeft(), QPoint(42, 70));
}

TEST_F(WindowHiding, WhereNoScreenIsAnyMoreItReappearsOnOneThatIsThere) {
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    ShowWithFrame();
    for (const QPoint gone : {QPoint(screen.right() + 1, 100), QPoint(100, screen.top() - 300)}) {
        m_Hiding.Vanish();
        m_Hiding.PlaceAt(gone);
        m_Hiding.Reappear();
        EXPECT_EQ(m_Window.geometry().topLeft(), screen.topLeft() + QPoint(2, 20));
        m_Window.show();
    }
}

TEST_F(WindowHiding, ThereNothingHappensWhenItReappears) {
    ShowWithFrame();
    const QRect before = m_Window.geometry();
    m_Hiding.Reappear();
    EXPECT_EQ(m_Window.geometry(), before);
}

TEST_F(WindowHiding, AMaximisedWindowIsRememberedAsWhatItWasBefore) {
    m_Window.show();
    m_Window.setWindowState(Qt::WindowMaximized);
    m_Hiding.Vanish();
    m_Window.setWindowState(Qt::WindowNoState);
    EXPECT_EQ(m_Hiding.Place(), QPoint(100, 80));
    EXPECT_EQ(m_Hiding.Size(), QSize(300, 200));
    m_Hiding.Reappear();
    EXPECT_EQ(m_Window.geometry(), QRect(100, 80, 300, 200));
}

TEST_F(WindowHiding, HiddenMaximisedItReappearsSoAndBecomesWhatItWasBefore) {
    ShowWithFrame();
    const QRect inside = m_Window.geometry();
    m_Window.setWindowState(Qt::WindowMaximized);
    m_Hiding.Vanish();
    m_Hiding.Reappear();
    EXPECT_TRUE(m_Window.isMaximized());
    EXPECT_EQ(m_Window.geometry(), inside);
    EXPECT_EQ(m_Hiding.Place(), inside.topLeft() - QPoint(2, 20));
}

}  // namespace
}  // namespace vigrel::testing
