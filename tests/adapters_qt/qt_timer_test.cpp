#include "adapters/qt/qt_timer.h"

#include <gtest/gtest.h>

#include <QThread>

#include "support/qt_wait.h"

namespace vigrel::testing {
namespace {

TEST(QtTimer, TicksAgainAndAgain) {
    cQtTimer timer(10);
    int ticks = 0;
    timer.OnTick = [&] { ++ticks; };
    EXPECT_TRUE(timer.Enabled());
    EXPECT_TRUE(WaitUntil([&] { return ticks >= 3; }));
}

TEST(QtTimer, ADisabledTimerDoesNotTick) {
    cQtTimer timer(5, false);
    int ticks = 0;
    timer.OnTick = [&] { ++ticks; };
    RunEvents(50);
    EXPECT_EQ(ticks, 0);
    EXPECT_FALSE(timer.Enabled());
}

TEST(QtTimer, DisablingAndEnablingStartsAFullInterval) {
    cQtTimer timer(200);
    int ticks = 0;
    timer.OnTick = [&] { ++ticks; };
    RunEvents(120);
    timer.SetEnabled(false);
    timer.SetEnabled(true);
    RunEvents(120);
    EXPECT_EQ(ticks, 0);
    EXPECT_TRUE(WaitUntil([&] { return ticks == 1; }));
}

TEST(QtTimer, EnablingAnEnabledTimerDoesNotDelayItsTick) {
    cQtTimer timer(100);
    int ticks = 0;
    timer.OnTick = [&] { ++ticks; };
    QElapsedTimer elapsed;
    for (elapsed.start(); elapsed.elapsed() < 250;) {
        timer.SetEnabled(true);
        RunEvents(10);
    }
    EXPECT_GE(ticks, 1);
}

TEST(QtTimer, TicksThatCameDueWhileTheLoopWasBusyArriveAsOne) {
    cQtTimer timer(20);
    int ticks = 0;
    timer.OnTick = [&] { ++ticks; };
    QThread::msleep(110);
    QCoreApplication::processEvents();
    EXPECT_EQ(ticks, 1);
}

// What came while the program stood still is to be heard before a tick judges who was silent.
TEST(QtTimer, ATickThatAStandstillMadeLateIsLeftOutOnce) {
    cQtTimer timer(100);
    int ticks = 0;
    timer.OnTick = [&] { ++ticks; };
    for (const int expected : {0, 1, 1, 2}) {
        QThread::msleep(1300);
        QCoreApplication::processEvents();
        EXPECT_EQ(ticks, expected);
    }
    EXPECT_TRUE(WaitUntil([&] { return ticks >= 4; }));
}

TEST(QtTimer, TheTimeForWhichItWasDisabledMakesNoTickLate) {
    cQtTimer timer(20, false);
    int ticks = 0;
    timer.OnTick = [&] { ++ticks; };
    QThread::msleep(1300);
    timer.SetEnabled(true);
    QThread::msleep(50);
    QCoreApplication::processEvents();
    EXPECT_EQ(ticks, 1);
}

TEST(QtTimer, ItsIntervalCanBeReadAndSet) {
    cQtTimer timer(500);
    EXPECT_EQ(timer.Interval(), 500);
    timer.SetInterval(10000);
    EXPECT_EQ(timer.Interval(), 10000);
}

}  // namespace
}  // namespace vigrel::testing
