#include "tool_support/progress.h"

#include <gtest/gtest.h>

#include "common/failure.h"
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

// A clock that stands where the test puts it: the first look is at 0.
class cStandingClock : public cClock {
  public:
    DateTime Now() const override { return 0; }
    double Steady() const override { return m_Now; }
    double m_Now = 0;
};

TEST(Progress, ComesAtItsSecondAndNotBehindIt) {
    cStandingClock clock;
    std::string printed;
    cProgress progress(clock, false, [&](const std::string& text) { printed += text; });
    clock.m_Now = 0.999999 / 86400;
    progress.Show(1, 2, "files");
    EXPECT_EQ(printed, "");
    clock.m_Now = 1.0 / 86400;
    progress.Show(1, 2, "files");
    EXPECT_EQ(printed, "1 of 2 files\n");
}

TEST(Progress, IsTakenBackWhereItStandsOnATerminalAndOnce) {
    for (const bool terminal : {true, false}) {
        cStandingClock clock;
        std::string printed;
        cProgress progress(clock, terminal, [&](const std::string& text) { printed += text; });
        progress.End();
        EXPECT_EQ(printed, "");
        clock.m_Now = 1;
        progress.Show(1, 2, "files");
        printed.clear();
        progress.End();
        progress.End();
        EXPECT_EQ(printed, terminal ? "\r            \r" : "");
    }
}

// On a terminal that takes no line of progress at first, and then every text.
class ProgressWhosePrintFails : public ::testing::Test {
  protected:
    void SetUp() override {
        m_Clock.m_Now = 1;
        EXPECT_THROW(m_Progress.Show(1, 2, "files"), cFailure);
        m_Fails = false;
    }
    void Print(const std::string& text) {
        if (m_Fails) throw cFailure(eFailure::DiskFull, "full");
        m_Printed += text;
    }
    cStandingClock m_Clock;
    bool m_Fails = true;
    std::string m_Printed;
    cProgress m_Progress{m_Clock, true, [this](const std::string& text) { Print(text); }};
};

TEST_F(ProgressWhosePrintFails, TakesNothingBackThatDoesNotStandThere) {
    m_Progress.End();
    EXPECT_EQ(m_Printed, "");
}

TEST_F(ProgressWhosePrintFails, WaitsAsLongForTheNextLineAsBehindAnyOther) {
    m_Progress.Show(2, 2, "files");
    EXPECT_EQ(m_Printed, "");
    m_Clock.m_Now = 2;
    m_Progress.Show(2, 2, "files");
    EXPECT_EQ(m_Printed, "\r2 of 2 files");
}

}  // namespace
}  // namespace vigrel::testing
