#include "vigrel-send/connection.h"

#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <memory>

namespace vigrel::send {
namespace {

constexpr std::size_t kReplySize = 5;

int Connect(const addrinfo& address) {
    const int descriptor = socket(address.ai_family, address.ai_socktype | SOCK_CLOEXEC, address.ai_protocol);
    if (descriptor < 0) return -1;
    if (connect(descriptor, address.ai_addr, address.ai_addrlen) == 0) return descriptor;
    const int error = errno;
    close(descriptor);
    errno = error;
    return -1;
}

}  // namespace

void cConnection::Fail(const std::string& what) const {
    throw cConnectionError(m_Peer + ": " + what);
}

cConnection::cConnection(const std::string& host, const std::string& port, double timeoutSeconds)
    : m_Peer(host + " port " + port), m_Timeout(static_cast<int>(std::ceil(timeoutSeconds * 1000))) {
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    const int error = getaddrinfo(host.c_str(), port.c_str(), &hints, &found);
    if (error != 0) Fail(gai_strerror(error));
    const std::unique_ptr<addrinfo, void (*)(addrinfo*)> addresses(found, freeaddrinfo);
    for (const addrinfo* address = found; address != nullptr && m_Socket < 0; address = address->ai_next) {
        m_Socket = Connect(*address);
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
        if (count < 0) Fail(std::strerror(errno));
        sent += static_cast<std::size_t>(count);
    }
}

std::string cConnection::ReadReply() {
    while (m_Received.size() < kReplySize) {
        pollfd wait{m_Socket, POLLIN, 0};
        const int ready = poll(&wait, 1, m_Timeout);
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
