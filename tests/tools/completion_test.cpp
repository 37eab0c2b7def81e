// The completion for bash, as a shell asks it.

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

namespace vigrel::testing {
namespace {

// What is offered for the last word of a command line, separated by blanks.
std::string Offered(const std::string& program, const std::string& previous, const std::string& current) {
    const std::string command =
        "PATH=" VIGREL_BIN_DIR
        ":$PATH bash -c '. \"$0\"; _vigrel \"$@\"; echo \"${COMPREPLY[*]}\"' " VIGREL_COMPLETION " '" +
        program + "' '" + current + "' '" + previous + "'";
    FILE* shell = popen(command.c_str(), "r");
    std::string answer;
    for (int c = 0; (c = std::fgetc(shell)) != EOF;) answer += static_cast<char>(c);
    pclose(shell);
    while (answer.ends_with('\n')) answer.pop_back();
    return answer;
}

TEST(Completion, OffersTheOptionsThatTheProgramTellsOf) {
    EXPECT_EQ(Offered("vigrel-send", "vigrel-send", "--k"), "--keepalive --kind");
    EXPECT_EQ(Offered("vigrel-send", "--quiet", "--raw"), "--raw --raw-bytes");
}

TEST(Completion, OffersTheWordsOfAValue) {
    EXPECT_EQ(Offered("vigrel-send", "--corrupt", ""), "checksum etx kind");
    EXPECT_EQ(Offered("vigrel-inspect", "--status", "a"), "active acked");
    EXPECT_EQ(Offered("vigrel-report", "--last", ""), "day week month year");
    EXPECT_EQ(Offered("vigrel-report", "--language", "d"), "de da");
}

// What the help of any program tells besides comes by itself; these are the words of which a value is one.
TEST(Completion, KnowsEveryOptionWhoseValueIsOneOfAFewWords) {
    std::ifstream bash(VIGREL_COMPLETION), zsh(VIGREL_COMPLETION_ZSH);
    const std::string offered{std::istreambuf_iterator<char>(bash), std::istreambuf_iterator<char>()};
    const std::string same{std::istreambuf_iterator<char>(zsh), std::istreambuf_iterator<char>()};
    for (const char* option :
         {"--kind", "--corrupt", "--as", "--status", "--observed", "--last", "--language"}) {
        EXPECT_NE(offered.find(std::string("        ") + option + ") echo "), std::string::npos) << option;
        EXPECT_NE(same.find(std::string("    ") + option + ") choices=("), std::string::npos) << option;
    }
}

TEST(Completion, OffersTheSwitchesOfTheReceiver) {
    EXPECT_EQ(Offered("vigrel-receiver", "vigrel-receiver", "/m"), "/MAXIMIZE /MINIMIZE");
}

}  // namespace
}  // namespace vigrel::testing
