// Three months of a station on a clock that a test moves: nothing grows, nothing is left behind.

#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <string>

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
    explicit Months(const std::string& settings = "") {
        clock.Set(2026, 8, 15);
        files.Put("C:\\App\\Vigrel_Texts.046", "10040=T10040\r\n");
        Ini("Columns=StateIcon,t0,t4,Observed\r\nMaxEvents=20\r\nMaxDays=1\r\nKeepForDays=5\r\nEventSignal="
            "3\r\n" +
                settings,
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
        Attend(minute);
        for (int turn = 0; turn < 8; ++turn) timerSave.Tick();
    }
    // What the operator does.
    virtual void Attend(int minute) {
        if (minute % 97 == 0) menus.OnMenuAckAll();
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
        list.m_Changed.clear();
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
    virtual void ExpectInOrder() {
        EXPECT_LE(list.Rows().size(), kMostEvents);
        EXPECT_EQ(AlarmFiles().size(), list.Rows().size());
        EXPECT_TRUE(files.ListFiles("C:\\App\\Alarms\\", "*.$~").empty());
        EXPECT_LE(Logs().size(), 20u);
    }
    std::vector<std::string> Logs() const { return files.ListFiles("C:\\App\\LogFiles\\", "*"); }
    static std::size_t Memory() { return mallinfo2().uordblks; }
    void LiveThem();

    int m_Alarms = 0, m_Rows = 0, m_Connections = 0;
};

void Months::LiveThem() {
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

    mainWindow.CloseFor(eCloseReason::SessionEnd);
    // With what the end acknowledges.
    const std::string listed = list.Screen();
    cFakeReceiver next(files);
    next.clock = clock;
    EXPECT_EQ(next.Load(), eStartUp::Running);
    EXPECT_EQ(next.list.Screen(), listed);
}

TEST_F(Months, LeaveNoMoreBehindThanTheirLastDays) {
    LiveThem();
}

// Every alarm opens a popup; the operator closes the oldest, which acknowledges it, and now and then all.
class MonthsOfPopups : public Months {
  protected:
    MonthsOfPopups()
        : Months(
              "ViewPopupForm=1\r\nAckEventWhenPopupFormIsClosed=1\r\nEventPopupFormat=[T0]\r\n"
              "EventSignalUntilNoMorePopupForms=1\r\nPopupFormTopMostCategory=Vigrel\r\n") {}
    void Attend(int minute) override {
        constexpr int kMostOpen = 5;
        m_MostOpen = std::max(m_MostOpen, popups.ForgetClosed());
        for (; popups.ForgetClosed() > kMostOpen; ++m_Closed) popups[1].CloseFor(eCloseReason::Control);
        if (minute % 97 == 0) menus.OnMenuAckAllAndClosePopups();
    }
    void ExpectInOrder() override {
        Months::ExpectInOrder();
        const int open = popups.ForgetClosed();
        EXPECT_EQ(receiver->State().m_PopupFormCount, open);
        EXPECT_EQ(windows.OpenWindows().size(), static_cast<std::size_t>(open) + 1);
        EXPECT_EQ(popups.m_Stack.m_Windows.size(), static_cast<std::size_t>(open));
    }

    int m_Closed = 0, m_MostOpen = 0;
};

TEST_F(MonthsOfPopups, LeaveNoMoreBehindThanTheirLastDays) {
    LiveThem();
    EXPECT_GE(m_MostOpen, 6);
    EXPECT_GT(m_Closed, kDays * 1000);
}

}  // namespace
}  // namespace vigrel::testing
