#include <gtest/gtest.h>
#include <sys/socket.h>

#include <QHostAddress>
#include <QTcpSocket>
#include <algorithm>

#include "adapters/qt/qt_data_socket.h"
#include "adapters/qt/qt_listener.h"
#include "contract/socket_contract.h"
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

class cQtSocketsTest : public ::testing::Test {
  protected:
    cQtSocketsTest() {
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

TEST_F(cQtSocketsTest, APortInUseIsAFailureThatNamesPortAndReason) {
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

TEST_F(cQtSocketsTest, APortOutOfRangeIsAFailure) {
    for (const std::int32_t port : {-1, 65536, 70000}) {
        cQtListener listener;
        listener.SetLocalPort(port);
        EXPECT_THROW(listener.Listen(), cFailure) << port;
    }
}

TEST_F(cQtSocketsTest, ThePortCanBeTakenAgainAtOnceAfterTheProgramEnded) {
    auto first = std::make_unique<cQtListener>();
    first->Listen();
    const std::int32_t port = first->LocalPort();
    cQtDataSocket data(*first);
    first->OnConnectionRequest = [&](std::int32_t id) { data.Accept(id); };
    QTcpSocket peer;
    peer.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(port));
    ASSERT_TRUE(WaitUntil([&] { return data.State() != 0; }));
    // This side closes first, so its end of the connection stays in the machine's tables for a minute.
    data.Close();
    first.reset();
    RunEvents(20);
    cQtListener second;
    second.SetLocalPort(port);
    EXPECT_NO_THROW(second.Listen());
}

TEST_F(cQtSocketsTest, ConnectionsComeByEveryAddressFamily) {
    m_Rig.Connect(QHostAddress::LocalHost);
    EXPECT_NE(m_Rig.m_Data.State(), 0);
    m_Rig.m_Data.Close();
    m_Rig.Connect(QHostAddress::LocalHostIPv6);
    EXPECT_NE(m_Rig.m_Data.State(), 0);
}

TEST_F(cQtSocketsTest, AFloodComesInSmallTurnsBetweenWhichTheLoopServesOthers) {
    const int peer = m_Rig.Connect();
    std::string flood(300000, 'x');
    for (std::size_t i = 99; i < flood.size(); i += 100) flood[i] = '\n';
    // A posted event handled between two arrivals proves that the loop had its turn.
    int turns = 0;
    std::vector<int> turnOfChunk;
    std::function<void()> post = [&] {
        ++turns;
        if (Arrived() < flood.size())
            QMetaObject::invokeMethod(&m_Rig.m_Listener, post, Qt::QueuedConnection);
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

TEST_F(cQtSocketsTest, BytesThatArriveWithThePeersCloseAreAllDelivered) {
    const int peer = m_Rig.Connect();
    std::string bytes(50000, 'y');
    for (std::size_t i = 0; i < bytes.size(); i += 1000) bytes[i] = '\n';
    m_Rig.Peer(peer).write(bytes.data(), static_cast<qint64>(bytes.size()));
    m_Rig.Peer(peer).disconnectFromHost();
    ASSERT_TRUE(WaitUntil([&] { return m_Closed == 1; }));
    EXPECT_EQ(Arrived(), bytes.size());
    EXPECT_EQ(m_Errors, 0);
}

TEST_F(cQtSocketsTest, AStreamOfMoreThanOneMebibyteWithoutLineFeedIsAnError) {
    const int peer = m_Rig.Connect();
    const std::string line(cQtDataSocket::kMaxLine, 'z');
    m_Rig.Peer(peer).write(line.data(), static_cast<qint64>(line.size()));
    ASSERT_TRUE(WaitUntil([&] { return Arrived() == line.size(); }));
    EXPECT_EQ(m_Errors, 0);
    m_Rig.PeerSend(peer, "z");
    EXPECT_TRUE(WaitUntil([&] { return m_Errors == 1; }));
    m_Rig.PeerSend(peer, "more");
    EXPECT_EQ(m_Errors, 1);
    EXPECT_EQ(Arrived(), line.size());
}

TEST_F(cQtSocketsTest, LineFeedsLetAStreamGoOnForEver) {
    const int peer = m_Rig.Connect();
    const std::string half = std::string(700000, 'a') + "\n";
    for (int i = 0; i < 3; ++i) m_Rig.Peer(peer).write(half.data(), static_cast<qint64>(half.size()));
    ASSERT_TRUE(WaitUntil([&] { return Arrived() == 3 * half.size(); }));
    EXPECT_EQ(m_Errors, 0);
}

TEST_F(cQtSocketsTest, ANewConnectionBeginsANewLine) {
    const std::string line(cQtDataSocket::kMaxLine, 'z');
    for (int i = 0; i < 2; ++i) {
        m_Chunks.clear();
        const int peer = m_Rig.Connect();
        m_Rig.Peer(peer).write(line.data(), static_cast<qint64>(line.size()));
        ASSERT_TRUE(WaitUntil([&] { return Arrived() == line.size(); }));
    }
    EXPECT_EQ(m_Errors, 0);
}

// The toolkit tells a reset connection as one that the peer closed; the link treats the two alike.
TEST_F(cQtSocketsTest, AResetConnectionIsOneEvent) {
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

TEST_F(cQtSocketsTest, RepliesReachAPeerWhoseFurtherFramesWereNotReadAnyMore) {
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

TEST_F(cQtSocketsTest, AThousandConnectionsLeaveNothingBehind) {
    for (int i = 0; i < 1000; ++i) {
        QTcpSocket peer;
        peer.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_Rig.m_Listener.LocalPort()));
        m_Chunks.clear();
        peer.write("x\n");
        ASSERT_TRUE(WaitUntil([&] { return Arrived() == 2; })) << i;
    }
    m_Rig.m_Data.Close();
    RunEvents(50);
    EXPECT_EQ(m_Rig.m_Listener.findChildren<QTcpSocket*>().size(), 0);
    EXPECT_EQ(m_Errors, 0);
}

}  // namespace
}  // namespace vigrel::testing
