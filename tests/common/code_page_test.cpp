#include "common/code_page.h"

#include <gtest/gtest.h>

#include <set>

namespace vigrel::testing {
namespace {

std::string AllCharacters() {
    std::string all;
    for (int code = 0; code < 256; ++code) all.push_back(static_cast<char>(code));
    return all;
}

TEST(CodePage, All256CharactersMapOneToOne) {
    std::set<char32_t> codePoints;
    for (const char character : AllCharacters()) {
        codePoints.insert(ToUnicode(character));
        EXPECT_EQ(FromUnicode(ToUnicode(character)), character);
        EXPECT_TRUE(HasCharacter(ToUnicode(character)));
    }
    EXPECT_EQ(codePoints.size(), 256u);
}

TEST(CodePage, All256CharactersSurviveUtf8) {
    EXPECT_EQ(Utf8ToCodePage(CodePageToUtf8(AllCharacters())), AllCharacters());
}

TEST(CodePage, CharactersStandForTheirCodePoints) {
    EXPECT_EQ(ToUnicode('A'), U'A');
    EXPECT_EQ(ToUnicode('\x80'), U'\u20AC');
    EXPECT_EQ(ToUnicode('\x8A'), U'\u0160');
    EXPECT_EQ(ToUnicode('\x95'), U'\u2022');
    EXPECT_EQ(ToUnicode('\xE5'), U'\u00E5');
    EXPECT_EQ(ToUnicode('\x81'), char32_t{0x81});
    EXPECT_EQ(CodePageToUtf8("\xE5\x80"), "\xC3\xA5\xE2\x82\xAC");
}

TEST(CodePage, WhatItLacksBecomesAQuestionMark) {
    EXPECT_FALSE(HasCharacter(0x80));
    EXPECT_FALSE(HasCharacter(0x4E2D));
    EXPECT_EQ(FromUnicode(0x4E2D), '?');
    EXPECT_EQ(Utf8ToCodePage("a\xE4\xB8\xAD\xF0\x9F\x98\x80z"), "a??z");
}

TEST(CodePage, BytesThatAreNoUtf8BecomeQuestionMarks) {
    EXPECT_EQ(Utf8ToCodePage("a\xE5"
                             "b"),
              "a?b");
    EXPECT_EQ(Utf8ToCodePage("\xC3"), "?");
    EXPECT_EQ(Utf8ToCodePage("\xE2\x82"), "??");
    EXPECT_EQ(Utf8ToCodePage("\xA5\xFF\xF8"), "???");
}

TEST(CodePage, AnOverlongFormIsNoUtf8) {
    EXPECT_EQ(Utf8ToCodePage("\xC0\xAF"), "??");
    EXPECT_EQ(Utf8ToCodePage("\xE0\x80\xAF"), "???");
    EXPECT_EQ(Utf8ToCodePage("\xF0\x80\x80\xAF"), "????");
}

TEST(IsUtf8, WantsEveryByteToBelongToACharacter) {
    for (const char* text : {"", "a", "\xC3\xA5", "a\xE2\x82\xAC", "\xF0\x9F\x94\x94"})
        EXPECT_TRUE(IsUtf8(text)) << text;
    for (const char* bytes : {"\xE5", "a\xC3", "\xC3\xA5\xFF", "\xC0\x80", "\x80"})
        EXPECT_FALSE(IsUtf8(bytes)) << bytes;
    // The character that stands for broken text is a character itself.
    EXPECT_TRUE(IsUtf8("\xEF\xBF\xBD"));
}

TEST(CodePage, UpperAndLowerCaseReachAllLetters) {
    EXPECT_EQ(ToUpper("abc xyz \xE5\xE4\xF6 \xE9 \x9A\x9C\x9E \xFF"),
              "ABC XYZ \xC5\xC4\xD6 \xC9 \x8A\x8C\x8E \x9F");
    EXPECT_EQ(ToLower("ABC XYZ \xC5\xC4\xD6 \xC9 \x8A\x8C\x8E \x9F"),
              "abc xyz \xE5\xE4\xF6 \xE9 \x9A\x9C\x9E \xFF");
}

TEST(CodePage, WhatIsNoLetterHasNoCase) {
    for (const char character : std::string("@[`{0 _\xD7\xF7\xDF\xAA\xBA\xB5\x83\x80\xA0")) {
        EXPECT_EQ(ToUpper(character), character);
        EXPECT_EQ(ToLower(character), character);
    }
}

TEST(CodePage, UpperAndLowerCaseArePairs) {
    for (const char character : AllCharacters()) {
        EXPECT_EQ(ToUpper(ToLower(ToUpper(character))), ToUpper(character));
        EXPECT_EQ(ToLower(ToUpper(ToLower(character))), ToLower(character));
    }
}

}  // namespace
}  // namespace vigrel::testing
