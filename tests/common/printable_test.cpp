#include "common/printable.h"

#include <gtest/gtest.h>

#include "common/path_text.h"
#include "common/standard_error.h"

namespace vigrel::testing {
namespace {

TEST(Printable, TextIsShownInUtf8) {
    EXPECT_EQ(Printable("a \xE5 \x80 ~"), "a å € ~");
    EXPECT_EQ(Printable(""), "");
}

TEST(Printable, WhatSteersATerminalIsEscaped) {
    EXPECT_EQ(Printable("a\nb\rc\td"), "a\\nb\\rc\\td");
    EXPECT_EQ(Printable("\x1B[2J\x07\x7F"), "\\x1B[2J\\x07\\x7F");
    EXPECT_EQ(Printable(std::string(1, '\0')), "\\x00");
    // Codes that the code page leaves open are control characters where UTF-8 is read.
    EXPECT_EQ(Printable("\x81\x8D\x8F\x90\x9D"), "\\x81\\x8D\\x8F\\x90\\x9D");
}

TEST(PrintablePath, APathIsShownInItsOwnScript) {
    EXPECT_EQ(PrintablePath(PathText("/home/иван ä/日本") + ": no ordinary file"),
              "/home/иван ä/日本: no ordinary file");
    EXPECT_EQ(PrintablePath(PathText("a\\b")), "a\\b");
    EXPECT_EQ(PrintablePath(""), "");
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
    // A character that begins with the same byte does not.
    EXPECT_EQ(PrintablePath("\x1A"
                            "C2\x1A"
                            "A0"),
              "\xC2\xA0");
    EXPECT_EQ(PrintablePath(PathText("a\xC2")), "a\\xC2");
}

TEST(PrintablePath, WhatOnlyLooksLikeAnEscapeStandsAsItIs) {
    // No path of the machine: what a file or a peer holds.
    EXPECT_EQ(PrintablePath("\x1A"
                            "07"),
              "\\x1A07");
    EXPECT_EQ(PrintablePath("\x1A"
                            "41"),
              "\\x1A41");
    EXPECT_EQ(PrintablePath("a\x1A"
                            "4"),
              "a\\x1A4");
    EXPECT_EQ(PrintablePath("\x1A"
                            "GGx"),
              "\\x1AGGx");
}

TEST(StandardError, ALineSaysWhoAndWhatAndSteersNoTerminal) {
    ::testing::internal::CaptureStderr();
    PrintError("vigrel\x1B", "C:\\App\\\xE5\n: gone");
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "vigrel\\x1B: C:\\App\\å\\n: gone\n");
}

}  // namespace
}  // namespace vigrel::testing
