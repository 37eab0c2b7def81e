#include "windows/icon_restore.h"

#include <gtest/gtest.h>

#include <QWidget>

#include "support/qt_wait.h"

namespace vigrel::testing {
namespace {

class IconRestore : public ::testing::Test {
  protected:
    void Settle() {
        EXPECT_TRUE(testing::WaitUntil([this] { return !m_Restore.Settling(); }));
    }
    QWidget m_Window;
    cIconRestore m_Restore{m_Window};
};

TEST_F(IconRestore, AWindowThatWasMadeAnIconMeanwhileIsOneNoMore) {
    m_Window.setAttribute(Qt::WA_DontShowOnScreen);  // as an icon, which isn't there either
    m_Window.show();
    m_Restore.Restore();
    EXPECT_TRUE(m_Restore.Settling());
    m_Window.setWindowState(Qt::WindowMinimized);
    Settle();
    EXPECT_FALSE(m_Window.isMinimized());
}

TEST_F(IconRestore, AnotherStateMeanwhileEndsTheWaiting) {
    m_Window.show();
    m_Restore.Restore();
    m_Window.setWindowState(Qt::WindowMinimized);
    m_Restore.Forget();
    EXPECT_FALSE(m_Restore.Settling());
    testing::RunEvents(300);
    EXPECT_TRUE(m_Window.isMinimized());
}

TEST_F(IconRestore, AWindowOnTheScreenStaysAsItIs) {
    m_Window.show();
    m_Restore.Restore();
    m_Window.setWindowState(Qt::WindowMinimized);  // off screen it is seen all the same
    Settle();
    EXPECT_TRUE(m_Window.isMinimized());
}

TEST_F(IconRestore, AWindowHiddenMeanwhileStaysAsItIs) {
    m_Window.show();
    m_Restore.Restore();
    m_Window.setWindowState(Qt::WindowMinimized);
    m_Window.hide();
    Settle();
    EXPECT_FALSE(m_Window.isVisible());
    EXPECT_TRUE(m_Window.isMinimized());
}

}  // namespace
}  // namespace vigrel::testing
