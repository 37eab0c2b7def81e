#include "common/text.h"

#include <gtest/gtest.h>

#include "common/failure.h"

namespace vigrel::testing {
namespace {

TEST(GetField, AnEmptySeparatorBecomesASemicolonInTheCallersVariable) {
    std::string separator;
    EXPECT_EQ(GetField("a;b;c", 0, separator), "a");
    EXPECT_EQ(separator, ";");
    EXPECT_EQ(GetField("a;b;c", 2, separator), "c");
    EXPECT_EQ(GetField("a;b;c", 3, separator), "");
}

TEST(GetField, ATabIsPreferredToASemicolon) {
    EXPECT_EQ(GetField("a;b\tc", 0, ""), "a;b");
}

TEST(GetField, ATextWithNeitherTabNorSemicolonGivesAnEmptyField) {
    std::string separator;
    EXPECT_EQ(GetField("abc", 0, separator), "");
    EXPECT_EQ(GetField("abc", 1, separator), "");
    EXPECT_EQ(separator, "");
}

TEST(GetField, EmptyFieldsAreFields) {
    EXPECT_EQ(GetField("a;;b", 1, ";"), "");
    EXPECT_EQ(GetField("a;;b", 2, ";"), "b");
}

TEST(GetField, StepsOverASeparatorOfTwoCharacters) {
    EXPECT_EQ(GetField("a--b--c", 2, "--"), "c");
}

TEST(GetField, ANegativeIndexGivesAnEmptyField) {
    EXPECT_EQ(GetField("a;b", -1, ";"), "");
}

TEST(GetField, ASeparatorBehindPosition32767IsAnOverflow) {
    const std::string text = std::string(32766, 'x') + ";" + ";";
    EXPECT_EQ(GetField(text, 0, ";").size(), 32766u);
    EXPECT_THROW(GetField(text, 1, ";"), cFailure);
}

TEST(GetField, TheCallersSeparatorIsKeptForTheNextLine) {
    std::string separator;
    GetField("a\tb", 0, separator);
    EXPECT_EQ(GetField("a;b", 0, separator), "a;b");
}

TEST(GetField, AnEmptyTextHasOneEmptyField) {
    EXPECT_EQ(GetField("", 0, ";"), "");
    EXPECT_EQ(GetField("", 1, ";"), "");
}

TEST(GetField, ASeparatorAtTheEndOpensAnEmptyField) {
    EXPECT_EQ(GetField("a;", 1, ";"), "");
}

TEST(GetField, ALongTextWithoutASeparatorIsNoOverflow) {
    EXPECT_EQ(GetField(std::string(40000, 'x'), 0, ";").size(), 40000u);
}

std::string Replaced(std::string text, std::string_view find, std::string_view replacement) {
    ReplaceText(text, find, replacement);
    return text;
}

TEST(ReplaceText, ReplacesEveryOccurrence) {
    EXPECT_EQ(Replaced("a,b,c", ",", ";"), "a;b;c");
    EXPECT_EQ(Replaced("a\r\nb\r\n", "\r", ""), "a\nb\n");
    EXPECT_EQ(Replaced("--a----b", "--", "-"), "-a--b");
    EXPECT_EQ(Replaced("abc", "x", "y"), "abc");
}

TEST(ReplaceText, WhatWasPutInIsNotSearchedAgain) {
    EXPECT_EQ(Replaced("aa", "a", "aa"), "aaaa");
    EXPECT_EQ(Replaced("aab", "ab", "b"), "ab");
}

TEST(ReplaceText, CaseCounts) {
    EXPECT_EQ(Replaced("aAa", "a", "b"), "bAb");
}

TEST(ReplaceText, AnEmptyTextToFindChangesNothing) {
    EXPECT_EQ(Replaced("abc", "", "x"), "abc");
    EXPECT_EQ(Replaced("abc", "", ""), "abc");
}

TEST(ReplaceText, AnOccurrenceBehindPosition32767IsAnOverflow) {
    std::string last = std::string(32766, 'x') + "\r";
    ReplaceText(last, "\r", "");
    EXPECT_EQ(last.size(), 32766u);
    std::string behind = std::string(32767, 'x') + "\r";
    EXPECT_THROW(ReplaceText(behind, "\r", ""), cFailure);
    EXPECT_EQ(behind.size(), 32768u);
    // The removals in front move the last one to where it counts.
    std::string moved = "\r" + std::string(32766, 'x') + "\r";
    ReplaceText(moved, "\r", "");
    EXPECT_EQ(moved.size(), 32766u);
}

TEST(TimeTextToMinutes, ReadsATimeOfDayAsAnOperatorTypesIt) {
    struct cCase {
        const char* text;
        int minutes;
    };
    for (const cCase& c : {cCase{"24:00", 1440}, {"25:00", 1440},  {"8", 480},      {"08", 8},
                           {"0800", 480},        {"800", 480},     {"", 0},         {"8:5", 485},
                           {":30", 30},          {"12", 720},      {"830", 510},    {"1230", 750},
                           {"12345", 1425},      {"0", 0},         {"abc", 0},      {"1:90", 150},
                           {"1.30:20", 98},      {"8:30", 510},    {"8.30", 510},   {"8,30", 510},
                           {"8 30", 510},        {"8-30", 510},    {"8+30", 510},   {"-5", 5},
                           {"8:", 480},          {":", 0},         {"ab", 0},       {"1e5", 60},
                           {"2359", 1439},       {"9:59:30", 599}, {"8h:30m", 510}, {"1;30", 90}}) {
        EXPECT_EQ(TimeTextToMinutes(c.text), c.minutes) << "text: " << c.text;
    }
}

TEST(TimeTextToMinutes, TheFirstKindOfSeparatorDecidesNotTheFirstSeparator) {
    EXPECT_EQ(TimeTextToMinutes("1.30:20"), 98);       // 1.3 hours
    EXPECT_EQ(TimeTextToMinutes("1,15.30"), 60 + 30);  // the "." comes first in preference
    EXPECT_EQ(TimeTextToMinutes("1-2+3"), 62);
}

TEST(TimeTextToMinutes, TheSumIsRoundedAndClamped) {
    EXPECT_EQ(TimeTextToMinutes("0:0.5"), 0);
    EXPECT_EQ(TimeTextToMinutes("0:1.5"), 2);
    EXPECT_EQ(TimeTextToMinutes("0:-70"), 0);
    EXPECT_EQ(TimeTextToMinutes("9999999:0"), 1440);
    EXPECT_EQ(TimeTextToMinutes("1e999:0"), 1440);
}

TEST(Int16ToChars, TheHighByteComesFirst) {
    EXPECT_EQ(Int16ToChars(0x4142), "AB");
    EXPECT_EQ(Int16ToChars(-1), "\xFF\xFF");
    EXPECT_EQ(Int16ToChars(1), std::string("\0\1", 2));
    EXPECT_EQ(Int16ToChars(-32768), std::string("\x80\0", 2));
}

TEST(Int16ToChars, EveryValueReadsBack) {
    for (int value = -32768; value <= 32767; ++value) {
        ASSERT_EQ(CharsToInt16(Int16ToChars(static_cast<std::int16_t>(value))), value);
    }
}

TEST(CharsToInt16, NeedsTwoCharactersAndLooksAtNoMore) {
    EXPECT_THROW(CharsToInt16(""), cFailure);
    EXPECT_THROW(CharsToInt16("A"), cFailure);
    EXPECT_EQ(CharsToInt16("ABC"), 0x4142);
}

TEST(Trim, TakesBlanksAndNothingElse) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\ta\t"), "\ta\t");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
}

TEST(EqualsNoCase, FollowsTheCodePage) {
    EXPECT_TRUE(EqualsNoCase("\xC5\xC4\xD6 abc", "\xE5\xE4\xF6 ABC"));
    EXPECT_FALSE(EqualsNoCase("abc", "abcd"));
    EXPECT_FALSE(EqualsNoCase("abd", "abc"));
}

TEST(FindNoCase, GivesThePositionFromOne) {
    EXPECT_EQ(FindNoCase("Fan 3 Tripped", "TRIP"), 7u);
    EXPECT_EQ(FindNoCase("aaa", "A"), 1u);
    EXPECT_EQ(FindNoCase("abc", "x"), 0u);
    EXPECT_EQ(FindNoCase("", "x"), 0u);
    EXPECT_EQ(FindNoCase("abc", ""), 1u);
    EXPECT_EQ(FindNoCase("", ""), 0u);
}

TEST(Mid, CountsFromOneAndEndsWithTheText) {
    EXPECT_EQ(Mid("abcdef", 2, 3), "bcd");
    EXPECT_EQ(Mid("abcdef", 5, 10), "ef");
    EXPECT_EQ(Mid("abcdef", 7, 1), "");
    EXPECT_EQ(Mid("abcdef", 3), "cdef");
    EXPECT_THROW(Mid("abc", 0, 1), cFailure);
}

TEST(SplitLines, AnyLineEndEndsALine) {
    EXPECT_EQ(SplitLines("a\r\nb\nc\rd"), (std::vector<std::string>{"a", "b", "c", "d"}));
    EXPECT_EQ(SplitLines("a\n\r\n\rb\n"), (std::vector<std::string>{"a", "", "", "b"}));
    EXPECT_EQ(SplitLines(""), std::vector<std::string>{});
    EXPECT_EQ(SplitLines("\n"), std::vector<std::string>{""});
}

}  // namespace
}  // namespace vigrel::testing
