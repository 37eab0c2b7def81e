#include "tool_support/print.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "support/fake_files.h"
#include "tool_support/json.h"
#include "tool_support/read_only_files.h"

namespace vigrel {
namespace {

TEST(JsonString, EscapesWhatWouldEndOrSteerIt) {
    EXPECT_EQ(JsonString("a\"b\\c\n\x7F\xE5"), "\"a\\\"b\\\\c\\u000A\\u007F\xC3\xA5\"");
    EXPECT_EQ(JsonStringOfUtf8("\xC3\xA5"), "\"\xC3\xA5\"");
}

TEST(JsonList, HasALineForEachItem) {
    const auto write = [](int number) { return std::to_string(number); };
    EXPECT_EQ(JsonList(std::vector<int>{}, write), "[]");
    EXPECT_EQ(JsonList(std::vector{1, 2}, write), "[\n    1,\n    2\n  ]");
}

TEST(ReadOnlyFiles, PassReadsOnAndRefuseTheRest) {
    testing::cFakeFiles files;
    files.Put("C:\\App\\a.txt", "content");
    cReadOnlyFiles readOnly(files);
    EXPECT_EQ(readOnly.ReadFile("C:\\App\\a.txt"), "content");
    const auto failure = CatchFailure([&] { readOnly.WriteFile("C:\\App\\a.txt", "", true); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), eFailure::PermissionDenied);
    EXPECT_EQ(files.m_Calls, 0);
}

}  // namespace
}  // namespace vigrel
