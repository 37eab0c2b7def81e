#include "adapters/qt/qt_listener.h"

#include <QNetworkProxy>
#include <QTimer>
#include <limits>

#include "adapters/qt/qt_text.h"
#include "common/failure.h"

namespace vigrel {
namespace {

// The machine can run out of descriptors or memory for a while; the toolkit then stops accepting for good.
constexpr int kAcceptAgainMilliseconds = 1000;

[[noreturn]] void FailListen(std::int32_t port, const std::string& reason) {
    throw cFailure(eFailure::Device, "Port " + std::to_string(port) + " can't be listened on: " + reason);
}

}  // namespace

cQtListener::cQtListener() {
    // A proxy of the desktop's settings is for going out; with one, listening would be refused.
    setProxy(QNetworkProxy::NoProxy);
    connect(this, &QTcpServer::acceptError, this,
            [this] { QTimer::singleShot(kAcceptAgainMilliseconds, this, [this] { resumeAccepting(); }); });
}

cQtListener::~cQtListener() = default;

void cQtListener::Listen() {
    if (m_Port < 0 || m_Port > std::numeric_limits<quint16>::max()) {
        FailListen(m_Port, "a port is a number from 0 to 65535");
    }
    if (!listen(QHostAddress::Any, static_cast<quint16>(m_Port))) {
        FailListen(m_Port, FromQString(errorString()));
    }
}

void cQtListener::incomingConnection(qintptr descriptor) {
    SocketPtr socket = MakeSocket(descriptor);
    if (!socket) return;
    const std::int32_t id = m_LastRequestId =
        m_LastRequestId == std::numeric_limits<std::int32_t>::max() ? 1 : m_LastRequestId + 1;
    m_Pending[id] = std::move(socket);
    if (OnConnectionRequest) OnConnectionRequest(id);
    m_Pending.erase(id);
}

SocketPtr cQtListener::TakeRequest(std::int32_t requestId) {
    const auto found = m_Pending.find(requestId);
    if (found == m_Pending.end()) {
        throw cFailure(eFailure::InvalidCall, "No connection request " + std::to_string(requestId));
    }
    SocketPtr socket = std::move(found->second);
    m_Pending.erase(found);
    return socket;
}

}  // namespace vigrel
