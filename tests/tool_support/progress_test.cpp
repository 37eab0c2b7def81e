#include "tool_support/progress.h"

#include <gtest/gtest.h>

#include "support/fake_clock.h"

namespace vigrel::testing {
namespace {

// What is printed for ten files of 0.35 seconds each, and for the end.
std::string Printed(bool terminal) {
    testing::cFakeClock clock;
    std::string printed;
    cProgress progress(clock, terminal, [&](const std::string& text) { printed += text; });
    for (std::size_t done = 1; done <= 10; ++done) {
        clock.AddSeconds(0.35);
        progress.Show(done, 10, "files read");
        progress.Show(done, 10, "files read");
    }
    progress.Finish("10 files read");
    return printed;
}

TEST(Progress, IsALineASecond) {
    EXPECT_EQ(Printed(false),
              "3 of 10 files read\n6 of 10 files read\n9 of 10 files read\n"
              "10 files read\n");
}

TEST(Progress, IsRewrittenInPlaceOnATerminal) {
    std::string expected;
    for (int done = 1; done <= 10; ++done) expected += "\r" + std::to_string(done) + " of 10 files read";
    EXPECT_EQ(Printed(true), expected + "\r10 files read      \n");
}

}  // namespace
}  // namespace vigrel::testing
