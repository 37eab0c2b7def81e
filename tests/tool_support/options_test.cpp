#include "tool_support/options.h"

#include <gtest/gtest.h>

#include "common/dates.h"
#include "common/failure.h"
#include "common/path_text.h"

namespace vigrel::testing {
namespace {

class OptionWords : public ::testing::Test {
  protected:
    // What is refused; empty: nothing.
    std::string Read(const std::vector<std::string>& words) {
        const auto failure = CatchFailure([&] { ReadOptionWords(words, m_Table); });
        return failure ? failure->what() : "";
    }
    bool m_Json = false;
    std::string m_Values, m_Paths;
    cOptionTable m_Table{{{"--json", &m_Json}},
                         {{"--name", [this](const std::string& value) { m_Values += value + ";"; }}},
                         [this](const std::string& path) { m_Paths += path + ";"; },
                         {{"--file", [this](const std::string& path) { m_Paths += path + "!"; }}}};
};

TEST_F(OptionWords, AreFlagsValuesPaths) {
    EXPECT_EQ(Read({"a", "--name", "--x", "-", "--json", "--name", "\xC3\xA5", "--", "--json"}), "");
    EXPECT_TRUE(m_Json);
    EXPECT_EQ(m_Values, "--x;\xE5;");
    EXPECT_EQ(m_Paths, "a;-;--json;");
}

TEST_F(OptionWords, AreRefusedByName) {
    EXPECT_EQ(Read({"--jsn"}), "the option --jsn is not known");
    EXPECT_EQ(Read({"--name"}), "--name needs a value");
    EXPECT_EQ(Read({"--name", "\xCE\xA9"}), "\"?\" has characters outside the code page 1252");
}

TEST_F(OptionWords, PathsKeepTheirBytes) {
    EXPECT_EQ(Read({"\xCE\xA9", "--file", "\xFF"}), "");
    EXPECT_EQ(m_Paths, PathText("\xCE\xA9") + ";" + PathText("\xFF") + "!");
    EXPECT_EQ(Read({"--file"}), "--file needs a value");
}

// The value of a shell's variable that was never set.
TEST_F(OptionWords, ANameThatIsEmptyNamesNoFile) {
    EXPECT_EQ(Read({"--file", ""}), "--file needs a value");
    EXPECT_EQ(Read({"a", ""}), "the name of a file or folder is empty");
    EXPECT_EQ(Read({"--", ""}), "the name of a file or folder is empty");
    EXPECT_EQ(Read({"--name", ""}), "");
    EXPECT_EQ(m_Values, ";");
}

TEST_F(OptionWords, DatesAreMeantAsWritten) {
    EXPECT_EQ(DateFromWord("--from", "2026-03-15"), DateSerial(2026, 3, 15));
    EXPECT_EQ(EndFromWord("--to", "2026-03-15"), DateSerial(2026, 3, 16));
    EXPECT_THROW(DateFromWord("--from", "15 March"), cFailure);
}

}  // namespace
}  // namespace vigrel::testing
