// Every program tells its version.

#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>
#include <string>

namespace vigrel::testing {
namespace {

std::string OutputOf(const std::string& command) {
    FILE* pipe = popen(command.c_str(), "r");
    std::string output;
    for (int c = 0; (c = std::fgetc(pipe)) != EOF;) output += static_cast<char>(c);
    pclose(pipe);
    return output;
}

TEST(Version, IsToldByEveryProgram) {
    std::istringstream programs(VIGREL_PROGRAMS);
    int count = 0;
    for (std::string program; programs >> program; ++count) {
        EXPECT_EQ(
            OutputOf("QT_QPA_PLATFORM=offscreen " VIGREL_BIN_DIR "/" + program + " --version 2>/dev/null"),
            program + " " VIGREL_VERSION "\n");
    }
    EXPECT_GE(count, 4);
}

}  // namespace
}  // namespace vigrel::testing
