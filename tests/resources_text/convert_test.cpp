#include "to-code-page/convert.h"

#include <gtest/gtest.h>

namespace vigrel::testing {
namespace {

TEST(ToCodePage, LettersOfTheCodePageBecomeOneByteEach) {
    EXPECT_EQ(ToCodePageLines("å€Š\n"), "\xE5\x80\x8A\r\n");
}

TEST(ToCodePage, EveryLineEndsInCrLfTheLastOneToo) {
    EXPECT_EQ(ToCodePageLines("a\nb\r\n\nc"), "a\r\nb\r\n\r\nc\r\n");
}

TEST(ToCodePage, ATextWithinTheCodePageHasNoMisfit) {
    EXPECT_FALSE(FindMisfit("\u00C5ngstr\u00F6m \u2013 \u201Equoted\u201C\n\ttab\n").has_value());
}

TEST(ToCodePage, ACharacterThatTheCodePageLacksIsNamedWithItsLineAndColumn) {
    const auto misfit = FindMisfit("first\nå\u0142b\n");
    ASSERT_TRUE(misfit.has_value());
    EXPECT_EQ(misfit->line, 2u);
    EXPECT_EQ(misfit->column, 2u);
    EXPECT_EQ(misfit->character, "\u0142");
}

TEST(ToCodePage, AByteOrderMarkIsAMisfit) {
    const auto misfit = FindMisfit("\uFEFF0=English");
    ASSERT_TRUE(misfit.has_value());
    EXPECT_EQ(misfit->line, 1u);
}

TEST(ToCodePage, ASourceThatIsAlreadyInTheCodePageIsAMisfit) {
    const auto misfit = FindMisfit("ok\nM\xE5ndag\n");
    ASSERT_TRUE(misfit.has_value());
    EXPECT_EQ(misfit->line, 2u);
    EXPECT_EQ(misfit->column, 2u);
}

TEST(ToCodePage, AQuestionMarkOfTheTextIsNoMisfit) {
    EXPECT_FALSE(FindMisfit("Really?").has_value());
    EXPECT_EQ(ToCodePageLines("Really?"), "Really?\r\n");
}

}  // namespace
}  // namespace vigrel::testing
