#include <gtest/gtest.h>

#include "common/path_text.h"
#include "common/printable.h"
#include "tool_support/json.h"

namespace vigrel::testing {
namespace {

TEST(PrintablePath, APathIsShownInItsOwnScript) {
    EXPECT_EQ(PrintablePath(PathText("/home/иван ä/日本") + ": no ordinary file"),
              "/home/иван ä/日本: no ordinary file");
    EXPECT_EQ(PrintablePath(PathText("a\\b")), "a\\b");
    EXPECT_EQ(JsonPath(PathText("/home/иван/a\\b")), "\"/home/иван/a\\\\b\"");
}

TEST(PrintablePath, WhatIsNoTextOrSteersATerminalIsEscaped) {
    EXPECT_EQ(PrintablePath(PathText("no\xFFtext/\xFEx")), "no\\xFFtext/\\xFEx");
    EXPECT_EQ(PrintablePath(PathText("a\\\xFF")), "a\\x5C\\xFF");
    EXPECT_EQ(PrintablePath(PathText("a\x1A")), "a\\x1A");
    EXPECT_EQ(PrintablePath(PathText("\x1B[31m")), "\\x1B[31m");
    // U+009B starts a control sequence.
    EXPECT_EQ(PrintablePath(PathText("\xC2\x9B"
                                     "31m")),
              "\\xC2\\x9B31m");
    // No escape of a path: what a file or a peer holds stands as it is.
    EXPECT_EQ(PrintablePath("\x1A"
                            "07"),
              "\\x1A07");
    EXPECT_EQ(JsonPath(PathText("\xFF")), "\"\\u001AFF\"");
}

}  // namespace
}  // namespace vigrel::testing
