#include "link/sender_table.h"

#include <gtest/gtest.h>

#include <vector>

#include "common/failure.h"
#include "support/fake_station.h"

namespace vigrel::testing {
namespace {

class SenderTable : public ::testing::Test, public cFakeStation {
  protected:
    SenderTable() {
        LoadTexts({10012, 10013, 10014, 10025, 10028, 10031, 10032});
        settings.m_DateFormat = "yyyy-mm-dd";
        settings.m_TimeFormat = "hh:nn:ss";
    }
    void Read(const std::string& lines) {
        Ini("[General]\r\nLanguage=046\r\n[Senders]\r\n" + lines);
        table.ReadSenders();
    }
    void Minutes(double minutes) {
        clock.AddSeconds(minutes * 60);
        table.Tick();
    }
    eHeard Frame(const std::string& sender, const std::string& text = "x") {
        return table.Heard(sender, text);
    }
    cSenderTable::cSender& Row(int i) { return table.m_Senders[static_cast<std::size_t>(i)]; }
    // "status: condition 4" of each alarm.
    std::string Alarms() const {
        std::string all;
        for (const AlarmPtr& alarm : alarms) {
            all += std::to_string(alarm->m_Alarm.m_Status) + ": " + alarm->m_Alarm.GetCondition(4) + "\n";
        }
        return all;
    }

    std::vector<AlarmPtr> alarms;
    cSenderTable table{{files, clock, maker, ini, texts, log, settings, forms, messageBox,
                        [this](const AlarmPtr& alarm) { alarms.push_back(alarm); }}};
};

TEST_F(SenderTable, ALineIsNameEqualsMinutes) {
    Read("Alpha=5\r\n Beta =7 min=9\r\n; Gamma=1\r\n  ; Delta=2\r\nno sign\r\nEpsilon=\r\nZeta=abc\r\n");
    ASSERT_EQ(table.m_SenderCount, 4);
    EXPECT_EQ(Row(0).SenderName, "Alpha");
    EXPECT_EQ(Row(0).KeepAliveMinutes, 5);
    EXPECT_TRUE(Row(0).NotYetSeen);
    EXPECT_FALSE(Row(0).AlarmRaised);
    EXPECT_EQ(Row(0).LastSeen, clock.Now());
    EXPECT_EQ(Row(1).SenderName, " Beta ");
    EXPECT_EQ(Row(1).KeepAliveMinutes, 7);
    EXPECT_EQ(Row(2).SenderName, "Epsilon");
    EXPECT_EQ(Row(2).KeepAliveMinutes, 0);
    EXPECT_EQ(Row(3).KeepAliveMinutes, 0);
    EXPECT_TRUE(messageBox.m_Shown.empty());
}

TEST_F(SenderTable, UntilItIsReadItHoldsNobody) {
    EXPECT_EQ(Frame("", ""), eHeard::Unknown);
    Minutes(2000);
    EXPECT_EQ(Alarms(), "");
}

TEST_F(SenderTable, AZeroByteEndsALineAndTheOneThatLeavesItEmptyEndsTheList) {
    using std::string_literals::operator""s;
    Read("Alpha=5\0Beta=6\r\nGamma=7\r\n\0Delta=8\r\nEpsilon=9\r\n"s);
    ASSERT_EQ(table.m_SenderCount, 3);
    EXPECT_EQ(Row(1).SenderName, "Beta");
    EXPECT_EQ(Row(2).SenderName, "Gamma");
    EXPECT_TRUE(messageBox.m_Shown.empty());
}

TEST_F(SenderTable, TheHundredthSenderEndsTheReadingWithAMessage) {
    std::string lines;
    for (int i = 1; i <= 101; ++i) lines += "S" + std::to_string(i) + "=1\r\n";
    Read(lines);
    EXPECT_EQ(table.m_SenderCount, 100);
    EXPECT_EQ(Row(99).SenderName, "S100");
    EXPECT_EQ(messageBox.m_Shown, std::vector<std::string>{"warning, ok: T10025"});
}

TEST_F(SenderTable, ExactlyAHundredSendersBringTheMessageToo) {
    std::string lines;
    for (int i = 1; i <= 100; ++i) lines += "S" + std::to_string(i) + "=1\r\n";
    Read(lines);
    EXPECT_EQ(table.m_SenderCount, 100);
    EXPECT_EQ(messageBox.m_Shown.size(), 1u);
}

TEST_F(SenderTable, ASectionThatFillsTheBufferToTwoBelowItsSizeBringsTheMessage) {
    // Each entry and its zero; the last must leave offset + length + 1 below 4,096.
    const std::string filler = "A=1;" + std::string(4094 - 5, 'x');
    Read(filler + "\r\n");  // 4,094 characters with the zero
    EXPECT_EQ(messageBox.m_Shown.size(), 1u);
    EXPECT_EQ(table.m_SenderCount, 1);
    messageBox.m_Shown.clear();
    Read(filler.substr(1) + "\r\n");
    EXPECT_TRUE(messageBox.m_Shown.empty());
}

TEST_F(SenderTable, ASectionTooLargeKeepsTheLeadingSenders) {
    std::string lines;
    for (int i = 0; i < 50; ++i)
        lines += "Sender number " + std::string(100, 'x') + std::to_string(i) + "=1\r\n";
    Read(lines);
    EXPECT_LT(table.m_SenderCount, 50);
    EXPECT_GT(table.m_SenderCount, 30);
}

TEST_F(SenderTable, MinutesBeyondSixteenBitsEndTheStart) {
    const auto failure = CatchFailure([&] { Read("Alpha=32768\r\n"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), eFailure::Overflow);
    const std::string text = failure->what();
    EXPECT_TRUE(text.starts_with("C:\\App\\VigrelReceiver.INI: key Alpha of section Senders is \"32768\": "))
        << text;
}

TEST_F(SenderTable, TheTableIsLoggedWithMinutesOrAsUnsupervised) {
    Read("Alpha=5\r\nBeta=0\r\n");
    table.LogSenders();
    EXPECT_EQ(Log(), "Alpha - T10013 5 T10014\nBeta - T10012\n");
}

TEST_F(SenderTable, ASenderWithZeroMinutesIsNeverReportedButItsFramesCount) {
    Read("Alpha=0\r\n");
    Minutes(100000);
    EXPECT_TRUE(alarms.empty());
    EXPECT_EQ(Frame("Alpha", ""), eHeard::KeepAlive);
    EXPECT_EQ(Row(0).LastSeen, clock.Now());
    EXPECT_FALSE(Row(0).NotYetSeen);
    EXPECT_EQ(Log(), "Alpha T10028\n");
}

TEST_F(SenderTable, ASilentSenderIsReportedWhenItsTimeIsOverAndNotBefore) {
    Read("Alpha=5\r\n");
    Minutes(4.9);
    EXPECT_TRUE(alarms.empty());
    Minutes(0.2);
    ASSERT_EQ(alarms.size(), 1u);
    EXPECT_EQ(Alarms(), "1: Alpha - T10032\n");
    const cVigrelRecieverAlarm& alarm = *alarms[0];
    EXPECT_EQ(alarm.m_Sender, "Alpha");
    EXPECT_EQ(alarm.m_Alarm.GetCondition(0), "VigrelAlarmReceiver");
    EXPECT_EQ(alarm.m_Alarm.GetCondition(2), "Vigrel");
    EXPECT_EQ(alarm.m_Alarm.m_TimeStampFromSCADA, clock.Now());
    EXPECT_EQ(alarm.m_Alarm.m_System, 0);
    EXPECT_TRUE(Row(0).AlarmRaised);
    EXPECT_TRUE(Row(0).NotYetSeen);
    EXPECT_EQ(Row(0).LastSeen, clock.Now());
    EXPECT_EQ(Log(), "");
}

TEST_F(SenderTable, OneThatIsHeardHidesNoSilenceOfThoseBehindIt) {
    Read("Alpha=5\r\nBeta=0\r\nGamma=1\r\nDelta=9\r\nEpsilon=1\r\n");
    Minutes(2);
    EXPECT_EQ(Alarms(), "1: Gamma - T10032\n1: Epsilon - T10032\n");
}

TEST_F(SenderTable, ASenderIsNotDueAtItsLastMoment) {
    Read("Alpha=45\r\n");  // 1/32 day, which a double holds exactly
    Row(0).LastSeenSteady = clock.Steady() - 1.0 / 32;
    table.Tick();
    EXPECT_TRUE(alarms.empty());
}

TEST_F(SenderTable, ASilentSenderRepeatsItsAlarmEveryPeriodWithAutomaticReset) {
    Read("Alpha=5\r\n");
    for (int i = 0; i < 3; ++i) Minutes(5.1);
    EXPECT_EQ(alarms.size(), 3u);
    Minutes(4.9);
    EXPECT_EQ(alarms.size(), 3u);
}

TEST_F(SenderTable, WithoutAutomaticResetThereIsOneAlarmAndLastSeenMovesOn) {
    settings.m_AutoResetKeepAliveTimer = false;
    Read("Alpha=5\r\n");
    for (int i = 0; i < 4; ++i) {
        Minutes(5.1);
        EXPECT_EQ(Row(0).LastSeen, clock.Now());
    }
    EXPECT_EQ(alarms.size(), 1u);
}

TEST_F(SenderTable, ASenderNeverHeardComesBackWithTheTextOfOneNeverHeard) {
    Read("Alpha=5\r\n");
    Minutes(5.1);
    EXPECT_EQ(Frame("alpha"), eHeard::Known);
    EXPECT_EQ(Alarms(), "1: Alpha - T10032\n0: Alpha - T10032\n");
    EXPECT_FALSE(Row(0).AlarmRaised);
    EXPECT_FALSE(Row(0).NotYetSeen);
    Frame("alpha");
    EXPECT_EQ(alarms.size(), 2u);
}

TEST_F(SenderTable, ALostSendersAlarmNamesWhenItWasLastSeenAndARepeatTheAlarmBefore) {
    Read("Alpha=5\r\n");
    Frame("Alpha");
    clock.Set(2026, 3, 15, 13, 0, 0);
    clock.m_Steady += 1;
    table.Tick();
    clock.Set(2026, 3, 15, 13, 6, 0);
    clock.m_Steady += 1;
    table.Tick();
    clock.Set(2026, 3, 15, 13, 7, 0);
    Frame("Alpha");
    EXPECT_EQ(Alarms(),
              "1: Alpha - T10031 2026-03-15 12:30:15\n"
              "1: Alpha - T10031 2026-03-15 13:00:00\n"
              "0: Alpha - T10031 2026-03-15 13:07:00\n");
}

TEST_F(SenderTable, AFrameInTimeKeepsASenderFromBeingReported) {
    Read("Alpha=5\r\n");
    Minutes(4);
    Frame("Alpha");
    Minutes(4);
    EXPECT_TRUE(alarms.empty());
    Minutes(1.1);
    EXPECT_EQ(alarms.size(), 1u);
}

TEST_F(SenderTable, OnlyTheFirstOfTwoRowsOfANameIsUpdated) {
    Read("Alpha=5\r\nALPHA=6\r\n");
    clock.AddSeconds(60);
    Frame("alpha");
    EXPECT_EQ(Row(0).LastSeen, clock.Now());
    EXPECT_LT(Row(1).LastSeen, clock.Now());
}

TEST_F(SenderTable, AnUnknownSenderIsNotFound) {
    Read("Alpha=5\r\n");
    EXPECT_EQ(Frame("Beta"), eHeard::Unknown);
    EXPECT_EQ(Frame("Alpha ", ""), eHeard::Unknown);
}

TEST_F(SenderTable, AChangedWallClockRaisesNoAlarm) {
    Read("Alpha=5\r\n");
    clock.Set(2026, 3, 29, 3, 0, 0);
    table.Tick();
    EXPECT_TRUE(alarms.empty());
}

TEST_F(SenderTable, ASilenceIsNoticedAcrossAClockSetBack) {
    Read("Alpha=5\r\n");
    clock.AddSeconds(306);
    clock.Set(2026, 3, 15, 11, 30, 0);
    table.Tick();
    EXPECT_EQ(alarms.size(), 1u);
}

TEST_F(SenderTable, AnotherReadingBeginsAfresh) {
    Read("Alpha=5\r\nBeta=5\r\n");
    Frame("Alpha");
    Minutes(5.1);
    Read("Gamma=5\r\n");
    ASSERT_EQ(table.m_SenderCount, 1);
    EXPECT_EQ(Row(0).SenderName, "Gamma");
    EXPECT_TRUE(Row(0).NotYetSeen);
    EXPECT_FALSE(Row(0).AlarmRaised);
    EXPECT_EQ(Row(0).LastSeen, clock.Now());
}

TEST_F(SenderTable, ASectionThatCannotBeReadIsNoEmptyOne) {
    Ini("[Senders]\r\nAlpha=5\r\n");
    files.SetUnreadable(ini.FullPath(kIniFile), true);
    EXPECT_THROW(table.ReadSenders(), cFailure);
    files.RemoveFile(ini.FullPath(kIniFile));
    EXPECT_NO_THROW(table.ReadSenders());
    EXPECT_EQ(table.m_SenderCount, 0);
}

}  // namespace
}  // namespace vigrel::testing
