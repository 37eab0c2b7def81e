#include "adapters/linux/tcp_port.h"

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cerrno>
#include <memory>

#include "adapters/linux/system_error_text.h"

namespace vigrel {
namespace {

cBoundPort Failed(int failure) {
    return {cFileHandle(), failure, SystemErrorText(failure)};
}

void Set(int descriptor, int level, int option, int value) {
    setsockopt(descriptor, level, option, &value, sizeof value);
}

cBoundPort Bind(const sockaddr* address, socklen_t size) {
    const int family = address->sa_family;
    cFileHandle descriptor(socket(family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!descriptor) return Failed(errno);
    if (family == AF_INET6) Set(descriptor.Get(), IPPROTO_IPV6, IPV6_V6ONLY, 0);
    Set(descriptor.Get(), SOL_SOCKET, SO_REUSEADDR, 1);
    if (bind(descriptor.Get(), address, size) != 0) return Failed(errno);
    return {std::move(descriptor), 0, ""};
}

// Whether it is the number of an address at a device of the network that the machine doesn't have now.
bool IsOfMissingDevice(const std::string& address) {
    const std::size_t device = address.find('%');
    in6_addr number{};
    return device != std::string::npos &&
           inet_pton(AF_INET6, address.substr(0, device).c_str(), &number) == 1;
}

cBoundPort BindAll(std::uint16_t port) {
    sockaddr_in6 both{};
    both.sin6_family = AF_INET6;
    both.sin6_addr = in6addr_any;
    both.sin6_port = htons(port);
    cBoundPort bound = Bind(reinterpret_cast<const sockaddr*>(&both), sizeof both);
    if (bound.failure != EADDRNOTAVAIL && bound.failure != EAFNOSUPPORT) return bound;
    sockaddr_in old{};
    old.sin_family = AF_INET;
    old.sin_port = htons(port);
    return Bind(reinterpret_cast<const sockaddr*>(&old), sizeof old);
}

}  // namespace

cBoundPort BindTcpPort(const std::string& address, std::uint16_t port) {
    if (address.empty()) return BindAll(port);
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV;
    addrinfo* found = nullptr;
    if (getaddrinfo(address.c_str(), std::to_string(port).c_str(), &hints, &found) != 0) {
        if (IsOfMissingDevice(address)) return Failed(EADDRNOTAVAIL);
        return {cFileHandle(), EINVAL, address + " is not the number of an address"};
    }
    const std::unique_ptr<addrinfo, void (*)(addrinfo*)> addresses(found, freeaddrinfo);
    return Bind(found->ai_addr, found->ai_addrlen);
}

}  // namespace vigrel
