// The manual pages of the command-line programs.

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

namespace vigrel::testing {
namespace {

using Options = std::set<std::string>;

// What the expression finds, each as an option is written.
Options Found(const std::string& text, const std::string& expression) {
    const std::regex option(expression);
    Options found;
    for (auto each = std::sregex_iterator(text.begin(), text.end(), option); each != std::sregex_iterator();
         ++each) {
        found.insert("--" + (*each)[1].str());
    }
    return found;
}

Options OptionsOfHelp(const std::string& program) {
    FILE* pipe = popen((VIGREL_BIN_DIR "/" + program + " --help").c_str(), "r");
    std::string help;
    for (int c = 0; (c = std::fgetc(pipe)) != EOF;) help += static_cast<char>(c);
    pclose(pipe);
    Options options = Found(help, R"re((?:^|[\s\[])--([a-z][a-z0-9-]*))re");
    options.insert("--help");
    return options;
}

Options OptionsOfManual(const std::string& program) {
    std::ifstream file(VIGREL_MANUALS "/" + program + ".1");
    const std::string page{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    return Found(page, R"re(Fl -([a-z][a-z0-9-]*))re");
}

class Manual : public ::testing::TestWithParam<const char*> {};

TEST_P(Manual, HasTheOptionsThatTheProgramTellsOf) {
    const Options told = OptionsOfHelp(GetParam());
    EXPECT_GE(told.size(), 5u);
    EXPECT_EQ(OptionsOfManual(GetParam()), told);
}

INSTANTIATE_TEST_SUITE_P(OfEachTool, Manual,
                         ::testing::Values("vigrel-send", "vigrel-inspect", "vigrel-report",
                                           "vigrel-receiver-check"));

}  // namespace
}  // namespace vigrel::testing
