// The receiver while the wall clock jumps: summer time begins and ends, the machine's time zone is changed.

#include <gtest/gtest.h>

#include "link/frame.h"
#include "support/fake_receiver.h"

namespace vigrel::testing {
namespace {

class ClockChange : public ::testing::Test, public testing::cFakeReceiver {
  protected:
    ClockChange() {
        Ini("Columns=StateIcon,t0\r\nSystemErrorCategory=System\r\nSortDescending=1\r\n",
            "[Senders]\r\nPLC1=5\r\n");
    }
    void StartAt(int month, int day, int hour, int minute) {
        clock.Set(2026, month, day, hour, minute);
        Start();
        timerKeepAlive.Tick();
    }
    void Alarm(const std::string& text) {
        if (data.State() == 0) listener.Knock(1);
        data.Arrive(MakeFrame("PLC1", "S1||" + text));
        data.TakeSent();
    }
    // Time goes by, with the ticks of the supervision.
    void Wait(int seconds) {
        for (; seconds > 0; seconds -= 10) {
            clock.AddSeconds(10);
            timerKeepAlive.Tick();
        }
    }
    // The hands are moved while ten seconds go by.
    void MoveHands(int hours) {
        clock.m_Now += hours / 24.0;
        Wait(10);
    }
};

TEST_F(ClockChange, InTheSkippedHourOfMarchNoSenderLooksLost) {
    StartAt(3, 29, 1, 59);
    Alarm("before");
    MoveHands(1);
    Wait(280);
    EXPECT_EQ(AlarmFiles().size(), 1u);
    Wait(20);
    EXPECT_EQ(AlarmFiles().size(), 2u);
}

TEST_F(ClockChange, InTheRepeatedHourOfOctoberASilentSenderIsReportedInItsTime) {
    StartAt(10, 25, 2, 59);
    Alarm("before");
    MoveHands(-1);
    Wait(280);
    EXPECT_EQ(AlarmFiles().size(), 1u);
    Wait(20);
    EXPECT_EQ(AlarmFiles().size(), 2u);
}

TEST_F(ClockChange, AnotherTimeZoneMakesNoSenderLookLostNorLaterFound) {
    for (const int hours : {-11, 9, 14}) {
        clock.m_Steady = 1000;
        StartAt(6, 15, 12, 0);
        const std::size_t before = AlarmFiles().size();
        Alarm("before");
        MoveHands(hours);
        Wait(280);
        EXPECT_EQ(AlarmFiles().size(), before + 1) << hours;
        Wait(20);
        EXPECT_EQ(AlarmFiles().size(), before + 2) << hours;
        data.PeerCloses();
    }
}

TEST_F(ClockChange, AcrossTheSkippedHourAlarmsStandInTheOrderOfArrival) {
    StartAt(3, 29, 1, 59);
    Alarm("before");
    MoveHands(1);
    Alarm("after");
    EXPECT_EQ(list.Screen(), "#0|after|\n#0|before|\n");
}

// Both hours have the same times on the wall: the list goes by them, and does so in the same way after a
// restart.
TEST_F(ClockChange, InTheRepeatedHourAlarmsStandByTheWallClockAndARestartChangesNothing) {
    Ini("Columns=StateIcon,t0\r\n");
    StartAt(10, 25, 2, 30);
    Alarm("02:30");
    MoveHands(-1);
    Wait(590);
    Alarm("01:40, that is 02:40 before");
    MoveHands(0);
    Wait(3000);
    Alarm("02:31");
    const std::string shown = "#0|01:40, that is 02:40 before|\n#0|02:30|\n#0|02:31|\n";
    EXPECT_EQ(list.Screen(), shown);

    testing::cFakeReceiver nextRun;
    nextRun.Ini("Columns=StateIcon,t0\r\n");
    nextRun.clock.m_Now = clock.m_Now;
    for (const std::string& name : AlarmFiles()) {
        nextRun.files.Put("C:\\App\\Alarms\\" + name, files.ReadFile("C:\\App\\Alarms\\" + name));
    }
    nextRun.Start();
    EXPECT_EQ(nextRun.list.Screen(), shown);
}

TEST_F(ClockChange, NoAlarmIsTooOldOrDroppedForAChangeOfTheClock) {
    for (const int hours : {1, -1, 14, -14}) {
        MoveHands(0);
        StartAt(10, 25, 12, 30);
        const std::size_t before = AlarmFiles().size();
        MoveHands(hours);
        Alarm("now");
        EXPECT_EQ(AlarmFiles().size(), before + 1) << hours;
        EXPECT_EQ(list.Rows().size(), before + 1) << hours;
        data.PeerCloses();
    }
}

TEST_F(ClockChange, ADateThatComesTwiceKeepsItsLog) {
    StartAt(10, 25, 0, 0);
    const std::string log = Log("20261025");
    MoveHands(-1);  // 23:00 of the day before
    EXPECT_NE(Log("20261025"), "");
    MoveHands(1);
    EXPECT_EQ(Log("20261025").substr(0, log.size()), log);
}

}  // namespace
}  // namespace vigrel::testing
