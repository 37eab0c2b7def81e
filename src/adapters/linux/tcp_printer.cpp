#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "adapters/linux/file_handle.h"
#include "adapters/linux/printer.h"

namespace vigrel {
namespace {

// What the kernel takes on its own before the printer has taken anything: little, so that a printer that is
// off line is noticed after a few lines.
constexpr int kSendBuffer = 4096;
// How long the kernel goes on trying to hand over what it has taken.
constexpr unsigned kGiveUpMilliseconds = 2000;

using Addresses = std::unique_ptr<addrinfo, void (*)(addrinfo*)>;

template <class Value>
void SetOption(int socket, int level, int option, Value value) {
    setsockopt(socket, level, option, &value, sizeof value);
}

cFileHandle MakeSocket(const addrinfo& address) {
    cFileHandle socket(::socket(address.ai_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    if (!socket) return socket;
    SetOption(socket.Get(), SOL_SOCKET, SO_SNDBUF, kSendBuffer);
    SetOption(socket.Get(), IPPROTO_TCP, TCP_NODELAY, 1);
    SetOption(socket.Get(), IPPROTO_TCP, TCP_USER_TIMEOUT, kGiveUpMilliseconds);
    return socket;
}

// Waits until the socket can be written. 0, or the number of the error.
int WaitForSocket(int socket, Deadline deadline) {
    pollfd wait{socket, POLLOUT, 0};
    if (poll(&wait, 1, MillisecondsLeft(deadline)) <= 0) return ETIMEDOUT;
    int error = 0;
    socklen_t size = sizeof error;
    getsockopt(socket, SOL_SOCKET, SO_ERROR, &error, &size);
    return error;
}

std::string TcpName(const std::string& host, const std::string& port) {
    const bool colons = host.find(':') != std::string::npos;
    return "tcp:" + (colons ? "[" + host + "]" : host) + ":" + port;
}

class cTcpPrinter : public cPrinter {
  public:
    cTcpPrinter(std::string host, std::string port)
        : m_Host(std::move(host)), m_Port(std::move(port)), m_Name(TcpName(m_Host, m_Port)) {}
    ~cTcpPrinter() override { Close(); }

    PrintProblem Print(std::string_view bytes, Deadline deadline) override {
        if (!StillConnected()) {
            Close();
            if (PrintProblem problem = Connect(deadline); !problem.empty()) return problem;
        }
        const int error = SendAll(bytes, deadline);
        if (error == 0) return {};
        Drop();
        return SystemProblem(m_Name, error);
    }
    void Rest() override { Close(); }

  private:
    // A printer that has hung up meanwhile says so before the next line is sent. What it reports is thrown
    // away.
    bool StillConnected() const {
        if (!m_Socket) return false;
        char answer[512];
        ssize_t received = 0;
        do {
            received = recv(m_Socket.Get(), answer, sizeof answer, MSG_DONTWAIT);
        } while (received > 0);
        return received < 0 && (errno == EAGAIN || errno == EINTR);
    }

    PrintProblem Connect(Deadline deadline) {
        addrinfo hints{};
        hints.ai_socktype = SOCK_STREAM;
        hints.ai_flags = AI_NUMERICSERV;
        addrinfo* found = nullptr;
        if (const int result = getaddrinfo(m_Host.c_str(), m_Port.c_str(), &hints, &found); result != 0) {
            return m_Name + ": " + gai_strerror(result);
        }
        const Addresses addresses(found, freeaddrinfo);
        int count = 0;
        for (const addrinfo* address = found; address != nullptr; address = address->ai_next) ++count;
        int error = ETIMEDOUT;
        // Each address gets its share of the time, so that a dead one doesn't use up that of the others.
        for (const addrinfo* address = found; address != nullptr; address = address->ai_next) {
            const auto share = std::chrono::milliseconds(MillisecondsLeft(deadline) / count--);
            error = ConnectTo(*address, std::chrono::steady_clock::now() + share);
            if (error == 0) return {};
        }
        return SystemProblem(m_Name, error);
    }

    int ConnectTo(const addrinfo& address, Deadline deadline) {
        cFileHandle socket = MakeSocket(address);
        if (!socket) return errno;
        if (connect(socket.Get(), address.ai_addr, address.ai_addrlen) != 0) {
            if (errno != EINPROGRESS) return errno;
            if (const int error = WaitForSocket(socket.Get(), deadline); error != 0) return error;
        }
        m_Socket = std::move(socket);
        return 0;
    }

    int SendAll(std::string_view bytes, Deadline deadline) {
        while (!bytes.empty()) {
            const ssize_t sent = send(m_Socket.Get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
            if (sent >= 0) {
                bytes.remove_prefix(static_cast<std::size_t>(sent));
            } else if (errno == EAGAIN) {
                if (const int error = WaitForSocket(m_Socket.Get(), deadline); error != 0) return error;
            } else if (errno != EINTR) {
                return errno;
            }
        }
        return 0;
    }

    // The kernel hands over what it has taken, in the background.
    void Close() {
        if (m_Socket) shutdown(m_Socket.Get(), SHUT_WR);
        m_Socket.Reset();
    }
    // What has failed is not to be printed later.
    void Drop() {
        SetOption(m_Socket.Get(), SOL_SOCKET, SO_LINGER, linger{1, 0});
        m_Socket.Reset();
    }

    std::string m_Host, m_Port, m_Name;
    cFileHandle m_Socket;
};

}  // namespace

PrinterPtr MakeTcpPrinter(std::string host, std::string port) {
    return std::make_unique<cTcpPrinter>(std::move(host), std::move(port));
}

}  // namespace vigrel
