#include <gtest/gtest.h>

#include <string>

#include "categories/user_color.h"
#include "common/failure.h"

namespace vigrel::testing {
namespace {

// A rule for the tags that the pattern fits, in all categories and areas.
cUserColor RuleForTags(std::string_view pattern) {
    cUserColor rule;
    rule.SetCategoryFilter("*;");
    rule.SetAreaFilter("*;");
    rule.SetTagFilter(pattern);
    return rule;
}

// The areas that pass a filter, as "0-3 7 ".
std::string Areas(const cUserColor& rule) {
    const auto passes = [&](int area) { return rule.IsMatching("x", 0, area) != False16; };
    std::string text;
    for (int area = -1; area <= 1001; ++area) {
        if (!passes(area)) continue;
        const int first = area;
        while (passes(area + 1)) ++area;
        text += std::to_string(first) + (area > first ? "-" + std::to_string(area) : "") + " ";
    }
    return text;
}

std::string AreasOf(std::initializer_list<const char*> filters) {
    cUserColor rule;
    rule.SetCategoryFilter("0;");
    rule.SetTagFilter("*");
    for (const char* filter : filters) rule.SetAreaFilter(filter);
    return Areas(rule);
}

TEST(UserColorFilter, NumbersAndRangesAreItems) {
    EXPECT_EQ(AreasOf({"5;7-9"}), "5 7-9 ");
    EXPECT_EQ(AreasOf({"5\t7-9"}), "5 7-9 ");
    EXPECT_EQ(AreasOf({"0;999"}), "0 999 ");
}

TEST(UserColorFilter, AStarIsAllThousandRows) {
    EXPECT_EQ(AreasOf({"*;"}), "0-999 ");
}

TEST(UserColorFilter, OnlyAnItemThatIsExactlyAStarIsAll) {
    EXPECT_EQ(AreasOf({"**;* "}), "0 ");
}

TEST(UserColorFilter, AMissingFirstNumberIsZero) {
    EXPECT_EQ(AreasOf({"-3;"}), "0-3 ");
}

TEST(UserColorFilter, AMissingLastNumberIsTheFirst) {
    EXPECT_EQ(AreasOf({"4-;"}), "4 ");
}

TEST(UserColorFilter, ARangeBackwardsIsItsFirstNumber) {
    EXPECT_EQ(AreasOf({"9-3;"}), "9 ");
}

TEST(UserColorFilter, NumbersAreClampedBehindTheTestOfTheirOrder) {
    EXPECT_EQ(AreasOf({"2000;"}), "999 ");
    EXPECT_EQ(AreasOf({"998-2000;"}), "998-999 ");
    EXPECT_EQ(AreasOf({"2000-5;"}), "999 ");
}

TEST(UserColorFilter, TheFirstEmptyItemEndsTheFilter) {
    EXPECT_EQ(AreasOf({"1;2;;3"}), "1-2 ");
    EXPECT_EQ(AreasOf({";1"}), "");
    EXPECT_EQ(AreasOf({""}), "");
}

TEST(UserColorFilter, WithoutASeparatorThereIsNoItem) {
    EXPECT_EQ(AreasOf({"5"}), "");
    EXPECT_EQ(AreasOf({"*"}), "");
}

TEST(UserColorFilter, BesideATabASemicolonIsNoSeparator) {
    EXPECT_EQ(AreasOf({"1;2\t5"}), "1 5 ");
}

TEST(UserColorFilter, FiltersAddUp) {
    EXPECT_EQ(AreasOf({"1;2", "7;", ""}), "1-2 7 ");
}

TEST(UserColorFilter, ANumberBeyond16BitsIsAnOverflow) {
    EXPECT_THROW(AreasOf({"1;40000"}), cFailure);
    EXPECT_THROW(AreasOf({"1-40000;"}), cFailure);
}

TEST(UserColorIsMatching, ANewRuleMatchesNothing) {
    const cUserColor rule;
    EXPECT_EQ(rule.IsMatching("", 0, 0), False16);
    EXPECT_EQ(rule.IsMatching("x", 0, 0), False16);
}

TEST(UserColorIsMatching, AllThreeFiltersMustPass) {
    cUserColor rule;
    rule.SetCategoryFilter("5;");
    rule.SetAreaFilter("7;");
    rule.SetTagFilter("AHU*");
    EXPECT_EQ(rule.IsMatching("AHU1", 5, 7), True16);
    EXPECT_EQ(rule.IsMatching("AHU1", 6, 7), False16);
    EXPECT_EQ(rule.IsMatching("AHU1", 5, 8), False16);
    EXPECT_EQ(rule.IsMatching("XAHU1", 5, 7), False16);
    EXPECT_EQ(rule.IsMatching("AHU1", 7, 5), False16);
}

TEST(UserColorIsMatching, WithoutATagFilterNothingMatches) {
    const cUserColor rule = RuleForTags("");
    EXPECT_EQ(rule.IsMatching("x", 1, 1), False16);
    EXPECT_EQ(rule.IsMatching("", 1, 1), False16);
}

TEST(UserColorIsMatching, AnEmptyTagFitsAStarAlone) {
    EXPECT_EQ(RuleForTags("*").IsMatching("", 1, 1), True16);
    EXPECT_EQ(RuleForTags("**").IsMatching("", 1, 1), False16);
}

TEST(UserColorIsMatching, CategoriesMatchUpTo255AndAreasUpTo999) {
    const cUserColor rule = RuleForTags("*");
    EXPECT_EQ(rule.IsMatching("x", 255, 999), True16);
    EXPECT_EQ(rule.IsMatching("x", 0, 0), True16);
    EXPECT_EQ(rule.IsMatching("x", 256, 0), False16);
    EXPECT_EQ(rule.IsMatching("x", 300, 0), False16);
    EXPECT_EQ(rule.IsMatching("x", 0, 1000), False16);
    EXPECT_EQ(rule.IsMatching("x", -1, 0), False16);
    EXPECT_EQ(rule.IsMatching("x", 0, -1), False16);
    EXPECT_EQ(rule.IsMatching("x", 2147483647, 2147483647), False16);
}

constexpr Colour Rgb(int red, int green, int blue) {
    return red | green << 8 | blue << 16;
}

TEST(UserColorColours, OfANewRuleAreBlack) {
    const cUserColor rule;
    EXPECT_EQ(rule.m_ForeColor, 0);
    EXPECT_EQ(rule.m_BackColor, 0);
    EXPECT_EQ(rule.m_BackColorFade, 0);
    EXPECT_EQ(rule.m_BackColorFlash, 0);
}

TEST(UserColorColours, TheForeColourIsRedGreenBlue) {
    cUserColor rule;
    rule.SetForeColor("10,20,30");
    EXPECT_EQ(rule.m_ForeColor, Rgb(10, 20, 30));
    rule.SetForeColor("10");
    EXPECT_EQ(rule.m_ForeColor, Rgb(10, 0, 0));
    rule.SetForeColor("");
    EXPECT_EQ(rule.m_ForeColor, 0);
    rule.SetForeColor("256,1000,255");
    EXPECT_EQ(rule.m_ForeColor, 0xFFFFFF);
}

struct cBackColours {
    const char* codes;
    int zebraFade;
    Colour base, fade, flash;
};

TEST(UserColorColours, FadeIsDarkerThanTheBaseAndFlashThanTheFade) {
    for (const cBackColours& c : {cBackColours{"10,20,30", 15, Rgb(10, 20, 30), Rgb(0, 5, 15), 0},
                                  {"200,100,60", 10, Rgb(200, 100, 60), Rgb(190, 90, 50), Rgb(150, 50, 10)},
                                  {"200,100,60", 0, Rgb(200, 100, 60), Rgb(200, 100, 60), Rgb(160, 60, 20)},
                                  {"5,5,5", 255, Rgb(5, 5, 5), 0, 0},
                                  {"300,0,0", 10, Rgb(255, 0, 0), Rgb(255, 0, 0), Rgb(250, 0, 0)},
                                  {"10,20,30", -10, Rgb(10, 20, 30), Rgb(20, 30, 40), 0},
                                  {"1,2,3", 2147483647, Rgb(1, 2, 3), 0, 0}}) {
        cUserColor rule;
        rule.SetBackColor(c.codes, c.zebraFade);
        EXPECT_EQ(rule.m_BackColor, c.base) << c.codes;
        EXPECT_EQ(rule.m_BackColorFade, c.fade) << c.codes;
        EXPECT_EQ(rule.m_BackColorFlash, c.flash) << c.codes;
    }
}

TEST(UserColorColours, ANumberThatIsNoColourIsAFailure) {
    cUserColor rule;
    EXPECT_THROW(rule.SetForeColor("40000,0,0"), cFailure);
    EXPECT_THROW(rule.SetForeColor("0,-1,0"), cFailure);
    EXPECT_THROW(rule.SetBackColor("0,0,40000", 0), cFailure);
}

}  // namespace
}  // namespace vigrel::testing
