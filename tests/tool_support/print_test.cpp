#include "tool_support/print.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <iterator>

#include "common/failure.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

constexpr int kPrinted = 0, kNotBegun = 255;

// Prints in a process of its own, whose standard output is that file, closed for none: kPrinted, or the
// number of the failure. What isn't written by then is lost with the process.
int PrintTo(const std::string& file, const std::string& text) {
    std::fflush(stdout);
    const pid_t process = fork();
    if (process == 0) {
        close(STDOUT_FILENO);
        if (!file.empty() && dup2(open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDOUT_FILENO) < 0)
            _exit(kNotBegun);
        const auto failure = CatchFailure([&] { PrintOutput(text); });
        _exit(failure ? static_cast<int>(failure->Number()) : kPrinted);
    }
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(PrintOutput, WritesEveryByteAtOnce) {
    const cTemporaryFolder folder;
    const std::string path = (folder.Path() / "out.txt").string();
    for (const std::string& text :
         {std::string(), std::string("\xC3\xA5\0\n.", 5), std::string(100'000, 'x')}) {
        EXPECT_EQ(PrintTo(path, text), kPrinted);
        std::ifstream file(path, std::ios::binary);
        EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), text);
    }
}

TEST(PrintOutput, ADiskThatIsFullIsAFailureForAShortTextAndALongOne) {
    for (const std::size_t length : {1, 100'000})
        EXPECT_EQ(PrintTo("/dev/full", std::string(length, 'x')), static_cast<int>(eFailure::DiskFull))
            << length;
}

TEST(PrintOutput, AStandardOutputThatIsClosedIsAFailure) {
    EXPECT_EQ(PrintTo("", "x"), static_cast<int>(eFailure::DiskFull));
}

}  // namespace
}  // namespace vigrel::testing
