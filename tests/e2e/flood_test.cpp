// A flood of alarms that is cut by the end of the station, at random moments.

#include <gtest/gtest.h>
#include <signal.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <random>
#include <string_view>
#include <thread>

#include "e2e/station.h"
#include "e2e/tcp_client.h"
#include "link/frame.h"

namespace vigrel::testing {
namespace {

constexpr std::string_view kPositiveReply =
    "\x04"
    "04\n\r";

// Sends alarms as fast as the station takes them, and counts the answers as they come: what a connection
// holds unread when it is reset is gone.
class cFlood {
  public:
    explicit cFlood(int port) : m_Client(port), m_Reader([this] { Read(); }), m_Sender([this] { Send(); }) {}
    ~cFlood() { Finish(); }
    // The positive answers up to the end of the connection.
    std::size_t Finish() {
        if (m_Sender.joinable()) m_Sender.join();
        if (m_Reader.joinable()) m_Reader.join();
        std::size_t count = 0;
        for (std::size_t at = 0; (at = m_Answers.find(kPositiveReply, at)) != std::string::npos; ++at)
            ++count;
        return count;
    }
    void WaitUntilItRuns() const {
        while (!m_Runs) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }

  private:
    void Send() {
        std::string frames;
        for (int i = 0; i < 50; ++i) frames += MakeFrame("Flood", "S1||a flood of alarms||Technical");
        while (m_Client.TrySend(frames)) {
        }
    }

    void Read() {
        for (std::string some = m_Client.ReadSome(); !some.empty(); some = m_Client.ReadSome()) {
            m_Answers += some;
            m_Runs = true;
        }
        m_Runs = true;
    }

    cTcpClient m_Client;
    std::string m_Answers;
    std::atomic<bool> m_Runs = false;
    std::thread m_Reader;
    std::thread m_Sender;
};

// A campaign asks for more of them.
int Moments() {
    const char* wish = std::getenv("VIGREL_FLOOD_MOMENTS");
    return wish != nullptr ? std::atoi(wish) : 4;
}

TEST(Flood, EndsWithTheLinesOfTheEndAndEveryAnswerHasItsFile) {
    std::mt19937 random(std::random_device{}());
    for (int i = 0; i < Moments(); ++i) {
        cStation station;
        station.Configure("[General]\r\nMaxEvents=0\r\n");
        ASSERT_TRUE(station.Start()) << station.StandardError();
        cFlood flood(station.m_Port);
        flood.WaitUntilItRuns();
        const std::chrono::milliseconds moment(std::uniform_int_distribution<>(0, 500)(random));
        std::this_thread::sleep_for(moment);
        EXPECT_EQ(station.Stop(SIGTERM), 0);
        const std::size_t answered = flood.Finish();
        EXPECT_GT(answered, 0u);
        EXPECT_EQ(answered, station.AlarmFiles().size()) << moment.count() << " ms";
        EXPECT_EQ(station.Log().back(), "T10020") << moment.count() << " ms";
        RecordProperty("answered_" + std::to_string(i), static_cast<int>(answered));
    }
}

}  // namespace
}  // namespace vigrel::testing
