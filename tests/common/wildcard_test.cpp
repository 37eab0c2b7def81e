#include "common/wildcard.h"

#include <gtest/gtest.h>

#include <string>

namespace vigrel::testing {
namespace {

struct cMatch {
    std::string text, pattern;
};

void ExpectAll(bool matches, std::initializer_list<cMatch> cases) {
    for (const cMatch& c : cases) {
        EXPECT_EQ(WildcardMatch(c.text, c.pattern), matches ? True16 : False16)
            << "text: " << c.text << "  pattern: " << c.pattern;
    }
}

TEST(WildcardMatch, AStarAloneFitsEverything) {
    ExpectAll(true, {{"", "*"}, {"a", "*"}, {"a*b?", "*"}});
}

TEST(WildcardMatch, AnEmptyTextFitsNothingElse) {
    ExpectAll(false, {{"", ""}, {"", "**"}, {"", "?"}, {"", "a"}});
}

TEST(WildcardMatch, AnEmptyPatternFitsNothing) {
    ExpectAll(false, {{"a", ""}});
}

TEST(WildcardMatch, OtherCharactersStandForThemselves) {
    ExpectAll(true, {{"abc", "abc"}, {"a.[b]", "a.[b]"}});
    ExpectAll(false, {{"abc", "abd"}, {"abcd", "abc"}, {"ab", "abc"}});
}

TEST(WildcardMatch, CaseCounts) {
    ExpectAll(false, {{"abc", "ABC"}, {"Abc", "a*"}, {"abC", "*c"}});
}

TEST(WildcardMatch, AQuestionMarkFitsExactlyOneCharacter) {
    ExpectAll(true, {{"a", "?"}, {"ab", "??"}, {"abc", "a?c"}, {"?", "?"}});
    ExpectAll(false, {{"ab", "?"}, {"a", "??"}, {"abc", "??"}, {"abcd", "a?c"}, {"ac", "a?c"}});
}

TEST(WildcardMatch, AStarAtTheEndTakesTheRest) {
    ExpectAll(true, {{"abc", "abc*"}, {"abcdef", "abc*"}, {"abc", "abc**"}});
    ExpectAll(false, {{"ab", "abc*"}, {"xabc", "abc*"}});
}

TEST(WildcardMatch, AStarSeeksTheFirstOccurrenceAndNeverTriesALaterOne) {
    ExpectAll(true, {{"abc", "*c"}, {"c", "*c"}, {"aba", "*a*"}, {"xaybz", "*a*b*"}, {"abcabc", "*c*"}});
    ExpectAll(false, {{"abcabc", "*c"}, {"aba", "*a"}, {"xaybz", "*b*a*"}, {"abab", "a*b"}});
}

TEST(WildcardMatch, AStarInFrontOfQuestionMarksTakesNothing) {
    ExpectAll(true, {{"x", "*?"}, {"xy", "*??"}, {"xyz", "*?*"}, {"axb", "a*?b"}});
    ExpectAll(false, {{"xy", "*?"}, {"x", "*??"}, {"axyb", "a*?b"}});
}

TEST(WildcardMatch, AStarBehindAStarTakesNothingUnlessItIsTheLast) {
    ExpectAll(true, {{"abc", "**"}, {"abc", "**c"}, {"abc", "a**c"}, {"a", "a**"}});
}

TEST(WildcardMatch, WhatIsUsedUpFitsNoFurtherPart) {
    ExpectAll(false, {{"abc", "abc?"}, {"abc", "abc*d"}, {"abc", "*c?"}});
    ExpectAll(true, {{"abc", "*c*"}, {"abc", "*c**"}});
}

std::string Repeated(const std::string& piece, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) text += piece;
    return text;
}

TEST(WildcardMatch, APatternIsCutBehindItsThirtyFirstPart) {
    // "a?" is two parts: fifteen of them and an "a" are 31.
    const std::string text = Repeated("ab", 15) + "a";
    ExpectAll(
        true,
        {{text, Repeated("a?", 15) + "a"}, {text, Repeated("a?", 15) + "a?"}, {text, Repeated("a?", 99)}});
    ExpectAll(false, {{text + "b", Repeated("a?", 16)}});
}

TEST(WildcardMatch, AStarAsTheThirtyFirstPartIsTheLast) {
    const std::string text = Repeated("ab", 15) + "and the rest";
    ExpectAll(true, {{text, Repeated("a?", 15) + "*?x"}});
    ExpectAll(false, {{text, Repeated("a?", 15) + "*x"}});
}

}  // namespace
}  // namespace vigrel::testing
