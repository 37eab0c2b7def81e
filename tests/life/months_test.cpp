// Three months of a station on a clock that a test moves: nothing grows, nothing is left behind.

#include <gtest/gtest.h>
#include <malloc.h>

#include "common/dates.h"
#include "common/failure.h"
#include "link/frame.h"
#include "support/fake_receiver.h"

namespace vigrel::testing {
namespace {

constexpr int kDays = 90;
constexpr int kMinutesPerDay = 1440;
constexpr std::size_t kMostEvents = 20;

// A station that gets an alarm a minute but for quiet days, and has a sender that is silent for two hours a
// day.
class Months : public ::testing::Test, public cFakeReceiver {
  protected:
    Months() {
        clock.Set(2026, 8, 15);
        files.Put("C:\\App\\Vigrel_Texts.046", "10040=T10040\r\n");
        Ini("Columns=StateIcon,t0,t4,Observed\r\nMaxEvents=20\r\nMaxDays=1\r\nKeepForDays=5\r\nEventSignal="
            "3\r\n",
            "[Senders]\r\nPLC1=0\r\nPLC2=30\r\n");
        Start();
        list.m_OnAddRecord = [this] { ++m_Rows; };
    }
    void Send(const std::string& sender, const std::string& record) {
        if (data.State() == 0) listener.Knock(++m_Connections);
        data.Arrive(MakeFrame(sender, record));
        EXPECT_EQ(data.TakeSent(), std::string(kPositive) + std::string(kReplyEnd));
    }
    static bool IsQuiet(int day) { return day % 7 == 6; }
    void Minute(int day, int minute) {
        for (int tick = 0; tick < 6; ++tick) {
            clock.AddSeconds(10);
            timerKeepAlive.Tick();
        }
        timerPlay.Tick();
        const bool silent = minute >= 180 && minute < 300;
        if (!silent) Send("PLC2", "S0");
        if (!IsQuiet(day)) Send("PLC1", "S1||a" + std::to_string(++m_Alarms));
        if (minute % 97 == 0) menus.OnMenuAckAll();
        for (int turn = 0; turn < 8; ++turn) timerSave.Tick();
    }
    void Day(int day) {
        for (int minute = 0; minute < kMinutesPerDay; ++minute) {
            Minute(day, minute);
            if (minute == 120) ChangeClock(day);
            if (minute % 240 == 0) data.PeerCloses();
        }
        ExpectInOrder();
        transcript.Take();
        // What the fakes remember for tests.
        serviceManager.m_Told.clear();
        files.SyncFolder("C:\\App\\LogFiles\\");
        files.DropUnreachable();
    }
    // Summer time begins and ends, and somebody sets the clock wrongly and right again.
    void ChangeClock(int day) {
        if (day == 20) clock.m_Now += 1.0 / 24;
        if (day == 71) clock.m_Now -= 1.0 / 24;
        if (day == 40) clock.m_Now -= 2;
        if (day == 42) clock.m_Now += 2;
        if (day == 50) clock.m_Now += 10;
        if (day == 52) clock.m_Now -= 10;
    }
    void ExpectInOrder() {
        EXPECT_LE(list.Rows().size(), kMostEvents);
        EXPECT_EQ(AlarmFiles().size(), list.Rows().size());
        EXPECT_TRUE(files.ListFiles("C:\\App\\Alarms\\", "*.$~").empty());
        EXPECT_LE(Logs().size(), 20u);
    }
    std::vector<std::string> Logs() const { return files.ListFiles("C:\\App\\LogFiles\\", "*"); }
    static std::size_t Memory() { return mallinfo2().uordblks; }

    int m_Alarms = 0, m_Rows = 0, m_Connections = 0;
};

TEST_F(Months, LeaveNoMoreBehindThanTheirLastDays) {
    std::size_t memory = 0;
    for (int day = 0; day < kDays; ++day) {
        Day(day);
        if (day == 12) memory = Memory();  // the same day of the week as the last
        ASSERT_FALSE(HasFailure()) << "day " << day;
    }
    EXPECT_LT(static_cast<double>(Memory()), static_cast<double>(memory) + 1e6);
    // A sender that is silent for 121 minutes is missed at 30, 60, 90 and 120, and comes back.
    EXPECT_EQ(m_Rows, m_Alarms + kDays * 5);
    EXPECT_EQ(m_Alarms, (kDays - kDays / 7) * kMinutesPerDay);
    EXPECT_EQ(list.Rows().size(), kMostEvents);
    const std::string newest = "a" + std::to_string(m_Alarms);
    EXPECT_NE(list.Screen().find(newest), std::string::npos);
    for (const std::string& name : Logs()) EXPECT_GE(name, "20261107") << name;
    EXPECT_NE(files.ReadFile("C:\\App\\VigrelReceiver.INI").find("PLC2=30"), std::string::npos);

    const std::string listed = list.Screen();
    mainWindow.CloseFor(eCloseReason::SessionEnd);
    cFakeReceiver next(files);
    next.clock = clock;
    EXPECT_EQ(next.Load(), eStartUp::Running);
    EXPECT_EQ(next.list.Screen(), listed);
}

}  // namespace
}  // namespace vigrel::testing
