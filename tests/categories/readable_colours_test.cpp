#include "categories/readable_colours.h"

#include <gtest/gtest.h>

#include <random>

namespace vigrel::testing {
namespace {

cUserColor Rule(const char* fore, const char* back, std::int32_t fade) {
    cUserColor color;
    color.SetForeColor(fore);
    color.SetBackColor(back, fade);
    return color;
}

Colour Grey(Colour part) {
    return part | (part << 8) | (part << 16);
}

TEST(ReadableColours, ContrastIsTheLeastOfTheThreeGrounds) {
    // White on black, and on its own ground.
    EXPECT_NEAR(LeastContrast(Rule("255,255,255", "0,0,0", 0)), 21, 1e-9);
    EXPECT_NEAR(LeastContrast(Rule("0,0,0", "0,0,0", 0)), 1, 1e-9);
    // The flashing ground of white is 215 less the fade: black on grey 200.
    const cUserColor rule = Rule("0,0,0", "255,255,255", 15);
    EXPECT_NEAR(LeastContrast(rule), Contrast(0, Grey(200)), 1e-9);
}

TEST(ReadableColours, AReadableTextStays) {
    EXPECT_EQ(ReadableForeColor(Rule("10,20,30", "255,255,255", 15)), 10 + 20 * 256 + 30 * 65536);
    EXPECT_EQ(ReadableForeColor(Rule("0,0,201", "255,255,255", 0)), 201 * 65536);
    EXPECT_EQ(ReadableForeColor(Rule("255,255,0", "0,0,0", 0)), 255 + 255 * 256);
}

// White, and flashing black: neither end can be read on both, a grey in the middle can.
TEST(ReadableColours, BothWaysAreTried) {
    for (const char* fore : {"0,0,0", "255,255,255"}) {
        cUserColor rule = Rule(fore, "255,255,255", 255);
        rule.m_ForeColor = ReadableForeColor(rule);
        EXPECT_GE(LeastContrast(rule), kReadableContrast) << fore;
    }
}

// Grey on white becomes the lightest grey that is readable, not black.
TEST(ReadableColours, TheNearestIsTaken) {
    const cUserColor rule = Rule("120,120,120", "255,255,255", 0);
    const Colour better = ReadableForeColor(rule);
    const Colour part = better & 0xFF;
    EXPECT_EQ(better, Grey(part));
    EXPECT_GE(Contrast(better, Grey(215)), kReadableContrast);
    EXPECT_LT(Contrast(Grey(part + 1), Grey(215)), kReadableContrast);
    EXPECT_EQ(ReadableForeColor(Rule("40,40,40", "0,0,0", 0)) & 0xFF, 117);
}

// 79 of 255 steps to black: 255 - 79, 64 - 19, 32 - 9.
TEST(ReadableColours, ThePartsKeepTheirProportion) {
    EXPECT_EQ(ReadableForeColor(Rule("255,64,32", "255,255,255", 0)), 176 + 45 * 256 + 23 * 65536);
}

TEST(ReadableColours, WhereNoneIsReadableItIsTheBestEnd) {
    // White, and flashing black.
    EXPECT_EQ(ReadableForeColor(Rule("255,255,255", "255,255,255", 215)), 0);
    EXPECT_EQ(ReadableForeColor(Rule("200,0,0", "200,200,200", 200)), 0xFFFFFF);
}

TEST(ReadableColours, IsNeverWorseThanTheColourBefore) {
    std::mt19937 random(1);
    const auto part = [&random] {
        return std::to_string(std::uniform_int_distribution<int>(0, 255)(random));
    };
    for (int i = 0; i < 500; ++i) {
        const std::string fore = part() + "," + part() + "," + part(),
                          back = part() + "," + part() + "," + part();
        cUserColor rule = Rule(fore.c_str(), back.c_str(), std::uniform_int_distribution<int>(0, 60)(random));
        const double before = LeastContrast(rule);
        rule.m_ForeColor = ReadableForeColor(rule);
        EXPECT_GE(LeastContrast(rule), std::min(before, kReadableContrast)) << fore << " on " << back;
    }
}

}  // namespace
}  // namespace vigrel::testing
