#include "vigrel-send/connection.h"

#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <cstring>
#include <memory>

namespace vigrel::send {
namespace {

using Clock = std::chrono::steady_clock;

using std::chrono::milliseconds;

// Neither connecting nor sending waits longer, for a peer that says nothing or takes nothing.
void LimitWaits(int descriptor, milliseconds longest) {
    timeval wait{};
    wait.tv_sec = longest.count() / 1000;
    wait.tv_usec = longest.count() % 1000 * 1000;
    setsockopt(descriptor, SOL_SOCKET, SO_SNDTIMEO, &wait, sizeof wait);
}

int Connect(const addrinfo& address, milliseconds longest) {
    const int descriptor = socket(address.ai_family, address.ai_socktype | SOCK_CLOEXEC, address.ai_protocol);
    if (descriptor < 0) return -1;
    LimitWaits(descriptor, longest);
    if (connect(descriptor, address.ai_addr, address.ai_addrlen) == 0) return descriptor;
    const int error = errno == EINPROGRESS ? ETIMEDOUT : errno;
    close(descriptor);
    errno = error;
    return -1;
}

}  // namespace

void cConnection::Fail(const std::string& what) const {
    throw cConnectionError(m_Peer + ": " + what);
}

cConnection::cConnection(const std::string& host, const std::string& port, double timeoutSeconds)
    : m_Peer(host + " port " + port), m_Timeout(std::llround(std::ceil(timeoutSeconds * 1000))) {
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    const int error = getaddrinfo(host.c_str(), port.c_str(), &hints, &found);
    if (error != 0) Fail(gai_strerror(error));
    const std::unique_ptr<addrinfo, void (*)(addrinfo*)> addresses(found, freeaddrinfo);
    for (const addrinfo* address = found; address != nullptr && m_Socket < 0; address = address->ai_next) {
        m_Socket = Connect(*address, m_Timeout);
    }
    if (m_Socket < 0) Fail(std::strerror(errno));
    const int on = 1;
    setsockopt(m_Socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

cConnection::~cConnection() {
    if (m_Socket >= 0) close(m_Socket);
}

void cConnection::Send(const std::string& bytes) {
    std::size_t sent = 0;
    while (sent < bytes.size()) {
        const ssize_t count = ::send(m_Socket, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) Fail(errno == EAGAIN ? "takes nothing" : std::strerror(errno));
        sent += static_cast<std::size_t>(count);
    }
}

std::string cConnection::ReadReply() {
    const Clock::time_point end = Clock::now() + m_Timeout;
    while (m_Received.size() < kReplySize) {
        const auto left = std::chrono::ceil<milliseconds>(end - Clock::now());
        pollfd wait{m_Socket, POLLIN, 0};
        const int ready = poll(&wait, 1, std::max(static_cast<int>(left.count()), 0));
        if (ready < 0 && errno == EINTR) continue;
        if (ready <= 0) break;
        std::array<char, 4096> buffer;
        const ssize_t count = recv(m_Socket, buffer.data(), buffer.size(), 0);
        if (count <= 0) break;
        m_Received.append(buffer.data(), static_cast<std::size_t>(count));
    }
    std::string reply = m_Received.substr(0, kReplySize);
    m_Received.erase(0, reply.size());
    return reply;
}

}  // namespace vigrel::send
