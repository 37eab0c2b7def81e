#include "common/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "common/failure.h"

namespace vigrel::testing {
namespace {

struct cReading {
    const char* text;
    double value;
};

TEST(Val, ReadsTheLongestNumericPrefix) {
    for (const cReading& c : {cReading{"12", 12},
                              {"-12", -12},
                              {"+12", 12},
                              {"3.5", 3.5},
                              {".5", 0.5},
                              {"5.", 5},
                              {"-.25", -0.25},
                              {"1e3", 1000},
                              {"1E-2", 0.01},
                              {"2e+2x", 200},
                              {"10,5", 10},
                              {"7 apples", 7},
                              {"1.2.3", 1.2},
                              {"5e", 5},
                              {"5e+", 5},
                              {"5e-x", 5},
                              {"12-7", 12},
                              {"007", 7},
                              {"0x1F", 0}}) {
        EXPECT_EQ(Val(c.text), c.value) << "text: " << c.text;
    }
}

TEST(Val, IsZeroWithoutANumericPrefix) {
    for (const char* text :
         {"", " ", "abc", "-", "+", ".", "-.", "e5", ".e5", "+-5", "--5", "x7", "inf", "nan"}) {
        EXPECT_EQ(Val(text), 0) << "text: " << text;
    }
}

TEST(Val, IgnoresBlanksWhereverTheyStand) {
    EXPECT_EQ(Val("  12"), 12);
    EXPECT_EQ(Val("1 2 3"), 123);
    EXPECT_EQ(Val("- 5"), -5);
    EXPECT_EQ(Val("\t4\t2"), 42);
    EXPECT_EQ(Val("1 . 5 e 1"), 15);
}

TEST(Val, IsInfiniteAboveTheRangeAndZeroBelowIt) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Val("1e400"), infinity);
    EXPECT_EQ(Val("-1e400"), -infinity);
    EXPECT_EQ(Val("1e+400"), infinity);
    EXPECT_EQ(Val("0.00001e+400"), infinity);
    EXPECT_EQ(Val("10000e-400"), 0);
    EXPECT_EQ(Val("1e-400"), 0);
    EXPECT_EQ(Val("-1e-400"), 0);
    EXPECT_EQ(Val("1e99999999999999999999"), infinity);
    EXPECT_EQ(Val("1e-99999999999999999999"), 0);
    EXPECT_EQ(Val(std::string(400, '9')), infinity);
    EXPECT_EQ(Val("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(Val("1" + std::string(500, '0') + "e-100"), infinity);
    EXPECT_EQ(Val("0." + std::string(500, '0') + "1e100"), 0);
}

TEST(Val, ReadsWhatDigitsAndExponentBringIntoRange) {
    EXPECT_EQ(Val("1" + std::string(500, '0') + "e-500"), 1);
    EXPECT_EQ(Val("0e99999"), 0);
}

TEST(IsNumeric, WantsTheWholeTextToBeOneNumber) {
    for (const char* text : {"0", "12", "-1.5", "+7", ".5", "5.", "1e3", " 13 ", "\t1", "007"}) {
        EXPECT_TRUE(IsNumeric(text)) << "text: " << text;
    }
    for (const char* text :
         {"", " ", "abc", "12x", "1 2", "-", ".", "1.2.3", "5e", "--1", "1,5", "T0", "&H1F", "1e999"}) {
        EXPECT_FALSE(IsNumeric(text)) << "text: " << text;
    }
}

TEST(RoundEven, TiesGoToTheEvenNeighbour) {
    EXPECT_EQ(RoundEven(0.5), 0);
    EXPECT_EQ(RoundEven(1.5), 2);
    EXPECT_EQ(RoundEven(2.5), 2);
    EXPECT_EQ(RoundEven(-0.5), 0);
    EXPECT_EQ(RoundEven(-1.5), -2);
    EXPECT_EQ(RoundEven(-2.5), -2);
    EXPECT_EQ(RoundEven(2.4999), 2);
    EXPECT_EQ(RoundEven(2.5001), 3);
}

TEST(ToInt16, RoundsAndHoldsItsRange) {
    EXPECT_EQ(ToInt16(2.5), 2);
    EXPECT_EQ(ToInt16(32767), 32767);
    EXPECT_EQ(ToInt16(32767.49), 32767);
    EXPECT_EQ(ToInt16(-32768), -32768);
    EXPECT_EQ(ToInt16(-32768.5), -32768);
}

template <class Convert>
void ExpectOverflow(Convert convert, std::initializer_list<double> values) {
    for (const double value : values) {
        try {
            convert(value);
            ADD_FAILURE() << value << " was converted";
        } catch (const cFailure& failure) {
            EXPECT_EQ(failure.Number(), eFailure::Overflow);
        }
    }
}

const double kInfinity = std::numeric_limits<double>::infinity();
const double kNoNumber = std::nan("");

TEST(ToInt16, OverflowsOutsideItsRange) {
    ExpectOverflow([](double v) { return ToInt16(v); },
                   {32767.5, 32768, -32768.51, -32769, 1e300, kInfinity, -kInfinity, kNoNumber});
}

TEST(ToInt32, HoldsItsRangeAndOverflowsOutsideIt) {
    EXPECT_EQ(ToInt32(2147483647), 2147483647);
    EXPECT_EQ(ToInt32(-2147483648.0), std::numeric_limits<std::int32_t>::min());
    ExpectOverflow([](double v) { return ToInt32(v); },
                   {2147483647.5, 2147483648.0, -2147483649.0, kNoNumber});
}

TEST(ToByte, HoldsItsRangeAndOverflowsOutsideIt) {
    EXPECT_EQ(ToByte(255.4), 255);
    EXPECT_EQ(ToByte(-0.5), 0);
    ExpectOverflow([](double v) { return ToByte(v); }, {255.5, 256, -0.51, kInfinity});
}

TEST(NumberText, IsTheShortestTextThatReadsBack) {
    EXPECT_EQ(NumberText(5000), "5000");
    EXPECT_EQ(NumberText(10.5), "10.5");
    EXPECT_EQ(NumberText(-0.25), "-0.25");
    EXPECT_EQ(NumberText(0), "0");
    EXPECT_EQ(NumberText(0.1), "0.1");
    EXPECT_EQ(NumberText(123456789012.0), "123456789012");
    EXPECT_EQ(NumberText(0.00001), "0.00001");
    EXPECT_EQ(NumberText(0.000009), "9e-06");
    EXPECT_EQ(NumberText(999999999999999.0), "999999999999999");
    EXPECT_EQ(NumberText(1e15), "1e+15");
    EXPECT_EQ(Val(NumberText(1e300)), 1e300);
    EXPECT_EQ(Val(NumberText(1.0 / 3)), 1.0 / 3);
}

TEST(SingleText, HasAtMostSevenDigits) {
    EXPECT_EQ(SingleText(12.5F), "12.5");
    EXPECT_EQ(SingleText(1.0F / 3), "0.3333333");
    EXPECT_EQ(SingleText(0.1F), "0.1");
}

TEST(Digits, FillsUpWithZerosAndNeverCuts) {
    EXPECT_EQ(Digits(7, 3), "007");
    EXPECT_EQ(Digits(1234, 3), "1234");
    EXPECT_EQ(Digits(-7, 3), "-007");
    EXPECT_EQ(Digits(0, 1), "0");
    EXPECT_EQ(Digits(std::numeric_limits<std::int64_t>::min(), 1), "-9223372036854775808");
}

TEST(HexText, IsUpperCaseWithoutLeadingZeros) {
    EXPECT_EQ(HexText(0), "0");
    EXPECT_EQ(HexText(0xABC), "ABC");
    EXPECT_EQ(HexText(0xFFFFFFFF), "FFFFFFFF");
}

}  // namespace
}  // namespace vigrel::testing
