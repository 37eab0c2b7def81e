// Senders that don't wait, and peers that don't mean well: the real program over real sockets.

#include <gtest/gtest.h>
#include <signal.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "e2e/station.h"
#include "e2e/tcp_client.h"
#include "link/frame.h"

namespace vigrel::testing {
namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* kNoLimit = "[General]\r\nMaxEvents=0\r\n";

std::string Burst(int count) {
    std::string frames;
    for (int i = 0; i < count; ++i) {
        frames += MakeFrame("PLC1", "S1|||alarm " + std::to_string(i) + "||Technical");
    }
    return frames;
}

// In memory, where an alarm is stored in a tenth of the time that a disk takes.
class HastySenders : public ::testing::Test {
  protected:
    void StartStation() {
        m_Station.Configure(kNoLimit);
        ASSERT_TRUE(m_Station.Start()) << m_Station.StandardError();
    }

  private:
    cTemporaryInMemory m_TemporaryInMemory;  // when the station makes its folder

  protected:
    cStation m_Station;
};

// Waits until the station has so many alarms on disk, and a little longer for one too many.
std::size_t StoredAlarms(const cStation& station, std::size_t expected) {
    const auto end = Clock::now() + std::chrono::seconds(60);
    while (station.AlarmFiles().size() < expected && Clock::now() < end) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    return station.AlarmFiles().size();
}

TEST_F(HastySenders, ABurstThatIsSentAndClosedAtOnceIsStoredWhole) {
    std::size_t expected = 0;
    ASSERT_NO_FATAL_FAILURE(StartStation());
    for (const int count : {100, 500, 1000, 2000}) {
        cTcpClient sender(m_Station.m_Port);
        sender.Send(Burst(count));
        sender.Leave();
        expected += static_cast<std::size_t>(count);
        EXPECT_EQ(StoredAlarms(m_Station, expected), expected) << count;
    }
    EXPECT_EQ(m_Station.Stop(SIGTERM), 0);
}

TEST_F(HastySenders, OneThatEndedItsSendingGetsEveryReply) {
    ASSERT_NO_FATAL_FAILURE(StartStation());
    const cTcpClient sender(m_Station.m_Port);
    sender.Send(Burst(500));
    sender.EndSending();
    std::string expected;
    for (int i = 0; i < 500; ++i) expected += std::string(kPositive) + std::string(kReplyEnd);
    EXPECT_EQ(sender.ReadToTheEnd(), expected);
    EXPECT_EQ(m_Station.AlarmFiles().size(), 500u);
}

TEST_F(HastySenders, OneThatLeavesWhileItsBurstIsWorkedOnLosesNothing) {
    ASSERT_NO_FATAL_FAILURE(StartStation());
    cTcpClient sender(m_Station.m_Port);
    sender.Send(Burst(1000));
    // Some replies have come and lie unread: the close that follows is a reset.
    ASSERT_GT(StoredAlarms(m_Station, 50), 0u);
    sender.Leave();
    EXPECT_EQ(StoredAlarms(m_Station, 1000), 1000u);
}

TEST_F(HastySenders, AShortCallIsStoredThoughTheNextOneComesAtOnce) {
    ASSERT_NO_FATAL_FAILURE(StartStation());
    for (int i = 0; i < 200; ++i) {
        cTcpClient sender(m_Station.m_Port);
        sender.Send(Burst(3));
        sender.Leave();
    }
    EXPECT_EQ(StoredAlarms(m_Station, 600), 600u);
}

// Far more than one turn of the station takes in: two thousand frames are some 100 KB.
TEST_F(HastySenders, BurstsFromOneConnectionAfterTheOtherAreStoredWhole) {
    ASSERT_NO_FATAL_FAILURE(StartStation());
    for (int i = 0; i < 2; ++i) {
        cTcpClient sender(m_Station.m_Port);
        sender.Send(Burst(2000));
        sender.Leave();
    }
    EXPECT_EQ(StoredAlarms(m_Station, 4000), 4000u);
}

TEST_F(HastySenders, WhatAConnectionDeliveredIsStoredThoughAnotherTakesItsPlace) {
    ASSERT_NO_FATAL_FAILURE(StartStation());
    const cTcpClient stays(m_Station.m_Port);
    stays.Send(Burst(2000));
    const cTcpClient next(m_Station.m_Port);
    next.Send(Burst(1));
    next.EndSending();
    EXPECT_EQ(next.ReadToTheEnd(), std::string(kPositive) + std::string(kReplyEnd));
    EXPECT_EQ(m_Station.AlarmFiles().size(), 2001u);
}

// The longest line that a sender may send, in two pieces, and lines with CR LF right behind it.
TEST_F(HastySenders, ALineAtTheLimitIsNotMadeTooLongByTheLinesBehindIt) {
    ASSERT_NO_FATAL_FAILURE(StartStation());
    std::string longest = MakeFrame("PLC1", "S1|||" + std::string(32'767 - 17, 'x'));
    longest.insert(longest.size() - 1, "\r");
    ASSERT_EQ(longest.size(), 32'767u);
    std::string behind;
    for (int i = 0; i < 200; ++i) behind += MakeFrame("PLC1", "S1|||behind").insert(20, "\r");
    const cTcpClient sender(m_Station.m_Port);
    sender.Send(longest.substr(0, 4000));
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    sender.Send(longest.substr(4000) + behind);
    sender.EndSending();
    EXPECT_EQ(sender.ReadToTheEnd().size(), 201u * 5);
    EXPECT_EQ(m_Station.AlarmFiles().size(), 201u);
    EXPECT_EQ(m_Station.Stop(SIGTERM), 0);
}

// Nobody's line: it is given up, and the next sender is served.
TEST_F(HastySenders, AStreamThatNeverEndsALineIsClosed) {
    ASSERT_NO_FATAL_FAILURE(StartStation());
    const cTcpClient endless(m_Station.m_Port);
    for (int i = 0; i < 1024; ++i) endless.Send(std::string(1024, 'x'));
    endless.TrySend("x");
    EXPECT_TRUE(endless.IsEndedInSilence());
    const cTcpClient next(m_Station.m_Port);
    next.Send(Burst(1));
    next.EndSending();
    EXPECT_EQ(next.ReadToTheEnd(), std::string(kPositive) + std::string(kReplyEnd));
}

// Two thousand silent connections a second, each of which replaces the one before.
TEST_F(HastySenders, AStormOfConnectionsKeepsNoAlarmFromTheDisk) {
    ASSERT_NO_FATAL_FAILURE(StartStation());
    std::atomic<bool> over = false;
    std::thread storm([&] {
        while (!over) {
            const cTcpClient knock(m_Station.m_Port);
            std::this_thread::sleep_for(std::chrono::microseconds(300));
        }
    });
    // A connection may be replaced before its frame has come, and is then without a reply: the sender tries
    // again.
    std::size_t answered = 0;
    for (int i = 0; i < 3000 && answered < 50; ++i) {
        const cTcpClient sender(m_Station.m_Port);
        if (!sender.TrySend(Burst(1))) continue;
        sender.EndSending();
        if (sender.ReadToTheEnd() == std::string(kPositive) + std::string(kReplyEnd)) ++answered;
    }
    EXPECT_EQ(answered, 50u);
    EXPECT_GE(StoredAlarms(m_Station, answered), answered);
    over = true;
    storm.join();
    EXPECT_EQ(m_Station.Send({"--t0", "after"}).exitCode, 0);
}

TEST_F(HastySenders, AStationAtOneAddressIsReachedThereAlone) {
    m_Station.Configure("[General]\r\n");
    m_Station.m_Address = "127.0.0.2";
    ASSERT_TRUE(m_Station.Start()) << m_Station.StandardError();
    EXPECT_FALSE(cTcpClient(m_Station.m_Port).Connected());
    EXPECT_EQ(m_Station.Send({"--host", "127.0.0.2", "--t0", "alarm"}).exitCode, 0);
    EXPECT_TRUE(m_Station.WaitForLog("T10017 127.0.0.2 " + std::to_string(m_Station.m_Port) + " T10018"));
}

}  // namespace
}  // namespace vigrel::testing
