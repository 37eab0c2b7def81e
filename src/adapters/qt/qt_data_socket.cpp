#include "adapters/qt/qt_data_socket.h"

#include <algorithm>
#include <utility>

#include "adapters/qt/qt_listener.h"
#include "common/failure.h"

namespace vigrel {

void cQtDataSocket::Accept(std::int32_t requestId) {
    if (m_Connection) {
        throw cFailure(eFailure::InvalidCall, "A connection is taken over by a closed socket only");
    }
    m_Connection = std::make_unique<cTcpConnection>(m_Listener.TakeRequest(requestId));
    m_Connection->OnReadable = [this] { ReadTurn(); };
    m_LineBytes = 0;
    m_Ended = false;
}

void cQtDataSocket::Close() {
    m_Received.clear();
    if (m_Connection) m_Lingering.Add(std::move(m_Connection));
}

bool cQtDataSocket::ReadTurn() {
    if (!m_Connection || m_Ended) return false;
    std::string bytes;
    const auto read = m_Connection->Read(bytes);
    if (read == cTcpConnection::eRead::Nothing) return false;
    if (read == cTcpConnection::eRead::Bytes) {
        Take(bytes);
        return true;
    }
    m_Ended = true;
    const auto& notice = read == cTcpConnection::eRead::End ? OnClosed : OnError;
    if (notice) notice();
    return false;
}

void cQtDataSocket::Take(const std::string& bytes) {
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

void cQtDataSocket::DeliverArrived() {
    if (!m_Connection) return;
    const std::size_t arrived = std::min(m_Connection->Arrived(), kMostAtOnce);
    for (std::size_t read = 0; read < arrived && ReadTurn();) read += cTcpConnection::kBytesPerTurn;
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
