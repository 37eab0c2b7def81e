#include "adapters/qt/stop_signals.h"

#include <gtest/gtest.h>

#include <csignal>

#include "support/qt_wait.h"

namespace vigrel::testing {
namespace {

TEST(StopSignals, ComeFromTheEventLoop) {
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        cStopSignals stopSignals;
        int stops = 0;
        stopSignals.OnStop = [&](eCloseReason reason) {
            ++stops;
            EXPECT_EQ(reason, signal == SIGINT ? eCloseReason::Interrupt : eCloseReason::SessionEnd);
        };
        std::raise(signal);
        EXPECT_EQ(stops, 0);
        EXPECT_TRUE(WaitUntil([&] { return stops == 1; })) << signal;
    }
}

TEST(StopSignals, ASecondOneIsToldToo) {
    cStopSignals stopSignals;
    int stops = 0;
    stopSignals.OnStop = [&](eCloseReason) { ++stops; };
    std::raise(SIGTERM);
    std::raise(SIGTERM);
    EXPECT_TRUE(WaitUntil([&] { return stops == 2; }));
}

TEST(StopSignals, OneThatNobodyListensToIsForgotten) {
    cStopSignals stopSignals;
    std::raise(SIGTERM);
    RunEvents(20);
    int stops = 0;
    stopSignals.OnStop = [&](eCloseReason) { ++stops; };
    RunEvents(20);
    EXPECT_EQ(stops, 0);
}

TEST(StopSignalsDeathTest, WithoutTheObjectTheyEndTheProgram) {
    EXPECT_EXIT(
        {
            { const cStopSignals stopSignals; }
            std::raise(SIGTERM);
        },
        ::testing::KilledBySignal(SIGTERM), "");
}

}  // namespace
}  // namespace vigrel::testing
