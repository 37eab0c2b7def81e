#include "receiver-check/posix_machine.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include "adapters/linux/linux_files.h"
#include "common/code_page.h"

namespace vigrel {
namespace {

class cSocket {
  public:
    explicit cSocket(int family) : m_Descriptor(socket(family, SOCK_STREAM | SOCK_CLOEXEC, 0)) {}
    ~cSocket() {
        if (m_Descriptor >= 0) close(m_Descriptor);
    }
    cSocket(const cSocket&) = delete;
    cSocket& operator=(const cSocket&) = delete;

    bool IsOpen() const { return m_Descriptor >= 0; }
    void Set(int level, int option, int value) const {
        setsockopt(m_Descriptor, level, option, &value, sizeof value);
    }
    // 0, or the number of the failure.
    template <class Address>
    int Bind(const Address& address) const {
        return bind(m_Descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 ? 0
                                                                                                    : errno;
    }

  private:
    int m_Descriptor;
};

// As the receiver listens: on every address, IPv6 with IPv4 where there is IPv6, and past connections that
// are being closed. A port that somebody listens on is refused all the same.
int TryBind(std::uint16_t port) {
    const cSocket both(AF_INET6);
    if (both.IsOpen()) {
        both.Set(IPPROTO_IPV6, IPV6_V6ONLY, 0);
        both.Set(SOL_SOCKET, SO_REUSEADDR, 1);
        sockaddr_in6 address{};
        address.sin6_family = AF_INET6;
        address.sin6_addr = in6addr_any;
        address.sin6_port = htons(port);
        const int failure = both.Bind(address);
        if (failure != EADDRNOTAVAIL && failure != EAFNOSUPPORT) return failure;
    }
    const cSocket old(AF_INET);
    if (!old.IsOpen()) return errno;
    old.Set(SOL_SOCKET, SO_REUSEADDR, 1);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    return old.Bind(address);
}

// Why the user has no such rights to a path.
std::optional<std::string> WhyNot(std::string_view path, int rights) {
    if (faccessat(AT_FDCWD, NativePath(path).c_str(), rights, AT_EACCESS) == 0) return std::nullopt;
    return Utf8ToCodePage(std::strerror(errno));
}

}  // namespace

cMachine::cPortTrial cPosixMachine::TryPort(std::int32_t port) const {
    const int failure = TryBind(static_cast<std::uint16_t>(port));
    if (failure == 0) return {ePort::Free, ""};
    if (failure == EADDRINUSE) return {ePort::InUse, ""};
    return {ePort::Failed, Utf8ToCodePage(std::strerror(failure))};
}

bool cPosixMachine::FolderExists(std::string_view path) const {
    std::error_code error;
    return std::filesystem::is_directory(NativePath(path), error);
}

std::optional<std::string> cPosixMachine::WhyNotWritable(std::string_view folder) const {
    return WhyNot(folder, W_OK | X_OK);
}

std::optional<std::string> cPosixMachine::WhyNotReadable(std::string_view folder) const {
    return WhyNot(folder, R_OK | X_OK);
}

}  // namespace vigrel
