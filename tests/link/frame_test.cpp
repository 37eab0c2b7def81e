#include "link/frame.h"

#include <gtest/gtest.h>

namespace vigrel::testing {
namespace {

TEST(Frame, TheChecksumIsThePlainSumInTwoUpperCaseDigits) {
    EXPECT_EQ(CalcChecksum(""), "00");
    EXPECT_EQ(CalcChecksum("\x0A"), "0A");
    EXPECT_EQ(CalcChecksum("\xFF"), "FF");
    EXPECT_EQ(CalcChecksum("\xFF\x01"), "00");
    // 0x50 + 0x4C + 0x43 + 0x31 + 0xFF + 0x53 + 0x30 = 0x292
    EXPECT_EQ(CalcChecksum("PLC1\xFFS0"), "92");
}

TEST(Frame, AFrameIsMadeByteForByte) {
    EXPECT_EQ(MakeFrame("PLC1", "S0"),
              "\x02PLC1\xFFS0\xFF"
              "92\x03\x0A");
}

}  // namespace
}  // namespace vigrel::testing
