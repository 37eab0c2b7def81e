#include "tool_support/json.h"

#include <gtest/gtest.h>

#include "common/path_text.h"

namespace vigrel::testing {
namespace {

TEST(JsonPath, APathStandsInItsOwnScript) {
    EXPECT_EQ(JsonPath(PathText("/home/иван/a\\b")), "\"/home/иван/a\\\\b\"");
}

TEST(JsonPath, BytesThatAreNoTextStayEscaped) {
    EXPECT_EQ(JsonPath(PathText("\xFF")), "\"\\u001AFF\"");
}

TEST(JsonString, EscapesWhatWouldEndOrSteerIt) {
    EXPECT_EQ(JsonString("a\"b\\c\n\x7F\xE5"), "\"a\\\"b\\\\c\\u000A\\u007F\xC3\xA5\"");
    EXPECT_EQ(JsonStringOfUtf8("\xC3\xA5"), "\"\xC3\xA5\"");
}

TEST(JsonString, EscapesEveryControlCharacterAndNothingElse) {
    EXPECT_EQ(JsonString(std::string("\0\x01\x0F\x10\x1F", 5)), "\"\\u0000\\u0001\\u000F\\u0010\\u001F\"");
    EXPECT_EQ(JsonString(" /~"), "\" /~\"");
    EXPECT_EQ(JsonString("\"\\"), "\"\\\"\\\\\"");
}

TEST(JsonList, HasALineForEachItem) {
    const auto write = [](int number) { return std::to_string(number); };
    EXPECT_EQ(JsonList(std::vector<int>{}, write), "[]");
    EXPECT_EQ(JsonList(std::vector{1, 2}, write), "[\n    1,\n    2\n  ]");
}

}  // namespace
}  // namespace vigrel::testing
