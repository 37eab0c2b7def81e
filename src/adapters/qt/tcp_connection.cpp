#include "adapters/qt/tcp_connection.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <utility>

namespace vigrel {
namespace {

bool IsTransient(int error) {
    return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

}  // namespace

// A notifier is often given up inside its own notice.
void cTcpConnection::cNotifierDeleter::operator()(QSocketNotifier* notifier) const {
    notifier->setEnabled(false);
    notifier->deleteLater();
}

cTcpConnection::cTcpConnection(cFileHandle descriptor)
    : m_Descriptor(std::move(descriptor)),
      m_Readable(new QSocketNotifier(m_Descriptor.Get(), QSocketNotifier::Read)),
      m_Writable(new QSocketNotifier(m_Descriptor.Get(), QSocketNotifier::Write)) {
    const int promptly = 1;
    setsockopt(m_Descriptor.Get(), IPPROTO_TCP, TCP_NODELAY, &promptly, sizeof promptly);
    m_Writable->setEnabled(false);
    QObject::connect(m_Writable.get(), &QSocketNotifier::activated, m_Writable.get(), [this] { Flush(); });
    QObject::connect(m_Readable.get(), &QSocketNotifier::activated, m_Readable.get(), [this] {
        const auto notice = OnReadable;  // outlives the connection
        if (notice) notice();
    });
}

cTcpConnection::eRead cTcpConnection::Read(std::string& bytes) {
    std::array<char, kBytesPerTurn> chunk;
    const ssize_t count = recv(m_Descriptor.Get(), chunk.data(), chunk.size(), 0);
    if (count > 0) {
        bytes.append(chunk.data(), static_cast<std::size_t>(count));
        m_Carried = true;
        return eRead::Bytes;
    }
    if (count < 0 && IsTransient(errno)) return eRead::Nothing;
    m_PeerEnded = true;
    m_Readable->setEnabled(false);
    return count == 0 ? eRead::End : eRead::Failed;
}

std::size_t cTcpConnection::Arrived() const {
    int bytes = 0;
    return ioctl(m_Descriptor.Get(), FIONREAD, &bytes) == 0 ? static_cast<std::size_t>(bytes) : 0;
}

void cTcpConnection::AwaitMore() const {
    constexpr std::chrono::microseconds kAwake{50};
    const auto end = std::chrono::steady_clock::now() + kAwake;
    pollfd asked{m_Descriptor.Get(), POLLIN, 0};
    // Without giving way in between: behind a yield whoever computes gets milliseconds, and woken is the
    // sender anyway.
    while (poll(&asked, 1, 0) == 0 && std::chrono::steady_clock::now() < end) continue;
}

bool cTcpConnection::PeerHasLeft() const {
    pollfd asked{m_Descriptor.Get(), POLLRDHUP, 0};
    return poll(&asked, 1, 0) > 0;
}

bool cTcpConnection::Send(std::string_view bytes) {
    if (m_Broken || m_Ending || m_Unsent.size() + bytes.size() > kMostUnsent) return false;
    m_Carried = true;
    m_Unsent += bytes;
    Flush();
    return !m_Broken;
}

void cTcpConnection::Flush() {
    while (!m_Unsent.empty() && !m_Broken) {
        const ssize_t count = send(m_Descriptor.Get(), m_Unsent.data(), m_Unsent.size(), MSG_NOSIGNAL);
        if (count < 0 && IsTransient(errno)) break;
        if (count < 0) {
            m_Broken = true;
            m_Unsent.clear();
        } else {
            m_Unsent.erase(0, static_cast<std::size_t>(count));
        }
    }
    m_Writable->setEnabled(!m_Unsent.empty());
    if (m_Ending && m_Unsent.empty()) shutdown(m_Descriptor.Get(), SHUT_WR);
}

void cTcpConnection::EndSending() {
    m_Ending = true;
    Flush();
}

}  // namespace vigrel
