#include "common/text.h"

#include <gtest/gtest.h>

#include "common/failure.h"

namespace vigrel {
namespace {

TEST(GetField, AnEmptySeparatorBecomesASemicolonInTheCallersVariable) {
    std::string separator;
    EXPECT_EQ(GetField("a;b;c", 0, separator), "a");
    EXPECT_EQ(separator, ";");
    EXPECT_EQ(GetField("a;b;c", 2, separator), "c");
    EXPECT_EQ(GetField("a;b;c", 3, separator), "");
}

TEST(GetField, ATabIsPreferredToASemicolon) { EXPECT_EQ(GetField("a;b\tc", 0, ""), "a;b"); }

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

TEST(GetField, StepsOverASeparatorOfTwoCharacters) { EXPECT_EQ(GetField("a--b--c", 2, "--"), "c"); }

TEST(GetField, ANegativeIndexGivesAnEmptyField) { EXPECT_EQ(GetField("a;b", -1, ";"), ""); }

TEST(GetField, ASeparatorBehindPosition32767IsAnOverflow) {
    const std::string text = std::string(32766, 'x') + ";" + ";";
    EXPECT_EQ(GetField(text, 0, ";").size(), 32766u);
    EXPECT_THROW(GetField(text, 1, ";"), cFailure);
}

}  // namespace
}  // namespace vigrel
