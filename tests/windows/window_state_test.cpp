#include "windows/window_state.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QWidget>

#include "windows/fonts.h"
#include "windows/twips.h"

namespace vigrel::testing {
namespace {

TEST(WindowState, IsThatOfTheWindowAnIconFirst) {
    QWidget window;
    EXPECT_EQ(StateOf(window), eWindowState::Normal);
    window.setWindowState(Qt::WindowMaximized);
    EXPECT_EQ(StateOf(window), eWindowState::Maximised);
    window.setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    EXPECT_EQ(StateOf(window), eWindowState::Minimised);
    window.setWindowState(Qt::WindowMinimized);
    EXPECT_EQ(StateOf(window), eWindowState::Minimised);
}

TEST(WindowState, OfAnIconRemembersWhatItWasMadeOf) {
    const Qt::WindowStates maximised = Qt::WindowMaximized | Qt::WindowActive;
    EXPECT_EQ(WithState(maximised, eWindowState::Minimised), maximised | Qt::WindowMinimized);
    EXPECT_EQ(WithState(Qt::WindowActive, eWindowState::Minimised), Qt::WindowActive | Qt::WindowMinimized);
    EXPECT_EQ(WithState(maximised | Qt::WindowMinimized, eWindowState::Normal), Qt::WindowActive);
    EXPECT_EQ(WithState(Qt::WindowMinimized, eWindowState::Maximised), Qt::WindowMaximized);
    EXPECT_EQ(WithState(maximised, eWindowState::Maximised), maximised);
    for (const eWindowState state :
         {eWindowState::Normal, eWindowState::Minimised, eWindowState::Maximised}) {
        EXPECT_FALSE(WithState(Qt::WindowFullScreen, state).testFlag(Qt::WindowFullScreen));
    }
}

TEST(Twips, AreFifteenToThePixelWithinWhatAWindowCanBe) {
    EXPECT_EQ(ToTwips(10), 150);
    EXPECT_EQ(ToPixels(150), 10);
    EXPECT_EQ(ToPixels(157.4), 10);
    EXPECT_EQ(ToPixels(157.5), 11);
    EXPECT_EQ(ToPixels(-157.5), -11);
    EXPECT_EQ(ToPixels(1e12), 32000);
    EXPECT_EQ(ToPixels(-1e12), -32000);
}

TEST(FontOf, HasASizeThatCanBeReadAndAWayOutForANameThatThereIsNot) {
    EXPECT_EQ(FontOf("Arial", 0).pointSizeF(), 5);
    EXPECT_EQ(FontOf("Arial", 5.5).pointSizeF(), 5.5);
    EXPECT_EQ(FontOf("Arial", 1e6).pointSizeF(), 500);
    EXPECT_EQ(FontOf("\xC5rial", 9).families(), (QStringList{QString::fromUtf8("Årial"), "Sans Serif"}));
}

// A font that isn't there has one of the same measures on most machines, which the columns' widths count on.
TEST(FontOf, IsTheOneThatTheDesktopHasForTheName) {
    for (const char* name : {"Arial", "Courier New", "Times New Roman", "DejaVu Sans", "MS Sans Serif"}) {
        EXPECT_EQ(QFontInfo(FontOf(name, 9)).family(), QFontInfo(QFont(name)).family()) << name;
    }
}

}  // namespace
}  // namespace vigrel::testing
