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
    m_LineBytes = 0;
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
    if (read == cTcpConnection::eRead::Bytes) return Take(bytes);
    m_Ended = true;
    const auto& notice = read == cTcpConnection::eRead::End ? OnClosed : OnError;
    if (notice) notice();
}

// Positions in the bytes that wait for a line's end are 16 bits wide where they are looked at. A line that is
// not too long by itself must not become so by what follows it: it is handed over alone.
void cQtDataSocket::Take(std::string_view bytes) {
    if (m_BeforeTheNext) *m_BeforeTheNext -= std::min(bytes.size(), *m_BeforeTheNext);
    const std::size_t lineFeed = bytes.find('\n');
    if (m_LineBytes + bytes.size() <= kLongestLine || lineFeed == std::string_view::npos) {
        return Deliver(bytes);
    }
    Deliver(bytes.substr(0, lineFeed + 1));
    const std::string_view rest = bytes.substr(lineFeed + 1);
    if (m_Connection && !m_Ended && !rest.empty()) Deliver(rest);
}

void cQtDataSocket::Deliver(std::string_view bytes) {
    CountLine(bytes);
    if (m_LineBytes > kMaxLine) {
        m_Ended = true;
        m_Connection->StopReading();
        if (OnError) OnError();
        return;
    }
    m_Received += bytes;
    if (OnDataArrival) OnDataArrival();
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

void cQtDataSocket::CountLine(std::string_view chunk) {
    const std::size_t lineFeed = chunk.rfind('\n');
    m_LineBytes =
        lineFeed == std::string_view::npos ? m_LineBytes + chunk.size() : chunk.size() - lineFeed - 1;
}

std::string cQtDataSocket::Fetch() {
    return std::exchange(m_Received, {});
}

void cQtDataSocket::Send(std::string_view bytes) {
    if (!m_Connection || !m_Connection->Send(bytes)) {
        throw cFailure(eFailure::Device, "Nothing can be sent: the peer takes no more");
    }
}

}  // namespace vigrel
