#pragma once

#include <gtest/gtest.h>

#include <optional>

#include "support/heard_warnings.h"

namespace vigrel::testing {

// Fails each test in which the toolkit warns of anything. Made before the toolkit's application, by the main
// function of a test program, and for its whole run.
class cToolkitWarnings : public ::testing::EmptyTestEventListener {
  public:
    // Hands a new one to the test framework, which owns it.
    static void FailTests() { ::testing::UnitTest::GetInstance()->listeners().Append(new cToolkitWarnings); }
    void OnTestEnd(const ::testing::TestInfo&) override { Tell(); }
    void OnTestSuiteEnd(const ::testing::TestSuite&) override { Tell(); }
    void OnTestProgramEnd(const ::testing::UnitTest&) override { m_Heard.reset(); }

  private:
    // A test that has already ended can't fail any more; its suite's end adds to the program's failure.
    void Tell() {
        for (const std::string& warning : m_Heard->Take()) ADD_FAILURE() << "the toolkit warns: " << warning;
    }

    std::optional<cHeardWarnings> m_Heard{std::in_place};
};

}  // namespace vigrel::testing
