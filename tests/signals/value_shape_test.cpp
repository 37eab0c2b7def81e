#include "signals/value_shape.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "common/code_page.h"

namespace vigrel::testing {
namespace {

// The rounds of REPLACE written down as they are told, each searching and replacing in the whole value.
std::string ReplaceByTheWord(std::string value, const std::string& find, const std::string& replacement) {
    if (find.empty() || find == replacement) return value;
    std::size_t forward = ToUpper(value).find(ToUpper(find));
    while (forward != std::string::npos) {
        value.replace(ToUpper(value).find(ToUpper(find)), find.size(), replacement);
        forward = ToUpper(value).find(ToUpper(find), forward + replacement.size());
    }
    return value;
}

// All texts of the letters up to a length.
std::vector<std::string> TextsUpTo(std::size_t length, const std::string& letters) {
    std::vector<std::string> texts{""};
    for (std::size_t begin = 0, end = 1; length > 0; --length, begin = end, end = texts.size()) {
        for (std::size_t i = begin; i < end; ++i) {
            for (const char letter : letters) texts.push_back(texts[i] + letter);
        }
    }
    return texts;
}

TEST(Replace, EqualsItsRoundsDoneByTheWordForEverySmallText) {
    int compared = 0;
    for (const std::string& find : TextsUpTo(3, "ab")) {
        for (const std::string& replacement : TextsUpTo(3, "aAb")) {
            for (const std::string& value : TextsUpTo(7, "ab")) {
                ++compared;
                ASSERT_EQ(ApplyModifier(value, "R:" + find + ":" + replacement),
                          ReplaceByTheWord(value, find, replacement))
                    << "[R:" << find << ":" << replacement << "] of " << value;
            }
        }
    }
    EXPECT_EQ(compared, 15 * 40 * 255);
}

TEST(Replace, EqualsItsRoundsDoneByTheWordForLongerTexts) {
    std::uint32_t state = 1;
    const auto text = [&state](std::size_t longest) {
        std::string letters;
        state = state * 1664525 + 1013904223;
        for (std::size_t length = (state >> 16) % (longest + 1); length > 0; --length) {
            state = state * 1664525 + 1013904223;
            letters += "abAc"[state >> 30];
        }
        return letters;
    };
    for (int i = 0; i < 20000; ++i) {
        const std::string value = text(60);
        const std::string find = text(5);
        const std::string replacement = text(8);
        ASSERT_EQ(ApplyModifier(value, "R:" + find + ":" + replacement),
                  ReplaceByTheWord(value, find, replacement))
            << "[R:" << find << ":" << replacement << "] of " << value;
    }
}

TEST(Replace, NeverMakesAValueLongerThanTheLongest) {
    const std::string value(kLongestValue - 10, 'a');
    EXPECT_EQ(ApplyModifier(value, "R:a:aaaa").size(), kLongestValue - 1);
    EXPECT_EQ(ApplyModifier(value, "R:a:" + std::string(11, 'b')).size(), kLongestValue);
    EXPECT_EQ(ApplyModifier(value, "R:a:" + std::string(12, 'b')), value);
    const std::string longer(kLongestValue + 10, 'a');
    EXPECT_EQ(ApplyModifier(longer, "R:a:bb"), longer);
    EXPECT_EQ(ApplyModifier(longer, "R:a:").size(), 0u);
    // What makes it no longer is done all the same.
    EXPECT_TRUE(ApplyModifier(longer, "R:a:b").starts_with("bb"));
}

TEST(ShapeValue, KeepsAValueWithoutFields) {
    EXPECT_EQ(ShapeValue("value", "T0"), "value");
}

TEST(ShapeValue, KeepsAValueThatIsLongerThanPositionsAreWide) {
    const std::string value(40000, 'x');
    EXPECT_EQ(ShapeValue(value, "T0:"), value);
    EXPECT_EQ(ShapeValue(value, "T0::50000").size(), 50000u);
    EXPECT_EQ(ShapeValue(value, "T0:0-32767").size(), 32768u);
}

TEST(IsModifier, KnowsSixNamesInUpperCase) {
    for (const char* name : {"REPLACE", "R", "CUTFROM", "CF", "CUTUNTIL", "CU"})
        EXPECT_TRUE(IsModifier(name)) << name;
    for (const char* name : {"", "r", "C", "CUT", "REPLACES", "R "}) EXPECT_FALSE(IsModifier(name)) << name;
}

TEST(ApplyModifier, LeavesTheValueToAnUnknownName) {
    EXPECT_EQ(ApplyModifier("value", "X:v:w"), "value");
    EXPECT_EQ(ApplyModifier("value", ""), "value");
}

}  // namespace
}  // namespace vigrel::testing
