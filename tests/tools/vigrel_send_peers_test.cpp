// The real vigrel-send against stations that are none.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <string>
#include <thread>

#include "support/tcp_sink.h"
#include "vigrel-send/connection.h"

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

TEST(VigrelSendTo, AnOutputThatCannotBeWrittenIsSaidSo) {
    EXPECT_EQ(Send("--help >/dev/full 2>/dev/null"), 1);
    EXPECT_EQ(Send("--version >/dev/full 2>/dev/null"), 1);
}

// A connection that the test accepts from a port; ends with the object.
class cPeer {
  public:
    explicit cPeer(const cLoopbackPort& port) : m_Socket(accept(port.Socket(), nullptr, nullptr)) {}
    ~cPeer() { close(m_Socket); }
    cPeer(const cPeer&) = delete;
    cPeer& operator=(const cPeer&) = delete;
    void Reply(const std::string& bytes) const {
        EXPECT_EQ(write(m_Socket, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }

  private:
    int m_Socket;
};

double SecondsOf(const std::function<void()>& step) {
    const auto start = std::chrono::steady_clock::now();
    step();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

TEST(VigrelSendConnection, AReplyThatComesByAndByIsWaitedForNoLongerThanAnyOther) {
    const cLoopbackPort port;
    send::cConnection connection("127.0.0.1", port.Port(), 0.4);
    const cPeer peer(port);
    const std::jthread replies([&] {
        for (const char* byte : {"\x04", "0", "4", "\n", "\r"}) {
            peer.Reply(byte);
            std::this_thread::sleep_for(std::chrono::milliseconds(200));
        }
    });
    EXPECT_LT(connection.ReadReply().size(), send::kReplySize);
}

TEST(VigrelSendConnection, APeerThatTakesNothingIsNotWaitedForWithoutEnd) {
    const cLoopbackPort port;
    send::cConnection connection("127.0.0.1", port.Port(), 0.2);
    const cPeer peer(port);
    const std::string large(32 << 20, 'x');
    try {
        connection.Send(large);
        ADD_FAILURE() << "taken";
    } catch (const send::cConnectionError& error) {
        EXPECT_EQ(error.what(), "127.0.0.1 port " + port.Port() + ": takes nothing");
    }
}

// The second connection finds no place among those that wait to be accepted, and no answer comes.
TEST(VigrelSendConnection, AStationThatDoesNotAnswerIsGivenUp) {
    const cLoopbackPort full(0);
    const send::cConnection waits("127.0.0.1", full.Port(), 5);
    EXPECT_LT(SecondsOf([&] {
                  EXPECT_THROW(send::cConnection("127.0.0.1", full.Port(), 0.2), send::cConnectionError);
              }),
              2);
}

TEST(VigrelSendTo, AStationThatAnswersByHalvesGetsNoFurtherFrame) {
    const cLoopbackPort port;
    std::string received;
    std::jthread station([&] {
        const int connection = accept(port.Socket(), nullptr, nullptr);
        char bytes[4096];
        for (ssize_t count = 0; (count = read(connection, bytes, sizeof bytes)) > 0;) {
            received.append(bytes, static_cast<std::size_t>(count));
            EXPECT_EQ(write(connection, "\x04", 1), 1);
        }
        close(connection);
    });
    EXPECT_EQ(Send("--timeout 0.2 --count 3 --quiet --port " + port.Port() + " 2>/dev/null"), 1);
    station.join();
    EXPECT_EQ(std::count(received.begin(), received.end(), '\n'), 1) << received;
}

}  // namespace
}  // namespace vigrel::testing
