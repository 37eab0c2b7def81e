#include "e2e/definitions/session_manager.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <utility>

namespace vigrel::testing {
namespace {

constexpr const char* kVariable = "SESSION_MANAGER";
// Of the messages that carry those of a protocol, and of ours, the session's.
constexpr std::uint8_t kCarrier = 0, kSession = 1;
constexpr std::uint8_t kByteOrder = 1, kConnectionSetup = 2, kConnectionReply = 6, kProtocolSetup = 7,
                       kProtocolReply = 8;
// Vendor "T", release "1": each with its length, filled up to four bytes.
const std::string kWhoItIs("\x01\x00T\x00\x01\x00\x31\x00", 8);
const std::string kNameOfProgram("\x01\x00\x00\x00\x31\x00\x00\x00", 8);

bool Readable(int socket) {
    constexpr int kPatience = 20'000;  // milliseconds
    pollfd wait{socket, POLLIN, 0};
    return poll(&wait, 1, kPatience) > 0;
}

bool ReadAll(int socket, char* bytes, std::size_t size) {
    for (std::size_t done = 0; done < size;) {
        const ssize_t count = Readable(socket) ? read(socket, bytes + done, size - done) : -1;
        if (count <= 0) return false;
        done += static_cast<std::size_t>(count);
    }
    return true;
}

}  // namespace

cSessionManager::cSessionManager(const std::string& path)
    : m_Listener(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    EXPECT_EQ(bind(m_Listener, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0) << path;
    EXPECT_EQ(listen(m_Listener, 1), 0);
    setenv(kVariable, ("local/localhost:" + path).c_str(), 1);
    m_Greeting = std::async(std::launch::async, [this] { Greet(); });
}

cSessionManager::~cSessionManager() {
    m_Greeting.wait();
    unsetenv(kVariable);
    close(m_Connection);
    close(m_Listener);
}

// Agrees to all that the program says of itself.
void cSessionManager::Greet() {
    if (!Readable(m_Listener)) return;
    m_Connection = accept4(m_Listener, nullptr, nullptr, SOCK_CLOEXEC);
    constexpr std::uint8_t kLowByteFirst = 0;
    SendFrame(kCarrier, kByteOrder, kLowByteFirst, "");
    while (const auto came = Read()) {
        if (came->protocol != kCarrier) {
            return Send(eMessage::RegisterClientReply, kNameOfProgram);
        }
        if (came->message == kConnectionSetup) SendFrame(kCarrier, kConnectionReply, 0, kWhoItIs);
        if (came->message == kProtocolSetup) SendFrame(kCarrier, kProtocolReply, 0, kWhoItIs);
    }
}

void cSessionManager::SendFrame(std::uint8_t protocol, std::uint8_t message, std::uint8_t data,
                                const std::string& body) const {
    std::string frame{static_cast<char>(protocol), static_cast<char>(message), static_cast<char>(data)};
    // The number of the protocol stands behind the choice of its version.
    frame += static_cast<char>(message == kProtocolReply && protocol == kCarrier ? kSession : 0);
    frame += static_cast<char>(body.size() / 8);
    frame += std::string(3, '\0') + body;
    EXPECT_EQ(::send(m_Connection, frame.data(), frame.size(), MSG_NOSIGNAL),
              static_cast<ssize_t>(frame.size()));
}

void cSessionManager::Send(eMessage message, const std::string& body) const {
    SendFrame(kSession, static_cast<std::uint8_t>(message), 0, body);
}

std::optional<cSessionManager::cMessage> cSessionManager::Read() const {
    std::array<unsigned char, 8> head{};
    if (!ReadAll(m_Connection, reinterpret_cast<char*>(head.data()), head.size())) return std::nullopt;
    const std::size_t units = head[4] + head[5] * 256U + head[6] * 65536U;
    std::string body(units * 8, '\0');
    if (!ReadAll(m_Connection, body.data(), body.size())) return std::nullopt;
    return cMessage{head[0], head[1], head[2], std::move(body)};
}

std::optional<bool> cSessionManager::Await(eMessage message) {
    m_Greeting.wait();
    while (const auto came = Read()) {
        const bool isIt = came->protocol != kCarrier && came->message == static_cast<std::uint8_t>(message);
        if (isIt) return came->data != 0;
    }
    return std::nullopt;
}

}  // namespace vigrel::testing
