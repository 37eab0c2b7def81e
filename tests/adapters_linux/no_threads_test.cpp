// What is left where the machine gives no thread.

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "adapters/linux/linux_files.h"
#include "adapters/linux/printer.h"
#include "adapters/linux/printer_thread.h"
#include "common/failure.h"
#include "support/no_threads.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

using namespace std::chrono_literals;

// Does a step without threads, tells what it gives, and ends.
[[noreturn]] void TellWithoutThreads(const std::function<std::string()>& step) {
    const bool refused = RefuseThreads();
    std::fputs((refused ? step() : "no rule").c_str(), stderr);
    std::_Exit(0);
}

const ::testing::ExitedWithCode kInOrder(0);

class NoThreadsDeathTest : public ::testing::Test {
  protected:
    const cTemporaryFolder m_Folder;
};

TEST_F(NoThreadsDeathTest, ALineForThePrinterFails) {
    const std::string path = (m_Folder.Path() / "printed.txt").string();
    const auto print = [&] { return cPrinterThread(MakePathPrinter(path)).Print("line\r\n", 1s); };
    EXPECT_EXIT(TellWithoutThreads(print), kInOrder, "^no thread: Resource temporarily unavailable$");
    EXPECT_EQ(print(), "");
}

TEST_F(NoThreadsDeathTest, AWaitForTheDiskBesideTheProgramFails) {
    const auto sync = [&] {
        const auto failure = CatchFailure([&] { cLinuxFiles().StartSync(m_Folder.Folder()); });
        return std::string(failure ? failure->what() : "");
    };
    EXPECT_EXIT(TellWithoutThreads(sync), kInOrder, "^no thread: Resource temporarily unavailable$");
}

TEST_F(NoThreadsDeathTest, ManyFilesAreReadAllTheSame) {
    cLinuxFiles files;
    std::vector<std::string> names;
    for (int i = 0; i < 600; ++i) {
        names.push_back(std::to_string(i));
        files.WriteFile(m_Folder.Folder() + names.back(), names.back(), false);
    }
    const auto read = [&] {
        std::size_t right = 0;
        files.ReadFiles(m_Folder.Folder(), names, [&](std::size_t i, const std::string& content) {
            right += content == names[i] ? 1 : 0;
        });
        return std::to_string(right);
    };
    EXPECT_EXIT(TellWithoutThreads(read), kInOrder, "^600$");
}

}  // namespace
}  // namespace vigrel::testing
