#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "common/failure.h"
#include "platform/sockets.h"

namespace vigrel::testing {

// What the link may rely on, whatever sockets it is given. A rig offers:
//   cListener& Listener();       listening already
//   cDataSocket& Data();
//   int Connect();               a peer connects; its number. Returns when the request has been handled
//   void PeerSend(int, bytes);   returns when every event that follows has been handled
//   void PeerClose(int);         likewise
//   std::string PeerReceived(int);  everything that has reached the peer so far
//   bool PeerSeesEnd(int);       whether the peer's connection has been ended
template <class Rig>
class SocketContract : public ::testing::Test {
  protected:
    // Takes over every request; gathers what arrives, as the link does.
    void AcceptAll() {
        m_Rig.Listener().OnConnectionRequest = [this](std::int32_t id) {
            if (m_Rig.Data().State() != 0) m_Rig.Data().Close();
            m_Rig.Data().Accept(id);
        };
        m_Rig.Data().OnDataArrival = [this] { m_Arrived += m_Rig.Data().Fetch(); };
        m_Rig.Data().OnClosed = [this] { ++m_ClosedEvents; };
        m_Rig.Data().OnError = [this] { ++m_ErrorEvents; };
    }
    Rig m_Rig;
    std::string m_Arrived;
    int m_ClosedEvents = 0, m_ErrorEvents = 0;
};
TYPED_TEST_SUITE_P(SocketContract);

TYPED_TEST_P(SocketContract, ASocketIsClosedUntilItAcceptsARequest) {
    EXPECT_EQ(this->m_Rig.Data().State(), 0);
    this->AcceptAll();
    this->m_Rig.Connect();
    EXPECT_NE(this->m_Rig.Data().State(), 0);
}

TYPED_TEST_P(SocketContract, BytesOfEveryValueGoBothWays) {
    std::string bytes;
    for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
    this->AcceptAll();
    const int peer = this->m_Rig.Connect();
    this->m_Rig.PeerSend(peer, bytes);
    EXPECT_EQ(this->m_Arrived, bytes);
    this->m_Rig.Data().Send(bytes);
    EXPECT_EQ(this->m_Rig.PeerReceived(peer), bytes);
}

TYPED_TEST_P(SocketContract, ASecondFetchIsEmpty) {
    this->AcceptAll();
    std::vector<std::string> fetches;
    this->m_Rig.Data().OnDataArrival = [&] {
        fetches.push_back(this->m_Rig.Data().Fetch());
        fetches.push_back(this->m_Rig.Data().Fetch());
    };
    this->m_Rig.PeerSend(this->m_Rig.Connect(), "abc");
    EXPECT_EQ(fetches, (std::vector<std::string>{"abc", ""}));
}

TYPED_TEST_P(SocketContract, ARequestThatNobodyAcceptsIsClosed) {
    const int peer = this->m_Rig.Connect();
    EXPECT_TRUE(this->m_Rig.PeerSeesEnd(peer));
    EXPECT_EQ(this->m_Rig.Data().State(), 0);
}

TYPED_TEST_P(SocketContract, ARequestIsGoneOnceItsEventHasReturned) {
    std::int32_t late = 0;
    this->m_Rig.Listener().OnConnectionRequest = [&](std::int32_t id) { late = id; };
    this->m_Rig.Connect();
    EXPECT_THROW(this->m_Rig.Data().Accept(late), cFailure);
    EXPECT_EQ(this->m_Rig.Data().State(), 0);
}

TYPED_TEST_P(SocketContract, AnOpenSocketAcceptsNoRequest) {
    this->AcceptAll();
    const int first = this->m_Rig.Connect();
    bool failed = false;
    this->m_Rig.Listener().OnConnectionRequest = [&](std::int32_t id) {
        failed = !SkipFailure([&] { this->m_Rig.Data().Accept(id); });
    };
    const int second = this->m_Rig.Connect();
    EXPECT_TRUE(failed);
    EXPECT_TRUE(this->m_Rig.PeerSeesEnd(second));
    this->m_Rig.PeerSend(first, "still here");
    EXPECT_EQ(this->m_Arrived, "still here");
}

TYPED_TEST_P(SocketContract, ASecondConnectionReplacesTheFirst) {
    this->AcceptAll();
    const int first = this->m_Rig.Connect();
    this->m_Rig.PeerSend(first, "half a li");
    this->m_Arrived.clear();
    const int second = this->m_Rig.Connect();
    EXPECT_TRUE(this->m_Rig.PeerSeesEnd(first));
    this->m_Rig.PeerSend(first, "too late");
    this->m_Rig.PeerSend(second, "new");
    EXPECT_EQ(this->m_Arrived, "new");
    EXPECT_EQ(this->m_ClosedEvents, 0);
}

TYPED_TEST_P(SocketContract, CloseForgetsWhatWasReceivedAndNotFetched) {
    this->AcceptAll();
    this->m_Rig.Data().OnDataArrival = [] {};
    this->m_Rig.PeerSend(this->m_Rig.Connect(), "forgotten");
    this->m_Rig.Data().Close();
    EXPECT_EQ(this->m_Rig.Data().State(), 0);
    EXPECT_EQ(this->m_Rig.Data().Fetch(), "");
}

TYPED_TEST_P(SocketContract, ClosingAClosedSocketDoesNothing) {
    this->m_Rig.Data().Close();
    EXPECT_EQ(this->m_Rig.Data().State(), 0);
}

TYPED_TEST_P(SocketContract, BytesSentBeforeACloseStillGoOut) {
    this->AcceptAll();
    const int peer = this->m_Rig.Connect();
    this->m_Rig.PeerSend(peer, "frame");
    this->m_Rig.Data().Send("reply");
    this->m_Rig.Data().Close();
    EXPECT_EQ(this->m_Rig.PeerReceived(peer), "reply");
    EXPECT_TRUE(this->m_Rig.PeerSeesEnd(peer));
    EXPECT_EQ(this->m_ClosedEvents + this->m_ErrorEvents, 0);
}

TYPED_TEST_P(SocketContract, ThePeersCloseIsOneEventAndTheSocketStaysOpenUntilItIsClosed) {
    this->AcceptAll();
    const int peer = this->m_Rig.Connect();
    this->m_Rig.PeerSend(peer, "last words");
    this->m_Rig.PeerClose(peer);
    EXPECT_EQ(this->m_Arrived, "last words");
    EXPECT_EQ(this->m_ClosedEvents, 1);
    EXPECT_EQ(this->m_ErrorEvents, 0);
    EXPECT_NE(this->m_Rig.Data().State(), 0);
    this->m_Rig.Data().Close();
    EXPECT_EQ(this->m_Rig.Data().State(), 0);
}

TYPED_TEST_P(SocketContract, ASocketCanBeClosedInItsOwnEvents) {
    this->AcceptAll();
    this->m_Rig.Data().OnDataArrival = [&] { this->m_Rig.Data().Close(); };
    const int first = this->m_Rig.Connect();
    this->m_Rig.PeerSend(first, "x");
    EXPECT_TRUE(this->m_Rig.PeerSeesEnd(first));
    this->m_Rig.Data().OnClosed = [&] { this->m_Rig.Data().Close(); };
    const int second = this->m_Rig.Connect();
    this->m_Rig.PeerClose(second);
    EXPECT_EQ(this->m_Rig.Data().State(), 0);
}

TYPED_TEST_P(SocketContract, SendingOnAClosedSocketFails) {
    EXPECT_THROW(this->m_Rig.Data().Send("x"), cFailure);
}

TYPED_TEST_P(SocketContract, TheListenerGoesOnListening) {
    this->AcceptAll();
    for (int i = 0; i < 5; ++i) {
        const int peer = this->m_Rig.Connect();
        this->m_Rig.PeerSend(peer, std::to_string(i));
    }
    EXPECT_EQ(this->m_Arrived, "01234");
}

REGISTER_TYPED_TEST_SUITE_P(SocketContract, ASocketIsClosedUntilItAcceptsARequest,
                            BytesOfEveryValueGoBothWays, ASecondFetchIsEmpty,
                            ARequestThatNobodyAcceptsIsClosed, ARequestIsGoneOnceItsEventHasReturned,
                            AnOpenSocketAcceptsNoRequest, ASecondConnectionReplacesTheFirst,
                            CloseForgetsWhatWasReceivedAndNotFetched, ClosingAClosedSocketDoesNothing,
                            BytesSentBeforeACloseStillGoOut,
                            ThePeersCloseIsOneEventAndTheSocketStaysOpenUntilItIsClosed,
                            ASocketCanBeClosedInItsOwnEvents, SendingOnAClosedSocketFails,
                            TheListenerGoesOnListening);

}  // namespace vigrel::testing
