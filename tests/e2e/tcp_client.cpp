#include "e2e/tcp_client.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

namespace vigrel::testing {

cTcpClient::cTcpClient(int port) : m_Socket(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    m_Connected = connect(m_Socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

bool cTcpClient::TrySend(std::string_view bytes) const {
    while (!bytes.empty()) {
        const ssize_t count = send(m_Socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (count <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

void cTcpClient::Send(std::string_view bytes) const {
    ASSERT_TRUE(TrySend(bytes));
}

std::string cTcpClient::ReadSome() const {
    std::array<char, 4096> buffer;
    const ssize_t count = recv(m_Socket, buffer.data(), buffer.size(), 0);
    return {buffer.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
}

std::string cTcpClient::Read(std::size_t count, int patienceMilliseconds) const {
    SetPatience(patienceMilliseconds);
    std::string received;
    while (received.size() < count) {
        const std::string some = ReadSome();
        if (some.empty()) break;
        received += some;
    }
    return received;
}

std::string cTcpClient::ReadToTheEnd() const {
    return Read(std::numeric_limits<std::size_t>::max());
}

bool cTcpClient::IsEndedInSilence() const {
    SetPatience(10'000);
    char byte = 0;
    return recv(m_Socket, &byte, 1, 0) == 0;
}

void cTcpClient::EndSending() const {
    shutdown(m_Socket, SHUT_WR);
}

void cTcpClient::Leave() {
    if (m_Socket >= 0) close(m_Socket);
    m_Socket = -1;
}

void cTcpClient::Reset() {
    const linger atOnce{1, 0};
    setsockopt(m_Socket, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    Leave();
}

void cTcpClient::Vanish() {
    const int on = 1;
    setsockopt(m_Socket, IPPROTO_TCP, TCP_REPAIR, &on, sizeof on);
    Leave();
}

void cTcpClient::SetPatience(int milliseconds) const {
    const timeval patience{milliseconds / 1000, milliseconds % 1000 * 1000};
    setsockopt(m_Socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
}

}  // namespace vigrel::testing
