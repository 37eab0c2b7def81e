// The real vigrel-send against stations that are none.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>
#include <thread>

#include "support/tcp_sink.h"

namespace vigrel::testing {
namespace {

// The exit code; words and redirections as a shell takes them.
int Send(const std::string& words) {
    return WEXITSTATUS(std::system((VIGREL_BIN_DIR "/vigrel-send " + words).c_str()));
}

TEST(VigrelSendTo, AStationGetsNothingOfWhatIsToldWithoutAStandardError) {
    cTcpSink silent;
    EXPECT_EQ(Send("--timeout 0.2 --count 2 --quiet --port " + silent.Port() + " >/dev/null 2>&-"), 1);
    while (silent.HasOpenConnection()) std::this_thread::sleep_for(std::chrono::milliseconds(5));
    const auto connections = silent.Connections();
    ASSERT_EQ(connections.size(), 1u);
    const std::string& frame = connections[0];
    EXPECT_EQ(std::count(frame.begin(), frame.end(), '\n'), 1) << frame;
    EXPECT_TRUE(frame.ends_with("\x03\n")) << frame;
}

}  // namespace
}  // namespace vigrel::testing
