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

}  // namespace
}  // namespace vigrel::testing
