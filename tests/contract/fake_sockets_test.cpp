#include "support/fake_sockets.h"

#include "contract/socket_contract.h"

namespace vigrel::testing {
namespace {

// The fakes under the suite: a peer is known by its request id.
class cFakeSocketRig {
  public:
    cFakeSocketRig() { m_Listener.Listen(); }
    cListener& Listener() { return m_Listener; }
    cDataSocket& Data() { return m_Data; }
    int Connect() {
        const int peer = ++m_LastPeer;
        m_Listener.Knock(peer);
        return peer;
    }
    bool IsPeer(int peer) const { return m_Data.State() != 0 && m_Data.m_RequestId == peer; }
    void PeerSend(int peer, std::string_view bytes) {
        if (IsPeer(peer)) m_Data.Arrive(bytes);
    }
    void PeerClose(int peer) {
        if (IsPeer(peer)) m_Data.PeerCloses();
    }
    std::string PeerReceived(int) { return m_Data.TakeSent(); }
    bool PeerSeesEnd(int peer) { return !IsPeer(peer); }

  private:
    cFakeListener m_Listener;
    cFakeDataSocket m_Data{m_Listener};
    int m_LastPeer = 0;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, SocketContract, cFakeSocketRig);

}  // namespace
}  // namespace vigrel::testing
