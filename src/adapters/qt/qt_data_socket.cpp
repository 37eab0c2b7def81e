#include "adapters/qt/qt_data_socket.h"

#include <algorithm>
#include <utility>

#include "adapters/qt/qt_listener.h"
#include "common/failure.h"

namespace vigrel {

cQtDataSocket::cQtDataSocket(cQtListener& listener) : m_Listener(listener) {
    m_Listener.HoldsBack = [this] { return HoldsBackTheNext(); };
}

cQtDataSocket::~cQtDataSocket() {
    m_Listener.HoldsBack = nullptr;
}

void cQtDataSocket::Accept(std::int32_t requestId) {
    if (m_Connection) {
        throw cFailure(eFailure::InvalidCall, "A connection is taken over by a closed socket only");
    }
    m_Connection = std::make_unique<cTcpConnection>(m_Listener.TakeRequest(requestId));
    m_Connection->OnReadable = [this] { ReadTurn(); };
    m_Ended = false;
    m_BeforeTheNext.reset();
}

void cQtDataSocket::Close() {
    m_Received.clear();
    if (m_Connection) m_Lingering.Add(std::move(m_Connection));
}

void cQtDataSocket::ReadTurn() {
    if (!m_Connection || m_Ended) return;
    std::string bytes;
    const auto read = m_Connection->Read(bytes);
    if (read == cTcpConnection::eRead::Nothing) return;
    if (read == cTcpConnection::eRead::Bytes) return Deliver(bytes);
    m_Ended = true;
    const auto& notice = read == cTcpConnection::eRead::End ? OnClosed : OnError;
    if (notice) notice();
}

void cQtDataSocket::Deliver(std::string_view bytes) {
    if (m_BeforeTheNext) *m_BeforeTheNext -= std::min(bytes.size(), *m_BeforeTheNext);
    m_Received += bytes;
    if (OnDataArrival) OnDataArrival();
    // Who was answered sends its next alarm at once, if it has one.
    if (std::exchange(m_Answered, false) && m_Connection) m_Connection->AwaitMore();
}

// The event loop reads, turn by turn, so that windows and timers get theirs. A peer that stays, and goes on
// sending, holds nobody back for long.
bool cQtDataSocket::HoldsBackTheNext() {
    if (m_Connection && !m_Ended) {
        const std::size_t arrived = m_Connection->Arrived();
        if (!m_BeforeTheNext) m_BeforeTheNext = arrived + kMostOnItsWay;
        if (arrived > 0 && *m_BeforeTheNext > 0) return true;
        if (m_Connection->PeerHasLeft()) return true;
    }
    m_BeforeTheNext.reset();
    return false;
}

std::string cQtDataSocket::Fetch() {
    return std::exchange(m_Received, {});
}

void cQtDataSocket::Send(std::string_view bytes) {
    if (!m_Connection || !m_Connection->Send(bytes)) {
        throw cFailure(eFailure::Device, "Nothing can be sent: the peer takes no more");
    }
    m_Answered = true;
}

}  // namespace vigrel
