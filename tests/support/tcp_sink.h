#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace vigrel::testing {

// A listening socket on a free port of this machine that nobody serves.
class cLoopbackPort {
  public:
    explicit cLoopbackPort(int backlog = 5) : m_Socket(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        // A small window, so that a peer that nobody reads is noticed soon.
        const int buffer = 1024;
        setsockopt(m_Socket, SOL_SOCKET, SO_RCVBUF, &buffer, sizeof buffer);
        if (bind(m_Socket, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
            listen(m_Socket, backlog) != 0) {
            throw std::runtime_error("no port on the loopback");
        }
        getsockname(m_Socket, reinterpret_cast<sockaddr*>(&address), &size);
        m_Port = ntohs(address.sin_port);
    }
    ~cLoopbackPort() { close(m_Socket); }
    cLoopbackPort(const cLoopbackPort&) = delete;
    cLoopbackPort& operator=(const cLoopbackPort&) = delete;

    int Socket() const { return m_Socket; }
    std::string Port() const { return std::to_string(m_Port); }

  private:
    int m_Socket, m_Port = 0;
};

// Whether somebody takes connections on a port of this machine.
inline bool CanConnect(const std::string& port) {
    const int connection = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(std::stoi(port)));
    const bool connected = connect(connection, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    close(connection);
    return connected;
}

// A printer of the network: keeps the bytes of each connection, one after the other.
class cTcpSink {
  public:
    // With hangUp a connection is ended by the sink after its first bytes.
    explicit cTcpSink(bool hangUp = false) : m_HangUp(hangUp), m_Thread([this] { Serve(); }) {}
    ~cTcpSink() {
        m_Ends = true;
        m_Thread.join();
    }

    std::string Port() const { return m_Listener.Port(); }
    // The bytes of each connection so far.
    std::vector<std::string> Connections() {
        const std::lock_guard lock(m_Mutex);
        return m_Received;
    }
    // Whether all of it has come, in the end.
    bool Gets(const std::vector<std::string>& connections, int milliseconds = 3000) {
        for (; milliseconds > 0; milliseconds -= 5) {
            if (Connections() == connections) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return false;
    }
    bool HasOpenConnection() const { return m_Open; }

  private:
    static bool Readable(int socket) {
        pollfd wait{socket, POLLIN, 0};
        return poll(&wait, 1, 10) > 0;
    }
    void Serve() {
        while (!m_Ends) {
            if (Readable(m_Listener.Socket())) Take(accept(m_Listener.Socket(), nullptr, nullptr));
        }
    }
    void Take(int connection) {
        m_Open = true;
        {
            const std::lock_guard lock(m_Mutex);
            m_Received.emplace_back();
        }
        while (!m_Ends) {
            if (!Readable(connection)) continue;
            char bytes[4096];
            const ssize_t received = read(connection, bytes, sizeof bytes);
            if (received <= 0) break;
            const std::lock_guard lock(m_Mutex);
            m_Received.back().append(bytes, static_cast<std::size_t>(received));
            if (m_HangUp) break;
        }
        close(connection);
        m_Open = false;
    }

    cLoopbackPort m_Listener;
    bool m_HangUp;
    std::atomic<bool> m_Ends = false, m_Open = false;
    std::mutex m_Mutex;
    std::vector<std::string> m_Received;
    std::thread m_Thread;
};

}  // namespace vigrel::testing
