#include <gtest/gtest.h>

#include <algorithm>

#include "common/failure.h"
#include "events/vigrel_reciever_alarm.h"
#include "support/fake_clock.h"

namespace vigrel::testing {
namespace {

std::string Written(const cVigrelRecieverAlarm& alarm) {
    cBinaryWriter file;
    alarm.WriteToDisk(file);
    return file.Bytes();
}

std::string Zeros(std::size_t count) {
    return std::string(count, '\0');
}

TEST(AlarmObjects, AFreshAlarmWithEmptyStringsWrites180Bytes) {
    cFakeClock clock;
    const cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
    EXPECT_EQ(Written(alarm).size(), 180u);
    cBinaryWriter core;
    alarm.m_Alarm.WriteToDisk(core);
    EXPECT_EQ(core.Bytes().size(), 104u);
}

TEST(AlarmObjects, AFreshAlarmHasTheTimeAndNothingElse) {
    cFakeClock clock;
    const cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
    EXPECT_EQ(alarm.m_CreatedTime, clock.Now());
    EXPECT_EQ(alarm.m_Sender, "");
    EXPECT_EQ(alarm.m_Observed, False16);
    EXPECT_EQ(alarm.m_FileId, 0);
    EXPECT_EQ(alarm.m_Record, 0u);
    EXPECT_EQ(alarm.m_CategoryText, nullptr);
    EXPECT_FALSE(alarm.m_Removed);
    const cAlarm& event = alarm.m_Alarm;
    EXPECT_EQ(event.m_EventId, 0);
    EXPECT_EQ(event.m_TimeStampFromSCADA, 0);
    EXPECT_EQ(event.m_TimeStampFromPC, clock.Now());
    EXPECT_EQ(event.m_Status, StatusInactive);
    EXPECT_EQ(event.m_ParallellNumbers, 0);
    EXPECT_EQ(event.m_System, 0);
    EXPECT_EQ(event.m_SequenceNumbers, 0);
    EXPECT_EQ(event.m_WaitingForConfirmation, False16);
    EXPECT_EQ(event.m_TimeToContinue, 0);
    EXPECT_EQ(event.m_TimeToSend, 0);
    EXPECT_EQ(event.m_NextSequenceReceiver, 0);
    EXPECT_EQ(event.m_RepeatCount, 0);
    EXPECT_EQ(event.m_TriedToSendAtLeastOnce, False16);
    EXPECT_EQ(event.m_ShouldNotBeRepeatedAnyMore, False16);
    EXPECT_EQ(event.m_SimulationBehaviour, 0);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(event.GetCondition(i), "") << i;
}

TEST(AlarmObjects, TheRecordIsWrittenAndReadByteForByte) {
    cFakeClock clock;
    clock.m_Now = 2.5;  // IEEE 754: 00 00 00 00 00 00 04 40
    cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
    alarm.m_Alarm.m_TimeStampFromSCADA = 1.0;  // 00 00 00 00 00 00 F0 3F
    alarm.m_Alarm.m_EventId = 0x01020304;
    alarm.m_Alarm.m_Status = 1;
    for (int i = 0; i < 6; ++i) alarm.m_Alarm.SetCondition(i, std::string(1, static_cast<char>('a' + i)));
    alarm.m_Alarm.m_SequenceReceivers = "SR";
    alarm.m_Alarm.m_SequenceReceiverConfirm = "C";
    alarm.m_Alarm.m_SequenceNumbers = -2;
    alarm.m_Alarm.m_ParallellReceivers = "\xC5";
    alarm.m_Alarm.m_ParallellNumbers = 258;
    alarm.m_Sender = "PLC";
    alarm.m_Observed = True16;
    alarm.m_FileId = 42917;
    using std::string_literals::operator""s;
    const std::string expected = "\0\0\0\0\0\0\xF0\x3F"s + "\0\0\0\0\0\0\x04\x40"s + "\x04\x03\x02\x01"s +
                                 "\x01\0"s + "\x01\0a\x01\0b\x01\0c\x01\0d\x01\0e\x01\0f"s +
                                 "\x02\0SR\x01\0C"s + "\xFE\xFF"s + "\x01\0\xC5"s + "\x02\x01"s + Zeros(20) +
                                 Zeros(40) + "\x03\0PLC"s + "\xFF\xFF"s + "\0\0\0\0\0\0\x04\x40"s +
                                 "\xA5\xA7\0\0"s + Zeros(20) + Zeros(40);
    EXPECT_EQ(Written(alarm), expected);
    cVigrelRecieverAlarm read(clock, kNoCategorySetting);
    cBinaryReader file(expected);
    read.ReadFromDisk(file);
    EXPECT_EQ(Written(read), expected);
}

TEST(AlarmObjects, ReadingTakesBackWhatWasWrittenAndLeavesTheRest) {
    cFakeClock clock;
    cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
    alarm.m_Alarm.m_Status = 2;
    alarm.m_Alarm.SetCondition(5, "f");
    alarm.m_Alarm.m_System = 63;
    alarm.m_Alarm.m_RepeatCount = 7;
    alarm.m_Sender = "S";
    alarm.m_Observed = True16;
    const std::string bytes = Written(alarm);
    clock.AddSeconds(60);
    cVigrelRecieverAlarm other(clock, kNoCategorySetting);
    other.m_Alarm.m_TimeToSend = 5;
    cBinaryReader file(bytes);
    other.ReadFromDisk(file);
    EXPECT_EQ(file.Position(), bytes.size());
    EXPECT_EQ(other.m_CreatedTime, alarm.m_CreatedTime);
    EXPECT_EQ(other.m_Alarm.m_TimeStampFromPC, alarm.m_Alarm.m_TimeStampFromPC);
    EXPECT_EQ(other.m_Alarm.m_Status, 2);
    EXPECT_EQ(other.m_Alarm.GetCondition(5), "f");
    EXPECT_EQ(other.m_Sender, "S");
    EXPECT_EQ(other.m_Observed, True16);
    EXPECT_EQ(other.m_Alarm.m_System, 0);
    EXPECT_EQ(other.m_Alarm.m_RepeatCount, 0);
    EXPECT_EQ(other.m_Alarm.m_TimeToSend, 5);
}

TEST(AlarmObjects, SpareStringsAreReadAndGoneAfterTheNextSave) {
    cFakeClock clock;
    cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
    std::string bytes = Written(alarm);
    using std::string_literals::operator""s;
    // The first spare string of each record: behind 8 + 8 + 4 + 2 + 6*2 + 2*2 + 2 + 2 + 2 = 44 bytes of the
    // core.
    bytes.replace(44, 2, "\x03\0xyz"s);
    cBinaryReader file(bytes);
    cVigrelRecieverAlarm other(clock, kNoCategorySetting);
    other.ReadFromDisk(file);
    EXPECT_EQ(file.Position(), bytes.size());
    EXPECT_EQ(Written(other).size(), 180u);
}

TEST(AlarmObjects, ARecordCutAtAnyLengthReadsAsZerosAndEmptyTexts) {
    cFakeClock clock;
    cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
    for (int i = 0; i < 6; ++i) alarm.m_Alarm.SetCondition(i, "text");
    alarm.m_Sender = "PLC1";
    alarm.m_Observed = True16;
    const std::string bytes = Written(alarm);
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        cBinaryReader file(std::string_view(bytes).substr(0, length));
        cVigrelRecieverAlarm other(clock, kNoCategorySetting);
        other.ReadFromDisk(file);
        EXPECT_FALSE(file.Complete()) << length;
        // The sender's flag stands behind the core record and the sender's name.
        const std::size_t flag = 104 + 6 * 4 + 2 + 4;
        EXPECT_EQ(other.m_Observed, length >= flag + 2   ? True16
                                    : length == flag + 1 ? 0xFF
                                                         : False16)
            << length;
        EXPECT_EQ(other.m_Alarm.GetCondition(0).size(),
                  std::min<std::size_t>(length > 24 ? length - 24 : 0, 4))
            << length;
    }
}

TEST(AlarmObjects, ALogLineNamesTheStateAndFiveConditions) {
    cFakeClock clock;
    cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
    for (int i = 0; i < 6; ++i) alarm.m_Alarm.SetCondition(i, "c" + std::to_string(i));
    const char* words[] = {"Inactive", "Active", "Acked", "Message"};
    for (std::int16_t status = 0; status < 4; ++status) {
        alarm.m_Alarm.m_Status = status;
        EXPECT_EQ(alarm.SysLogText(), std::string(words[status]) + " - c0 (c1/c2/c3/c4)");
    }
    alarm.m_Alarm.m_Status = 4;
    EXPECT_EQ(alarm.SysLogText(), " - c0 (c1/c2/c3/c4)");
}

TEST(AlarmObjects, TheEventIdShowsAsItsLowFourHexDigits) {
    cFakeClock clock;
    cAlarm alarm(clock);
    EXPECT_EQ(alarm.ViewEventIdAsHex(), "0000");
    alarm.m_EventId = 0x12345;
    EXPECT_EQ(alarm.ViewEventIdAsHex(), "2345");
    alarm.m_EventId = 0xAB;
    EXPECT_EQ(alarm.ViewEventIdAsHex(), "00AB");
    alarm.m_EventId = -2;
    EXPECT_EQ(alarm.ViewEventIdAsHex(), "FFFE");
}

TEST(AlarmObjects, AConditionOutsideItsRangeIsRefused) {
    cFakeClock clock;
    cAlarm alarm(clock);
    EXPECT_THROW(alarm.GetCondition(6), cFailure);
    EXPECT_THROW(alarm.GetCondition(-1), cFailure);
    EXPECT_THROW(alarm.SetCondition(6, "x"), cFailure);
}

TEST(AlarmObjects, ACopyLeavesTheFieldsOfTheSendingItself) {
    cFakeClock clock;
    cAlarm from(clock);
    from.m_EventId = 1;
    from.m_TimeStampFromSCADA = 2;
    from.m_TimeStampFromPC = 3;
    from.m_Status = 2;
    from.m_ParallellReceivers = "pr";
    from.m_ParallellNumbers = 4;
    from.m_System = 5;
    from.m_SequenceReceivers = "sr";
    from.m_SequenceNumbers = 6;
    from.m_SequenceReceiverConfirm = "src";
    from.m_WaitingForConfirmation = True16;
    from.m_TimeToContinue = 7;
    from.m_NextSequenceReceiver = 8;
    from.SetCondition(3, "c3");
    from.m_SimulationBehaviour = 9;
    from.m_TimeToSend = 10;
    from.m_ExpectConfirmationFrom = "e";
    from.m_RepeatCount = 11;
    from.m_TriedToSendAtLeastOnce = True16;
    from.m_ShouldNotBeRepeatedAnyMore = True16;
    cAlarm to(clock);
    to.CopyFromOtherObject(from);
    EXPECT_EQ(to.m_EventId, 1);
    EXPECT_EQ(to.m_TimeStampFromSCADA, 2);
    EXPECT_EQ(to.m_TimeStampFromPC, 3);
    EXPECT_EQ(to.m_Status, 2);
    EXPECT_EQ(to.m_ParallellReceivers, "pr");
    EXPECT_EQ(to.m_ParallellNumbers, 4);
    EXPECT_EQ(to.m_System, 5);
    EXPECT_EQ(to.m_SequenceReceivers, "sr");
    EXPECT_EQ(to.m_SequenceNumbers, 6);
    EXPECT_EQ(to.m_SequenceReceiverConfirm, "src");
    EXPECT_EQ(to.m_WaitingForConfirmation, True16);
    EXPECT_EQ(to.m_TimeToContinue, 7);
    EXPECT_EQ(to.m_NextSequenceReceiver, 8);
    EXPECT_EQ(to.GetCondition(3), "c3");
    EXPECT_EQ(to.m_SimulationBehaviour, 9);
    EXPECT_EQ(to.m_TimeToSend, 0);
    EXPECT_EQ(to.m_ExpectConfirmationFrom, "");
    EXPECT_EQ(to.m_RepeatCount, 0);
    EXPECT_EQ(to.m_TriedToSendAtLeastOnce, False16);
    EXPECT_EQ(to.m_ShouldNotBeRepeatedAnyMore, False16);
}

}  // namespace
}  // namespace vigrel::testing
