#include "adapters/qt/qt_listener.h"

#include <netinet/in.h>
#include <sys/socket.h>

#include <cerrno>
#include <limits>

#include "adapters/linux/system_error_text.h"
#include "adapters/linux/tcp_port.h"
#include "common/failure.h"

namespace vigrel {
namespace {

// The machine can run out of descriptors or memory for a while.
constexpr int kAcceptAgainMilliseconds = 1000;

[[noreturn]] void FailListen(std::int32_t port, const std::string& reason,
                             eFailure number = eFailure::Device) {
    throw cFailure(number, "Port " + std::to_string(port) + " can't be listened on: " + reason);
}

// Whether the peer had gone before it was accepted, or nobody knocks any more; anything else will last.
bool IsPassing(int error) {
    return error == EAGAIN || error == EWOULDBLOCK || error == EINTR || error == ECONNABORTED ||
           error == EPROTO;
}

}  // namespace

cQtListener::cQtListener() {
    m_Again.setSingleShot(true);
    m_Again.callOnTimeout([this] { m_Notifier->setEnabled(true); });
}

void cQtListener::Listen() {
    if (m_Port < 0 || m_Port > std::numeric_limits<std::uint16_t>::max()) {
        FailListen(m_Port, "a port is a number from 0 to 65535");
    }
    cBoundPort bound = BindTcpPort(m_Address, static_cast<std::uint16_t>(m_Port));
    if (bound.failure == EADDRNOTAVAIL) FailListen(m_Port, bound.reason, eFailure::Unavailable);
    if (bound.failure != 0) FailListen(m_Port, bound.reason);
    // A port that two have bound is the one's who listens first.
    if (listen(bound.descriptor.Get(), SOMAXCONN) != 0) {
        FailListen(m_Port, SystemErrorText(errno));
    }
    m_Descriptor = std::move(bound.descriptor);
    m_Notifier = std::make_unique<QSocketNotifier>(m_Descriptor.Get(), QSocketNotifier::Read);
    QObject::connect(m_Notifier.get(), &QSocketNotifier::activated, m_Notifier.get(), [this] { Knock(); });
}

std::int32_t cQtListener::LocalPort() const {
    sockaddr_in6 address{};
    socklen_t size = sizeof address;
    if (getsockname(m_Descriptor.Get(), reinterpret_cast<sockaddr*>(&address), &size) != 0) return 0;
    return ntohs(address.sin6_port);  // where an IPv4 address has it too
}

void cQtListener::Knock() {
    if (HoldsBack && HoldsBack()) return;
    m_Pending = cFileHandle(accept4(m_Descriptor.Get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!m_Pending) {
        if (IsPassing(errno)) return;
        m_Notifier->setEnabled(false);
        return m_Again.start(kAcceptAgainMilliseconds);
    }
    m_LastRequestId = m_LastRequestId == std::numeric_limits<std::int32_t>::max() ? 1 : m_LastRequestId + 1;
    if (OnConnectionRequest) OnConnectionRequest(m_LastRequestId);
    m_Pending.Reset();
}

cFileHandle cQtListener::TakeRequest(std::int32_t requestId) {
    if (!m_Pending || requestId != m_LastRequestId) {
        throw cFailure(eFailure::InvalidCall, "No connection request " + std::to_string(requestId));
    }
    return std::move(m_Pending);
}

}  // namespace vigrel
