#include "adapters/qt/qt_data_socket.h"

#include <utility>

#include "adapters/qt/linger.h"
#include "adapters/qt/qt_listener.h"
#include "adapters/qt/qt_text.h"
#include "common/failure.h"

namespace vigrel {

cQtDataSocket::~cQtDataSocket() {
    if (m_Socket) m_Socket->disconnect();
}

void cQtDataSocket::Accept(std::int32_t requestId) {
    if (m_Socket) throw cFailure(eFailure::InvalidCall, "A connection is taken over by a closed socket only");
    m_Socket = m_Listener.TakeRequest(requestId);
    m_LineBytes = 0;
    m_Failed = false;
    QTcpSocket* socket = m_Socket.get();
    QObject::connect(socket, &QTcpSocket::readyRead, socket, [this] { Read(); });
    QObject::connect(socket, &QTcpSocket::errorOccurred, socket, [this](QAbstractSocket::SocketError error) {
        if (error != QAbstractSocket::RemoteHostClosedError) Fail();
    });
    QObject::connect(socket, &QTcpSocket::disconnected, socket, [this] {
        if (!m_Failed && OnClosed) OnClosed();
    });
}

void cQtDataSocket::Close() {
    m_Received.clear();
    if (!m_Socket) return;
    m_Socket->disconnect();
    CloseLingering(std::move(m_Socket));
}

void cQtDataSocket::Read() {
    if (m_Failed) return;
    const QByteArray chunk = m_Socket->read(kBytesPerTurn);
    const std::string_view bytes(chunk.constData(), static_cast<std::size_t>(chunk.size()));
    CountLine(bytes);
    if (m_LineBytes > kMaxLine) return Fail();
    m_Received += bytes;
    if (OnDataArrival) OnDataArrival();
}

void cQtDataSocket::CountLine(std::string_view chunk) {
    const std::size_t lineFeed = chunk.rfind('\n');
    m_LineBytes =
        lineFeed == std::string_view::npos ? m_LineBytes + chunk.size() : chunk.size() - lineFeed - 1;
}

void cQtDataSocket::Fail() {
    if (std::exchange(m_Failed, true)) return;
    if (OnError) OnError();
}

std::string cQtDataSocket::Fetch() {
    return std::exchange(m_Received, {});
}

void cQtDataSocket::Send(std::string_view bytes) {
    if (!m_Socket || m_Socket->state() != QAbstractSocket::ConnectedState) {
        throw cFailure(eFailure::Device, "Nothing can be sent: the socket is not connected");
    }
    if (m_Socket->write(bytes.data(), static_cast<qint64>(bytes.size())) < 0) {
        throw cFailure(eFailure::Device, "Nothing can be sent: " + FromQString(m_Socket->errorString()));
    }
    m_Socket->flush();
}

}  // namespace vigrel
