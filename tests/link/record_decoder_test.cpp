#include "link/record_decoder.h"

#include <gtest/gtest.h>

#include <vector>

#include "common/dates.h"
#include "common/failure.h"
#include "link/frame.h"
#include "support/fake_station.h"

namespace vigrel::testing {
namespace {

const std::string kPositiveReply =
    "\x04"
    "04\n\r";
const std::string kNegativeReply =
    "\x05"
    "05\n\r";

class RecordDecoder : public ::testing::Test, public cFakeStation {
  protected:
    RecordDecoder() {
        LoadTexts({10028, 10029, 10030, 10031, 10032, 10042, 10048});
        ini.PutIniString("Senders", "Alpha", "5");
        senders.ReadSenders();
    }
    // The reply to one line.
    std::string Reply(const std::string& line) {
        replies.clear();
        decoder.ProcessRecord(line);
        return replies;
    }
    // The reply to a frame that is right but for what a test did to it.
    std::string Frame(const std::string& sender, const std::string& second) {
        std::string frame = MakeFrame(sender, second);
        frame.pop_back();  // the line feed
        return Reply(frame);
    }
    const cAlarm& Last() const { return alarms.back()->m_Alarm; }
    DateTime EventTime(const std::string& date, const std::string& time) {
        Frame("PLC1", "S1" + date + "|" + time + "|text");
        return Last().m_TimeStampFromSCADA;
    }

    std::vector<AlarmPtr> alarms;
    std::string logAtIntake;  // what the log held when the last alarm was taken in
    std::string replies;
    std::function<void(const AlarmPtr&)> take = [this](const AlarmPtr& alarm) {
        alarms.push_back(alarm);
        logAtIntake = Log();
    };
    cSenderTable senders{{files, clock, maker, ini, texts, log, settings, forms, messageBox, take}};
    cRecordDecoder decoder{{clock, maker, log, texts, senders, take,
                            [this](std::string_view reply) { replies += std::string(reply); }}};
};

TEST_F(RecordDecoder, AnEmptyLineAndTheTwoReplyFormsAreNotAnswered) {
    EXPECT_EQ(Reply(""), "");
    EXPECT_EQ(Reply("\x04"
                    "04"),
              "");
    EXPECT_EQ(Reply("\x05"
                    "05"),
              "");
    EXPECT_EQ(Log(), "");
}

TEST_F(RecordDecoder, ALineThatOnlyBeginsWithAReplyFormIsRefused) {
    EXPECT_EQ(Reply("\x04"
                    "04x"),
              kNegativeReply);
    EXPECT_EQ(Reply("\x05"
                    "05x"),
              kNegativeReply);
}

TEST_F(RecordDecoder, ALineNotEnclosedInStxAndEtxIsRefusedAndTouchesNoSender) {
    const DateTime before = senders.m_Senders[0].LastSeen;
    clock.AddSeconds(10);
    EXPECT_EQ(Reply("Alpha\xFFS1\xFF"
                    "00\x03"),
              kNegativeReply);
    EXPECT_EQ(Reply("\x02"
                    "Alpha\xFFS1\xFF"
                    "00"),
              kNegativeReply);
    EXPECT_EQ(Reply("x"), kNegativeReply);
    EXPECT_EQ(senders.m_Senders[0].LastSeen, before);
    EXPECT_EQ(Log(), "");
}

TEST_F(RecordDecoder, AnAlarmRecordBecomesAnAlarmWithAllItsFields) {
    EXPECT_EQ(Reply("\x02PLC1\xFFS12024-03-05|06:07:08| main |one|Fire|three|four|five|six\xFF"
                    "85\x03"),
              kPositiveReply);
    ASSERT_EQ(alarms.size(), 1u);
    const cVigrelRecieverAlarm& alarm = *alarms[0];
    EXPECT_EQ(alarm.m_Sender, "PLC1");
    EXPECT_EQ(alarm.m_Alarm.m_Status, StatusActive);
    EXPECT_EQ(alarm.m_Alarm.m_System, 63);
    const char* conditions[] = {"main", "one", "Fire", "three", "four", "five"};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(alarm.m_Alarm.GetCondition(i), conditions[i]);
    EXPECT_NEAR(alarm.m_Alarm.m_TimeStampFromSCADA, DateSerial(2024, 3, 5) + TimeSerial(6, 7, 8), 1e-9);
    EXPECT_EQ(alarm.m_Alarm.m_TimeStampFromPC, clock.Now());
    EXPECT_EQ(alarm.m_CreatedTime, clock.Now());
    EXPECT_EQ(alarm.m_Observed, False16);
    EXPECT_EQ(Log(), "PLC1 T10030 Active - main (one/Fire/three/four)\nPLC1T10029\n");
}

TEST_F(RecordDecoder, AnAlarmIsLoggedBehindItsIntake) {
    Frame("Alpha", "S1||first");
    EXPECT_EQ(logAtIntake, "");
    Frame("Alpha", "S1||second");
    EXPECT_EQ(logAtIntake, "Alpha T10030 Active - first (///)\n");
}

TEST_F(RecordDecoder, TheKindIsTheStatus) {
    for (const auto& [kind, status] : {std::pair{"S0", 0}, {"S1", 1}, {"S2", 2}}) {
        EXPECT_EQ(Frame("Alpha", std::string(kind) + "||text"), kPositiveReply);
        EXPECT_EQ(Last().m_Status, status);
    }
}

TEST_F(RecordDecoder, EveryRecordMakesANewAlarm) {
    Frame("Alpha", "S1||text");
    Frame("Alpha", "S2||text");
    Frame("Alpha", "S1||text");
    EXPECT_EQ(alarms.size(), 3u);
}

TEST_F(RecordDecoder, AMessageIsLoggedAndNotAnAlarm) {
    EXPECT_EQ(Frame("Alpha", "S3d|t| hello |x"), kPositiveReply);
    EXPECT_TRUE(alarms.empty());
    EXPECT_EQ(Log(), "Alpha T10042 -> hello\n");
}

TEST_F(RecordDecoder, AMessageWithoutTextLogsALineWithNothingBehindTheArrow) {
    EXPECT_EQ(Frame("Alpha", "S3d|t"), kPositiveReply);
    EXPECT_EQ(Log(), "Alpha T10042 -> \n");
}

TEST_F(RecordDecoder, AnEmptyPayloadIsAKeepAliveInEveryKind) {
    for (const char* kind : {"S0", "S1", "S2", "S3"}) EXPECT_EQ(Frame("Alpha", kind), kPositiveReply);
    EXPECT_TRUE(alarms.empty());
    EXPECT_EQ(Log(), "Alpha T10028\nAlpha T10028\nAlpha T10028\nAlpha T10028\n");
}

TEST_F(RecordDecoder, AKeepAliveOfAnUnknownSenderIsPositiveAndLoggedAsUnknown) {
    EXPECT_EQ(Frame("Beta", "S0"), kPositiveReply);
    EXPECT_EQ(Log(), "BetaT10029\n");
}

TEST_F(RecordDecoder, AWrongChecksumIsRefusedButTheSenderIsAlive) {
    clock.AddSeconds(10);
    EXPECT_EQ(Reply("\x02"
                    "Alpha\xFFS1x\xFF"
                    "00\x03"),
              kNegativeReply);
    EXPECT_TRUE(alarms.empty());
    EXPECT_EQ(senders.m_Senders[0].LastSeen, clock.Now());
    EXPECT_FALSE(senders.m_Senders[0].NotYetSeen);
    EXPECT_EQ(Log(), "");
}

TEST_F(RecordDecoder, LowerCaseChecksumDigitsAreRefused) {
    // "Alpha" 0x1E6 + 0xFF + "S0" 0x83 + "j" 0x6A = 0x3D2
    EXPECT_EQ(Reply("\x02"
                    "Alpha\xFFS0j\xFF"
                    "D2\x03"),
              kPositiveReply);
    EXPECT_EQ(Reply("\x02"
                    "Alpha\xFFS0j\xFF"
                    "d2\x03"),
              kNegativeReply);
}

TEST_F(RecordDecoder, BlanksAroundTheChecksumAreRefused) {
    for (const char* checksum : {" D2", "D 2", " D", "D "}) {
        EXPECT_EQ(Reply(std::string("\x02") + "Alpha\xFFS0j\xFF" + checksum + "\x03"), kNegativeReply)
            << checksum;
    }
}

TEST_F(RecordDecoder, ABadFrameThatHoldsOnlyAKindIsNoKeepAlive) {
    clock.AddSeconds(10);
    EXPECT_EQ(Reply("\x02"
                    "Alpha\xFFS0\xFF"
                    "00\x03"),
              kNegativeReply);
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(senders.m_Senders[0].LastSeen, clock.Now());
}

TEST_F(RecordDecoder, AKindInLowerCaseFailsAndTheSenderIsAlive) {
    clock.AddSeconds(10);
    EXPECT_EQ(Frame("Alpha", "s1||text"), kNegativeReply);
    EXPECT_EQ(Frame("Alpha", "S4||text"), kNegativeReply);
    EXPECT_TRUE(alarms.empty());
    EXPECT_EQ(senders.m_Senders[0].LastSeen, clock.Now());
}

TEST_F(RecordDecoder, AnEmptyFieldOneIsPositiveForAKnownSenderOnly) {
    EXPECT_EQ(Reply("\x02"
                    "Alpha\xFF\xFF"
                    "00\x03"),
              kPositiveReply);
    EXPECT_EQ(Log(), "Alpha T10028\n");
    EXPECT_EQ(Reply("\x02"
                    "Beta\xFF\xFF"
                    "00\x03"),
              kNegativeReply);
    EXPECT_EQ(Log(), "Alpha T10028\nBetaT10029\n");
}

TEST_F(RecordDecoder, FurtherFieldsAndCharactersBehindTheChecksumAreIgnored) {
    EXPECT_EQ(Reply("\x02"
                    "Alpha\xFFS0j\xFF"
                    "D2xyz\xFFmore\x03"),
              kPositiveReply);
}

TEST_F(RecordDecoder, AShortDateAndALongDateAreTheSame) {
    EXPECT_EQ(EventTime("2024-03-05", "01:00:00"), EventTime("24-03-05", "01:00:00"));
    EXPECT_EQ(EventTime("2024-03-05", "12:00:00"), DateSerial(2024, 3, 5) + 0.5);
}

TEST_F(RecordDecoder, BlanksAroundDateAndTimeDoNotCount) {
    EXPECT_DOUBLE_EQ(EventTime(" 2024-03-05 ", " 06:07:08 "), DateSerial(2024, 3, 5) + TimeSerial(6, 7, 8));
    EXPECT_DOUBLE_EQ(EventTime("  ", "  "), clock.Now());
}

TEST_F(RecordDecoder, ABlankInPlaceOfAZeroIsReadOver) {
    EXPECT_DOUBLE_EQ(EventTime("2024- 3- 5", " 6: 7: 8"), DateSerial(2024, 3, 5) + TimeSerial(6, 7, 8));
}

TEST_F(RecordDecoder, FourCharactersWithoutHyphenAreAYearOfFourDigits) {
    EXPECT_EQ(EventTime("2024", "12:00:00"), DateSerial(2024, 0, 0) + 0.5);
}

TEST_F(RecordDecoder, TwoDigitYearsChangeCenturyAtThirty) {
    EXPECT_EQ(EventTime("29-01-01", "12:00:00"), DateSerial(2029, 1, 1) + 0.5);
    EXPECT_EQ(EventTime("30-01-01", "12:00:00"), DateSerial(1930, 1, 1) + 0.5);
}

TEST_F(RecordDecoder, AnEmptyDateIsTodayAndAnEmptyTimeIsTheTimeOfReceipt) {
    EXPECT_DOUBLE_EQ(EventTime("", "01:00:00"), DateOf(clock.Now()) + TimeSerial(1, 0, 0));
    EXPECT_DOUBLE_EQ(EventTime("2024-03-05", ""), DateSerial(2024, 3, 5) + clock.Now() - DateOf(clock.Now()));
}

TEST_F(RecordDecoder, MidnightGivesTheTimeOfReceiptAndOneSecondPastItDoesNot) {
    EXPECT_DOUBLE_EQ(EventTime("2024-03-05", "00:00:00"),
                     DateSerial(2024, 3, 5) + clock.Now() - DateOf(clock.Now()));
    EXPECT_DOUBLE_EQ(EventTime("2024-03-05", "00:00:01"), DateSerial(2024, 3, 5) + 1.0 / 86400);
}

TEST_F(RecordDecoder, ADateWithSlashesIsReadByTheShortForm) {
    EXPECT_EQ(EventTime("2024/03/05", "12:00:00"), DateSerial(2020, 4, 3) + 0.5);
}

TEST_F(RecordDecoder, PartsOutOfRangeCarry) {
    EXPECT_EQ(EventTime("2024-13-01", "12:00:00"), DateSerial(2025, 1, 1) + 0.5);
    EXPECT_EQ(EventTime("2024-03-00", "12:00:00"), DateSerial(2024, 2, 29) + 0.5);
    EXPECT_DOUBLE_EQ(EventTime("2024-03-05", "25:00:00"), DateSerial(2024, 3, 6) + 1.0 / 24);
}

TEST_F(RecordDecoder, ADateThatCannotBeMeansToday) {
    EXPECT_EQ(EventTime("9999-99-01", "12:00:00"), DateOf(clock.Now()) + 0.5);
    EXPECT_EQ(EventTime("1899-12-30", "12:00:00"), DateOf(clock.Now()) + 0.5);
}

TEST_F(RecordDecoder, DatePartsThatAreNoNumbersCountAsZero) {
    EXPECT_EQ(EventTime("abcd-ef-gh", "12:00:00"), DateSerial(0, 0, 0) + 0.5);
}

TEST_F(RecordDecoder, OnlyTheTwoDigitsOfAPartCountAndNoneBehindAnotherCharacter) {
    const DateTime expected = DateSerial(2026, 3, 15) + TimeSerial(12, 30, 45);
    EXPECT_DOUBLE_EQ(EventTime("26-03115", "12:30:45"), expected);
    EXPECT_DOUBLE_EQ(EventTime("26-03-155", "12:30:45"), expected);
    EXPECT_DOUBLE_EQ(EventTime("2026-03-155", "12930945"), expected);
    EXPECT_DOUBLE_EQ(EventTime("26-03-15", "x9:30:45"), DateSerial(2026, 3, 15) + TimeSerial(0, 30, 45));
}

TEST_F(RecordDecoder, MissingSubFieldsLeaveConditionsEmpty) {
    EXPECT_EQ(Frame("Alpha", "S12024-03-05"), kPositiveReply);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(Last().GetCondition(i), "");
}

TEST_F(RecordDecoder, CharacterSixteenArrivesAsALineFeedAndCountsAsItself) {
    // "Alpha" 0x1E6 + 0xFF + "S1" 0x84 + "||" 0xF8 + "a" 0x61 + 0x10 + "b" 0x62 = 0x534
    EXPECT_EQ(Reply("\x02"
                    "Alpha\xFFS1||a\x10"
                    "b\xFF"
                    "34\x03"),
              kPositiveReply);
    EXPECT_EQ(Last().GetCondition(0), "a\nb");
}

TEST_F(RecordDecoder, EveryCharacterSixteenArrivesAsALineFeed) {
    Frame("Alpha",
          "S1||a\x10\x10"
          "b\x10");
    EXPECT_EQ(Last().GetCondition(0), "a\n\nb\n");
}

TEST_F(RecordDecoder, CharacterSixteenIsALineFeedInAMessageToo) {
    Frame("Alpha",
          "S3||a\x10"
          "b");
    EXPECT_NE(files.ReadFile("C:\\App\\LogFiles\\20260315.Log").find(" T10042 -> a\nb\r\n"),
              std::string::npos);
}

TEST_F(RecordDecoder, ASenderInAnotherCaseFindsItsRowAndTheAlarmKeepsTheFramesSpelling) {
    clock.AddSeconds(10);
    EXPECT_EQ(Frame("ALPHA", "S1||text"), kPositiveReply);
    EXPECT_EQ(senders.m_Senders[0].LastSeen, clock.Now());
    EXPECT_EQ(alarms[0]->m_Sender, "ALPHA");
    EXPECT_EQ(Log(), "ALPHA T10030 Active - text (///)\n");
}

TEST_F(RecordDecoder, TheSenderNameIsNotTrimmed) {
    EXPECT_EQ(Frame(" Alpha", "S1||text"), kPositiveReply);
    EXPECT_EQ(alarms[0]->m_Sender, " Alpha");
    EXPECT_EQ(Log(), " Alpha T10030 Active - text (///)\n AlphaT10029\n");
}

TEST_F(RecordDecoder, ALostSenderThatSendsComesBackBehindItsOwnAlarm) {
    senders.m_Senders[0].AlarmRaised = true;
    senders.m_Senders[0].NotYetSeen = false;
    EXPECT_EQ(Frame("alpha", "S1||text"), kPositiveReply);
    ASSERT_EQ(alarms.size(), 2u);
    EXPECT_EQ(alarms[0]->m_Alarm.GetCondition(0), "text");
    EXPECT_EQ(alarms[1]->m_Alarm.GetCondition(0), "VigrelAlarmReceiver");
    EXPECT_EQ(alarms[1]->m_Alarm.m_Status, StatusInactive);
}

TEST_F(RecordDecoder, AKeepAliveThatBringsASenderBackIsLoggedInTheTablesSpelling) {
    senders.m_Senders[0].AlarmRaised = true;
    EXPECT_EQ(Frame("ALPHA", "S0"), kPositiveReply);
    EXPECT_EQ(Log(), "Alpha T10028\n");
    Frame("ALPHA", "S0");
    EXPECT_EQ(Log(), "Alpha T10028\nALPHA T10028\n");
}

TEST_F(RecordDecoder, ABadFrameBringsALostSenderBack) {
    senders.m_Senders[0].AlarmRaised = true;
    EXPECT_EQ(Reply("\x02"
                    "Alpha\xFFS1x\xFF"
                    "00\x03"),
              kNegativeReply);
    ASSERT_EQ(alarms.size(), 1u);
    EXPECT_EQ(alarms[0]->m_Alarm.m_Status, StatusInactive);
    EXPECT_FALSE(senders.m_Senders[0].AlarmRaised);
}

TEST_F(RecordDecoder, AFieldBeyondTheSixteenBitPositionsIsRefused) {
    for (const char* sender : {"PLC1", "Alpha"}) {
        EXPECT_EQ(Frame(sender, "S1" + std::string(40000, 'x')), kNegativeReply) << sender;
    }
    EXPECT_TRUE(alarms.empty());
    EXPECT_EQ(Log(), "PLC1T10029\n");
}

TEST_F(RecordDecoder, AFailingIntakeStillGetsTheAlarmLoggedAndAnswered) {
    cRecordDecoder failing{{clock, maker, log, texts, senders,
                            [](const AlarmPtr&) { throw cFailure(eFailure::InvalidCall, "no"); },
                            [this](std::string_view reply) { replies += std::string(reply); }}};
    std::string frame = MakeFrame("Alpha", "S1||text");
    frame.pop_back();
    failing.ProcessRecord(frame);
    EXPECT_EQ(replies, kPositiveReply);
    EXPECT_EQ(Log(), "Alpha T10030 Active - text (///)\n");
}

// --- the log is nobody's weapon

TEST_F(RecordDecoder, ANameIsLoggedInFullUpToAHundredCharacters) {
    const std::string name(100, 'n');
    Frame(name, "S3||hello");
    EXPECT_EQ(Log(), name + " T10042 -> hello\n" + name + "T10029\n");
}

TEST_F(RecordDecoder, ALongerNameIsCutInTheLogAndWholeInTheAlarm) {
    const std::string name = "first" + std::string(29'995, 'n');
    const std::string cut = "first" + std::string(95, 'n') + "... (+29900)";
    Frame(name, "S1||text");
    EXPECT_EQ(alarms.back()->m_Sender, name);
    Frame(name, "S3||hello");
    Reply("\x02" + name + "\xFFS9\xFF" + "00\x03");
    EXPECT_EQ(Log(), cut + " T10030 Active - text (///)\n" + cut + "T10029\n" + cut + " T10042 -> hello\n" +
                         cut + "T10029\n" + cut + "T10029\n");
}

TEST_F(RecordDecoder, EqualRefusalsInARowAreCounted) {
    const std::string refused =
        "\x02PLC9\xFFS9\xFF"
        "00\x03";
    for (int i = 0; i < 500; ++i) EXPECT_EQ(Reply(refused), kNegativeReply);
    std::string lines;
    for (int i = 0; i < 10; ++i) lines += "PLC9T10029\n";
    EXPECT_EQ(Log(), lines);
    log.WriteRepeats();
    EXPECT_EQ(Log(), lines + "... 490 T10048\n");
}

TEST_F(RecordDecoder, WhatIsAcceptedIsLoggedEachTime) {
    for (int i = 0; i < 50; ++i) Frame("PLC9", "S0");
    std::string lines;
    for (int i = 0; i < 50; ++i) lines += "PLC9T10029\n";
    EXPECT_EQ(Log(), lines);
}

}  // namespace
}  // namespace vigrel::testing
