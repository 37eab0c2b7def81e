#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QHostAddress>
#include <QSocketNotifier>
#include <QTcpSocket>
#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>

#include "adapters/qt/qt_data_socket.h"
#include "adapters/qt/qt_listener.h"
#include "contract/socket_contract.h"
#include "support/no_descriptors.h"
#include "support/qt_wait.h"

namespace vigrel::testing {
namespace {

// Real connections over the loopback device.
class cRealSocketRig {
  public:
    cRealSocketRig() { m_Listener.Listen(); }
    cListener& Listener() { return m_Listener; }
    cDataSocket& Data() { return m_Data; }

    int Connect(const QHostAddress& address = QHostAddress::LocalHost) {
        auto peer = std::make_unique<QTcpSocket>();
        bool connected = false;  // may have ended again by the time that anybody looks
        QObject::connect(peer.get(), &QTcpSocket::connected, [&] { connected = true; });
        peer->connectToHost(address, static_cast<quint16>(m_Listener.LocalPort()));
        EXPECT_TRUE(WaitUntil([&] { return connected; }));
        RunEvents(20);
        QObject::disconnect(peer.get(), &QTcpSocket::connected, nullptr, nullptr);
        m_Peers.push_back(std::move(peer));
        return static_cast<int>(m_Peers.size()) - 1;
    }
    void PeerSend(int peer, std::string_view bytes) {
        Peer(peer).write(bytes.data(), static_cast<qint64>(bytes.size()));
        Peer(peer).flush();
        RunEvents(20);
    }
    void PeerClose(int peer) {
        Peer(peer).disconnectFromHost();
        RunEvents(20);
    }
    std::string PeerReceived(int peer) {
        RunEvents(20);
        return Peer(peer).readAll().toStdString();
    }
    bool PeerSeesEnd(int peer) {
        return WaitUntil([&] { return Peer(peer).state() == QAbstractSocket::UnconnectedState; });
    }
    QTcpSocket& Peer(int peer) { return *m_Peers[static_cast<std::size_t>(peer)]; }

    cQtListener m_Listener;
    cQtDataSocket m_Data{m_Listener};

  private:
    std::vector<std::unique_ptr<QTcpSocket>> m_Peers;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, SocketContract, cRealSocketRig);

std::size_t OpenDescriptors() {
    const std::filesystem::directory_iterator open("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(open), end(open)));
}

// A peer without an event loop, which does in one step what others do over time.
class cBluntPeer {
  public:
    explicit cBluntPeer(std::int32_t port, const char* address = "127.0.0.1")
        : m_Descriptor(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in target{};
        target.sin_family = AF_INET;
        target.sin_port = htons(static_cast<std::uint16_t>(port));
        inet_pton(AF_INET, address, &target.sin_addr);
        m_Connected =
            connect(m_Descriptor.Get(), reinterpret_cast<const sockaddr*>(&target), sizeof target) == 0;
    }
    bool Connected() const { return m_Connected; }
    void Send(std::string_view bytes) const {
        EXPECT_EQ(send(m_Descriptor.Get(), bytes.data(), bytes.size(), MSG_NOSIGNAL),
                  static_cast<ssize_t>(bytes.size()));
    }
    // The last byte as urgent.
    void SendUrgently(std::string_view bytes) const {
        EXPECT_EQ(send(m_Descriptor.Get(), bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_OOB),
                  static_cast<ssize_t>(bytes.size()));
    }
    void EndSending() const { shutdown(m_Descriptor.Get(), SHUT_WR); }
    void Leave() { m_Descriptor.Reset(); }
    std::string ReadToTheEnd() const {
        std::string received;
        std::array<char, 4096> chunk;
        WaitUntil([&] {
            const ssize_t count = recv(m_Descriptor.Get(), chunk.data(), chunk.size(), MSG_DONTWAIT);
            if (count > 0) received.append(chunk.data(), static_cast<std::size_t>(count));
            return count == 0 || (count < 0 && errno != EAGAIN);
        });
        return received;
    }

  private:
    cFileHandle m_Descriptor;
    bool m_Connected = false;
};

class QtSockets : public ::testing::Test {
  protected:
    QtSockets() {
        m_Rig.m_Listener.OnConnectionRequest = [this](std::int32_t id) {
            m_Rig.m_Data.Close();
            m_Rig.m_Data.Accept(id);
        };
        m_Rig.m_Data.OnDataArrival = [this] { m_Chunks.push_back(m_Rig.m_Data.Fetch()); };
        m_Rig.m_Data.OnError = [this] { ++m_Errors; };
        m_Rig.m_Data.OnClosed = [this] { ++m_Closed; };
    }
    std::size_t Arrived() const {
        std::size_t bytes = 0;
        for (const std::string& chunk : m_Chunks) bytes += chunk.size();
        return bytes;
    }
    cRealSocketRig m_Rig;
    std::vector<std::string> m_Chunks;
    int m_Errors = 0, m_Closed = 0;
};

TEST_F(QtSockets, APortInUseIsAFailureThatNamesPortAndReason) {
    cQtListener second;
    second.SetLocalPort(m_Rig.m_Listener.LocalPort());
    try {
        second.Listen();
        FAIL() << "the port was taken twice";
    } catch (const cFailure& failure) {
        const std::string text = failure.what();
        EXPECT_NE(text.find(std::to_string(m_Rig.m_Listener.LocalPort())), std::string::npos) << text;
        EXPECT_NE(text.find("in use"), std::string::npos) << text;
    }
}

TEST_F(QtSockets, APortOutOfRangeIsAFailure) {
    for (const std::int32_t port : {-1, 65536, 70000}) {
        cQtListener listener;
        listener.SetLocalPort(port);
        EXPECT_THROW(listener.Listen(), cFailure) << port;
    }
}

TEST_F(QtSockets, ThePortCanBeTakenAgainAtOnceAfterTheProgramEnded) {
    auto first = std::make_unique<cQtListener>();
    first->Listen();
    const std::int32_t port = first->LocalPort();
    auto data = std::make_unique<cQtDataSocket>(*first);
    first->OnConnectionRequest = [&](std::int32_t id) { data->Accept(id); };
    QTcpSocket peer;
    peer.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(port));
    ASSERT_TRUE(WaitUntil([&] { return data->State() != 0; }));
    // This side closes first, so its end of the connection stays in the machine's tables for a minute.
    data->Close();
    data.reset();
    first.reset();
    RunEvents(20);
    cQtListener second;
    second.SetLocalPort(port);
    EXPECT_NO_THROW(second.Listen());
}

TEST_F(QtSockets, ConnectionsComeByEveryAddressFamily) {
    m_Rig.Connect(QHostAddress::LocalHost);
    EXPECT_NE(m_Rig.m_Data.State(), 0);
    m_Rig.m_Data.Close();
    m_Rig.Connect(QHostAddress::LocalHostIPv6);
    EXPECT_NE(m_Rig.m_Data.State(), 0);
}

TEST_F(QtSockets, AFloodComesInSmallTurnsBetweenWhichTheLoopServesOthers) {
    const int peer = m_Rig.Connect();
    std::string flood(300000, 'x');
    for (std::size_t i = 99; i < flood.size(); i += 100) flood[i] = '\n';
    // A posted event handled between two arrivals proves that the loop had its turn.
    int turns = 0;
    std::vector<int> turnOfChunk;
    std::function<void()> post = [&] {
        ++turns;
        if (Arrived() < flood.size())
            QMetaObject::invokeMethod(&m_Rig.Peer(peer), post, Qt::QueuedConnection);
    };
    m_Rig.m_Data.OnDataArrival = [&] {
        m_Chunks.push_back(m_Rig.m_Data.Fetch());
        turnOfChunk.push_back(turns);
    };
    post();
    m_Rig.Peer(peer).write(flood.data(), static_cast<qint64>(flood.size()));
    ASSERT_TRUE(WaitUntil([&] { return Arrived() == flood.size(); }));
    for (const std::string& chunk : m_Chunks) EXPECT_LE(chunk.size(), 4096u);
    EXPECT_GE(m_Chunks.size(), flood.size() / 4096);
    EXPECT_EQ(std::adjacent_find(turnOfChunk.begin(), turnOfChunk.end()), turnOfChunk.end());
}

TEST_F(QtSockets, BytesThatArriveWithThePeersCloseAreAllDelivered) {
    const int peer = m_Rig.Connect();
    std::string bytes(50000, 'y');
    for (std::size_t i = 0; i < bytes.size(); i += 1000) bytes[i] = '\n';
    m_Rig.Peer(peer).write(bytes.data(), static_cast<qint64>(bytes.size()));
    m_Rig.Peer(peer).disconnectFromHost();
    ASSERT_TRUE(WaitUntil([&] { return m_Closed == 1; }));
    EXPECT_EQ(Arrived(), bytes.size());
    EXPECT_EQ(m_Errors, 0);
}

// A reset is the peer's end or an error, as the machine tells it; the link treats the two alike.
TEST_F(QtSockets, AResetConnectionIsOneEvent) {
    const int peer = m_Rig.Connect();
    const linger reset{1, 0};
    setsockopt(static_cast<int>(m_Rig.Peer(peer).socketDescriptor()), SOL_SOCKET, SO_LINGER, &reset,
               sizeof reset);
    m_Rig.Peer(peer).abort();
    EXPECT_TRUE(WaitUntil([&] { return m_Errors + m_Closed > 0; }));
    RunEvents(20);
    EXPECT_EQ(m_Errors + m_Closed, 1);
    EXPECT_THROW(m_Rig.m_Data.Send("x"), cFailure);
}

TEST_F(QtSockets, RepliesReachAPeerWhoseFurtherFramesWereNotReadAnyMore) {
    const int peer = m_Rig.Connect();
    m_Rig.m_Data.OnDataArrival = [&] {
        m_Rig.m_Data.Fetch();
        m_Rig.m_Data.Send(
            "\x04"
            "04\n\r");
        m_Rig.m_Data.Close();
    };
    const std::string frames(40000, 'f');
    m_Rig.Peer(peer).write(frames.data(), static_cast<qint64>(frames.size()));
    ASSERT_TRUE(m_Rig.PeerSeesEnd(peer));
    EXPECT_EQ(m_Rig.Peer(peer).readAll().toStdString(),
              "\x04"
              "04\n\r");
    EXPECT_EQ(m_Rig.Peer(peer).error(), QAbstractSocket::RemoteHostClosedError);
}

TEST_F(QtSockets, AThousandConnectionsLeaveNothingBehind) {
    const std::size_t before = OpenDescriptors();
    for (int i = 0; i < 1000; ++i) {
        QTcpSocket peer;
        peer.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_Rig.m_Listener.LocalPort()));
        m_Chunks.clear();
        peer.write("x\n");
        ASSERT_TRUE(WaitUntil([&] { return Arrived() == 2; })) << i;
    }
    m_Rig.m_Data.Close();
    EXPECT_TRUE(WaitUntil([&] { return OpenDescriptors() == before; }));
    EXPECT_EQ(m_Rig.m_Data.Lingering(), 0u);
    EXPECT_EQ(m_Errors, 0);
}

// --- a peer that doesn't wait

TEST_F(QtSockets, WhatArrivedIsDeliveredThoughThePeerLeftWithoutReadingReplies) {
    m_Rig.m_Data.OnDataArrival = [&] {
        m_Chunks.push_back(m_Rig.m_Data.Fetch());
        SkipFailure([&] { m_Rig.m_Data.Send("reply"); });
        RunEvents(1);  // time for the peer's machine to refuse the reply
    };
    m_Rig.m_Data.OnClosed = [&] { ++m_Closed; };
    for (const std::size_t size : {5'000u, 50'000u, 120'000u}) {
        m_Chunks.clear();
        m_Closed = m_Errors = 0;
        cBluntPeer peer(m_Rig.m_Listener.LocalPort());
        std::string bytes(size, 'b');
        for (std::size_t i = 59; i < size; i += 60) bytes[i] = '\n';
        peer.Send(bytes);
        peer.Leave();
        ASSERT_TRUE(WaitUntil([&] { return m_Closed + m_Errors > 0; })) << size;
        EXPECT_EQ(Arrived(), size);
        m_Rig.m_Data.Close();
    }
}

TEST_F(QtSockets, APeerThatOnlyEndedItsSendingGetsAllReplies) {
    std::string expected;
    m_Rig.m_Data.OnDataArrival = [&] {
        m_Chunks.push_back(m_Rig.m_Data.Fetch());
        m_Rig.m_Data.Send("reply");
        expected += "reply";
    };
    m_Rig.m_Data.OnClosed = [&] { m_Rig.m_Data.Close(); };
    const cBluntPeer peer(m_Rig.m_Listener.LocalPort());
    peer.Send(std::string(60'000, '\n'));
    peer.EndSending();
    EXPECT_EQ(peer.ReadToTheEnd(), expected);
    EXPECT_EQ(Arrived(), 60'000u);
    EXPECT_EQ(m_Rig.m_Data.State(), 0);
}

// --- one connection after the other

// What the socket's peers have sent by the time that the next one is accepted.
class QtNextConnection : public QtSockets {
  protected:
    QtNextConnection() {
        m_Rig.m_Listener.OnConnectionRequest = [this](std::int32_t id) {
            m_ArrivedAtRequest.push_back(Arrived());
            m_Rig.m_Data.Close();
            m_Rig.m_Data.Accept(id);
        };
        m_Rig.m_Data.OnClosed = [this] { m_Rig.m_Data.Close(); };
    }
    bool WaitForRequests(std::size_t count) {
        return WaitUntil([&] { return m_ArrivedAtRequest.size() == count; });
    }
    std::vector<std::size_t> m_ArrivedAtRequest;
};

TEST_F(QtNextConnection, ComesBehindAllThatAPeerSentWhichHasLeft) {
    for (int i = 0; i < 3; ++i) {
        cBluntPeer peer(m_Rig.m_Listener.LocalPort());
        peer.Send(std::string(200'000, '\n'));
        peer.Leave();
    }
    ASSERT_TRUE(WaitForRequests(3));
    EXPECT_EQ(m_ArrivedAtRequest, (std::vector<std::size_t>{0, 200'000, 400'000}));
    EXPECT_TRUE(WaitUntil([&] { return Arrived() == 600'000; }));
}

TEST_F(QtNextConnection, ComesBehindAllThatHadArrivedOfOneThatStays) {
    const cBluntPeer stays(m_Rig.m_Listener.LocalPort());
    ASSERT_TRUE(WaitForRequests(1));
    stays.Send(std::string(120'000, '\n'));
    const cBluntPeer next(m_Rig.m_Listener.LocalPort());
    ASSERT_TRUE(WaitForRequests(2));
    EXPECT_EQ(m_ArrivedAtRequest[1], 120'000u);
}

TEST_F(QtNextConnection, IsNotKeptWaitingByOneThatGoesOnSending) {
    const cBluntPeer floods(m_Rig.m_Listener.LocalPort());
    ASSERT_TRUE(WaitForRequests(1));
    floods.Send(std::string(50'000, '\n'));
    const cBluntPeer next(m_Rig.m_Listener.LocalPort());
    // In each turn as much as is read in it.
    for (int turn = 0; turn < 100 && m_ArrivedAtRequest.size() == 1; ++turn) {
        floods.Send(std::string(cTcpConnection::kBytesPerTurn, '\n'));
        QCoreApplication::processEvents();
    }
    ASSERT_EQ(m_ArrivedAtRequest.size(), 2u);
}

// A byte sent urgently counts among what has arrived, and is never read.
TEST_F(QtNextConnection, IsNotKeptWaitingByAnUrgentByte) {
    const cBluntPeer hasty(m_Rig.m_Listener.LocalPort());
    ASSERT_TRUE(WaitForRequests(1));
    hasty.SendUrgently("a\nb");
    const cBluntPeer next(m_Rig.m_Listener.LocalPort());
    EXPECT_TRUE(WaitForRequests(2));
}

TEST_F(QtSockets, APeerThatReadsNoReplyCostsABoundedMemory) {
    m_Rig.Connect();
    EXPECT_THROW(m_Rig.m_Data.Send(std::string(cTcpConnection::kMostUnsent + 1, 'r')), cFailure);
    EXPECT_NO_THROW(m_Rig.m_Data.Send("reply"));
}

// --- a storm of connections

TEST_F(QtSockets, EachTurnOfTheLoopDeliversOneRequest) {
    std::vector<std::unique_ptr<cBluntPeer>> peers;
    peers.reserve(20);
    for (int i = 0; i < 20; ++i) {
        peers.push_back(std::make_unique<cBluntPeer>(m_Rig.m_Listener.LocalPort()));
    }
    int requests = 0, turns = 0;
    m_Rig.m_Listener.OnConnectionRequest = [&](std::int32_t) { ++requests; };
    for (; requests < 20 && turns < 1000; ++turns) {
        const int before = requests;
        QCoreApplication::processEvents();
        EXPECT_LE(requests, before + 1);
    }
    EXPECT_EQ(requests, 20);
}

TEST_F(QtSockets, ConnectionsThatCarriedNothingAreGoneAtOnce) {
    const std::size_t before = OpenDescriptors();
    std::vector<std::unique_ptr<cBluntPeer>> peers;
    for (int i = 0; i < 50; ++i) {
        peers.push_back(std::make_unique<cBluntPeer>(m_Rig.m_Listener.LocalPort()));
        RunEvents(1);
    }
    // The last one is open, at both ends; the others only at the peers'.
    ASSERT_TRUE(WaitUntil([&] { return OpenDescriptors() == before + 51; }));
    EXPECT_EQ(m_Rig.m_Data.Lingering(), 0u);
}

TEST_F(QtSockets, OnlySoManyConnectionsAreWaitedFor) {
    std::vector<std::unique_ptr<cBluntPeer>> peers;
    for (std::size_t i = 0; i < cLingeringConnections::kMost + 20; ++i) {
        m_Chunks.clear();
        peers.push_back(std::make_unique<cBluntPeer>(m_Rig.m_Listener.LocalPort()));
        peers.back()->Send("\n");
        ASSERT_TRUE(WaitUntil([&] { return Arrived() == 1; }));
    }
    EXPECT_EQ(m_Rig.m_Data.Lingering(), cLingeringConnections::kMost);
    EXPECT_TRUE(WaitUntil([&] { return m_Rig.m_Data.Lingering() == 0; }, 5000));
}

TEST_F(QtSockets, RequestsThatNobodyTakesLeaveNoDescriptor) {
    m_Rig.m_Listener.OnConnectionRequest = nullptr;
    const std::size_t before = OpenDescriptors();
    for (int i = 0; i < 100; ++i) {
        const cBluntPeer peer(m_Rig.m_Listener.LocalPort());
        EXPECT_TRUE(peer.Connected());
        RunEvents(1);
    }
    EXPECT_TRUE(WaitUntil([&] { return OpenDescriptors() == before; }));
}

TEST_F(QtSockets, AMachineWithoutDescriptorsIsAskedAgain) {
    const cBluntPeer peer(m_Rig.m_Listener.LocalPort());
    // Seen by a sanitizer.
    QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read).setEnabled(false);
    {
        const cNoDescriptors none;
        RunEvents(50);
        EXPECT_EQ(m_Rig.m_Data.State(), 0);
    }
    EXPECT_TRUE(WaitUntil([&] { return m_Rig.m_Data.State() != 0; }, 5000));
}

// --- one address of several

TEST_F(QtSockets, AnAddressKeepsTheOthersShut) {
    cQtListener listener;
    listener.SetLocalAddress("127.0.0.1");
    listener.Listen();
    EXPECT_TRUE(cBluntPeer(listener.LocalPort()).Connected());
    EXPECT_FALSE(cBluntPeer(listener.LocalPort(), "127.0.0.2").Connected());
    EXPECT_TRUE(cBluntPeer(m_Rig.m_Listener.LocalPort(), "127.0.0.2").Connected());
}

TEST_F(QtSockets, AnAddressOfIPv6Works) {
    cQtListener listener;
    listener.SetLocalAddress("::1");
    listener.Listen();
    EXPECT_GT(listener.LocalPort(), 0);
    EXPECT_FALSE(cBluntPeer(listener.LocalPort()).Connected());
}

TEST_F(QtSockets, AnAddressThatTheMachineLacksIsAFailure) {
    for (const char* address : {"192.0.2.1", "localhost", "300.1.1.1", "nonsense"}) {
        cQtListener listener;
        listener.SetLocalAddress(address);
        EXPECT_THROW(listener.Listen(), cFailure) << address;
    }
}

}  // namespace
}  // namespace vigrel::testing
