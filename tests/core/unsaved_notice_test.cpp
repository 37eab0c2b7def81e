// What the operator and the service manager are told while the disk refuses to take alarms.

#include "core/unsaved_notice.h"

#include <gtest/gtest.h>

#include "link/frame.h"
#include "support/fake_receiver.h"

namespace vigrel::testing {
namespace {

using cLines = std::vector<std::string>;

class UnsavedNotice : public ::testing::Test, public testing::cFakeReceiver {
  protected:
    UnsavedNotice() {
        Ini("DateFormat=yyyy-mm-dd\r\nTimeFormat=hh:nn:ss\r\n");
        Start();
        listener.Knock(1);
    }
    void FillDisk() { files.m_DiskFull = true; }
    void FreeDisk() { files.m_DiskFull = false; }
    void Send(int count = 1) {
        for (int i = 0; i < count; ++i) data.Arrive(MakeFrame("PLC1", "S1|||alarm"));
    }
};

TEST_F(UnsavedNotice, NothingIsToldWhileAllGoesWell) {
    Send(3);
    timerPlay.Tick();
    EXPECT_EQ(otherWindows.m_Notices, cLines{});
    EXPECT_EQ(status.m_Texts, cLines{});
}

TEST_F(UnsavedNotice, AnAlarmThatIsNotOnDiskIsToldAtTheNextTickAndAnsweredPositively) {
    FillDisk();
    Send(2);
    EXPECT_EQ(data.TakeSent(),
              "\x04"
              "04\n\r\x04"
              "04\n\r");
    timerPlay.Tick();
    timerPlay.Tick();
    const std::string summary = "T10049 2, T10050 2026-03-15 12:30:15";
    EXPECT_EQ(otherWindows.m_Notices, cLines{summary + "\r\n\r\nT10051"});
    ASSERT_EQ(status.m_Texts.size(), 1u);
    EXPECT_EQ(status.m_Texts[0].substr(0, summary.size() + 2), summary + " (");
}

TEST_F(UnsavedNotice, TheTimeIsThatOfTheFirstAlarmThatStayedOff) {
    FillDisk();
    Send();
    clock.AddSeconds(60);
    Send();
    timerPlay.Tick();
    EXPECT_NE(otherWindows.m_Notices.back().find("T10049 2, T10050 2026-03-15 12:30:15"), std::string::npos);
}

TEST_F(UnsavedNotice, TheWindowFollowsEachChangeAndTheStatusAtMostEveryTenSeconds) {
    FillDisk();
    for (int i = 0; i < 5; ++i) {
        Send();
        timerPlay.Tick();
    }
    EXPECT_EQ(otherWindows.m_Notices.size(), 5u);
    EXPECT_EQ(status.m_Texts.size(), 1u);
    const double told = clock.m_Steady;
    clock.AddSeconds(9.9);
    timerPlay.Tick();
    EXPECT_EQ(status.m_Texts.size(), 1u);
    clock.m_Steady = told + 10.0 / 86400;
    timerPlay.Tick();
    EXPECT_EQ(otherWindows.m_Notices.size(), 5u);
    ASSERT_EQ(status.m_Texts.size(), 2u);
    EXPECT_NE(status.m_Texts[1].find("T10049 5,"), std::string::npos);
}

TEST_F(UnsavedNotice, ItGoesWhenAllAlarmsAreOnDisk) {
    FillDisk();
    Send(3);
    timerPlay.Tick();
    FreeDisk();
    timerKeepAlive.Tick();
    timerPlay.Tick();
    EXPECT_EQ(AlarmFiles().size(), 3u);
    EXPECT_EQ(otherWindows.m_Notices.back(), "");
    EXPECT_EQ(status.m_Texts.back(), "T10052");
    clock.AddSeconds(60);
    timerPlay.Tick();
    EXPECT_EQ(otherWindows.m_Notices.size(), 2u);
    EXPECT_EQ(status.m_Texts.size(), 2u);
}

TEST_F(UnsavedNotice, AnAlarmThatTheLimitsRemoveIsMissedNoMore) {
    FillDisk();
    Send();
    timerPlay.Tick();
    timerKeepAlive.Tick();
    clock.AddSeconds(40 * 86400);
    timerKeepAlive.Tick();
    timerPlay.Tick();
    EXPECT_EQ(otherWindows.m_Notices.back(), "");
}

// What a station tells that is ended while alarms wait.
class LastUnsavedNotice : public UnsavedNotice {
  protected:
    void End() { EXPECT_TRUE(mainWindow.CloseFor(eCloseReason::SessionEnd)); }
    static std::string Summary(int count) {
        return "T10049 " + std::to_string(count) + ", T10050 2026-03-15 12:30:15 (";
    }
    void ExpectTold(const cLines& beginnings) const {
        ASSERT_EQ(status.m_Texts.size(), beginnings.size());
        for (std::size_t i = 0; i < beginnings.size(); ++i) {
            EXPECT_EQ(status.m_Texts[i].substr(0, beginnings[i].size()), beginnings[i]);
        }
    }
};

TEST_F(LastUnsavedNotice, TellsOfAlarmsForWhichNoTickCame) {
    FillDisk();
    Send(3);
    End();
    ExpectTold({Summary(3)});
}

TEST_F(LastUnsavedNotice, TellsOfTheNumberThatIsLostInTheEnd) {
    FillDisk();
    Send();
    timerPlay.Tick();
    Send(4);
    timerPlay.Tick();
    End();
    ExpectTold({Summary(1), Summary(5)});
}

TEST_F(LastUnsavedNotice, RepeatsNothing) {
    FillDisk();
    Send(2);
    timerPlay.Tick();
    End();
    ExpectTold({Summary(2)});
}

TEST_F(LastUnsavedNotice, TellsThatTheDiskTookAllAfterAll) {
    FillDisk();
    Send(2);
    timerPlay.Tick();
    FreeDisk();
    End();
    ExpectTold({Summary(2), "T10052"});
}

TEST_F(LastUnsavedNotice, IsNotGivenWhereAllIsOnDisk) {
    Send(2);
    End();
    ExpectTold({});
}

TEST_F(LastUnsavedNotice, TellsOfAcknowledgementsThatTheEndBrought) {
    Ini("DateFormat=yyyy-mm-dd\r\nTimeFormat=hh:nn:ss\r\nViewPopupForm=1\r\nAckEventWhenPopupFormIsClosed="
        "1\r\n");
    Start();
    listener.Knock(1);
    Send(2);
    FillDisk();
    End();
    ExpectTold({Summary(2)});
}

// A station whose stored alarms can't be read.
class UnlistedFolder : public ::testing::Test, public testing::cFakeReceiver {
  protected:
    UnlistedFolder() {
        files.m_FolderProblems["C:\\App\\Alarms\\"] = "C:\\App\\Alarms\\: Permission denied";
        Start();
        listener.Knock(1);
        timerPlay.Tick();
        timerPlay.Tick();
    }
    const std::string m_Status = "T10053 (C:\\App\\Alarms\\: Permission denied)";
};

TEST_F(UnlistedFolder, IsToldOnceInAWindowByTheStatusAndInTheEmptyList) {
    EXPECT_EQ(otherWindows.m_Notices, cLines{"T10053"});
    EXPECT_EQ(status.m_Texts, cLines{m_Status});
    EXPECT_EQ(list.m_EmptyText, "(T10053)");
}

TEST_F(UnlistedFolder, IsToldAgainWhenAFullDiskIsNoMore) {
    files.m_DiskFull = true;
    data.Arrive(MakeFrame("PLC1", "S1|||alarm"));
    timerPlay.Tick();
    files.m_DiskFull = false;
    timerKeepAlive.Tick();
    timerPlay.Tick();
    ASSERT_EQ(otherWindows.m_Notices.size(), 3u);
    EXPECT_EQ(otherWindows.m_Notices.back(), "T10053");
}

}  // namespace
}  // namespace vigrel::testing
