#include "receiver_check/checked_station.h"

namespace vigrel::testing {
namespace {

class SendersCheck : public testing::cCheckedStation {
  protected:
    std::string Senders(const std::string& lines) { return Rest("[Senders]\r\n" + lines); }
    std::string SendersMessage(const std::string& lines) { return RestMessage("[Senders]\r\n" + lines); }
    static std::string Many(int count, const std::string& tail = "") {
        std::string lines;
        for (int i = 0; i < count; ++i) lines += "PLC" + std::to_string(i) + tail + "=5\r\n";
        return lines;
    }
};

TEST_F(SendersCheck, GoodLinesAreLeftAlone) {
    EXPECT_EQ(Senders("PLC1=5\r\n; a remark\r\n  ; another\r\n\r\nGuest house=0"), "");
}

TEST_F(SendersCheck, OuterBlanksArePartOfAName) {
    EXPECT_EQ(Senders(" PLC1=5"), "warning sender-blanks [Senders]  PLC1");
    EXPECT_EQ(Senders("PLC1 =5"), "warning sender-blanks [Senders] PLC1 ");
    EXPECT_EQ(SendersMessage("PLC1 =5"),
              "the blanks around the name are part of it: \"PLC1 \" matches no sender that sends its name "
              "without them");
}

TEST_F(SendersCheck, ALineWithoutMinutesIsTold) {
    EXPECT_EQ(Senders("PLC1"), "warning sender-without-minutes [Senders]");
    EXPECT_EQ(Senders("PLC1="), "warning sender-without-minutes [Senders] PLC1");
    EXPECT_EQ(SendersMessage("PLC1="), "has no minutes and is not supervised");
}

TEST_F(SendersCheck, MinutesAreANumberOf16Bits) {
    EXPECT_EQ(Senders("PLC1=five"), "warning number-unreadable [Senders] PLC1");
    EXPECT_EQ(Senders("PLC1=5 min"), "warning number-with-rest [Senders] PLC1");
    EXPECT_EQ(Senders("PLC1=-5"), "warning number-out-of-range [Senders] PLC1");
    EXPECT_EQ(SendersMessage("PLC1=40000"), "does not fit 16 bits: the start ends with a message");
    EXPECT_EQ(Senders("PLC1=5=6"), "warning sender-second-equals [Senders] PLC1");
}

TEST_F(SendersCheck, ALineWithoutNameIsTold) {
    EXPECT_EQ(Senders("=5"), "warning sender-without-name [Senders]");
}

TEST_F(SendersCheck, ARepeatedSenderIsNeverHeard) {
    const cFindings findings = Check(Content("", "[Senders]\r\nPLC1=5\r\nplc1=6"));
    EXPECT_EQ(Lines(findings), "error sender-repeated [Senders] plc1");
    EXPECT_EQ(findings.m_All[0].place.line, 17u);
    EXPECT_EQ(findings.m_All[0].message,
              "stands in line 16 already, which counts; this line's sender is never heard");
}

TEST_F(SendersCheck, WhatStandsBehindALineOfAZeroByteIsNoSender) {
    using std::string_literals::operator""s;
    EXPECT_EQ(Senders("PLC1=5\r\n\0PLC2=40000\r\nPLC3=40000"s), "error utf-16 VigrelReceiver.INI");
}

TEST_F(SendersCheck, TheTableTakes100Senders) {
    EXPECT_EQ(Senders(Many(99)), "");
    EXPECT_EQ(Senders(Many(100)), "remark senders-full [Senders] PLC99");
    EXPECT_EQ(Senders(Many(102)), "error senders-too-many [Senders] PLC100");
}

TEST_F(SendersCheck, ASectionThatDoesNotFitItsBufferIsCut) {
    // Each line takes 64 characters with its zero.
    const std::string tail(57, 'x');
    const std::string lines = Many(10, tail + "y") + Many(60, tail);
    EXPECT_EQ(Senders(Many(10, tail + "y") + Many(10, tail)), "");
    EXPECT_EQ(Senders(lines).substr(0, 38), "error senders-dont-fit [Senders] PLC53");
}

}  // namespace
}  // namespace vigrel::testing
