#include "adapters/linux/notify_socket.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <limits>

#include "adapters/linux/file_handle.h"
#include "common/numbers.h"
#include "common/printable.h"

namespace vigrel {
namespace {

// A manager that takes nothing for so long goes without the message; the station has other things to do.
constexpr timeval kPatience{1, 0};

std::string VariableText(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

int ReadAliveInterval() {
    constexpr double kPerMillisecond = 1000, kTimes = 3;
    const std::string process = VariableText("WATCHDOG_PID");
    if (!process.empty() && process != std::to_string(getpid())) return 0;
    const double interval = Val(VariableText("WATCHDOG_USEC")) / kPerMillisecond / kTimes;
    if (!(interval > 0)) return 0;
    return static_cast<int>(std::clamp(interval, 1.0, double{std::numeric_limits<int>::max()}));
}

// The length of the address; 0 for a name that is none.
socklen_t MakeAddress(const std::string& path, sockaddr_un& address) {
    if (path.size() < 2 || path.size() >= sizeof address.sun_path) return 0;
    if (path[0] != '/' && path[0] != '@') return 0;
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, path.size());
    if (path[0] == '@') address.sun_path[0] = '\0';
    return static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + path.size());
}

}  // namespace

cNotifySocket::cNotifySocket() : m_Path(VariableText("NOTIFY_SOCKET")) {
    if (!m_Path.empty()) m_AliveInterval = ReadAliveInterval();
}

void cNotifySocket::SetStatus(std::string_view line) {
    Send("STATUS=" + PrintablePath(line));
}

void cNotifySocket::Send(const std::string& message) const {
    sockaddr_un address{};
    const socklen_t size = MakeAddress(m_Path, address);
    if (size == 0) return;
    const cFileHandle descriptor(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    if (!descriptor) return;
    setsockopt(descriptor.Get(), SOL_SOCKET, SO_SNDTIMEO, &kPatience, sizeof kPatience);
    // Nobody to tell of a failure.
    [[maybe_unused]] const ssize_t sent =
        sendto(descriptor.Get(), message.data(), message.size(), MSG_NOSIGNAL,
               reinterpret_cast<const sockaddr*>(&address), size);
}

}  // namespace vigrel
