#include "receiver-check/posix_machine.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include "adapters/linux/linux_files.h"
#include "adapters/linux/tcp_port.h"
#include "common/code_page.h"

namespace vigrel {
namespace {

// Why the user has no such rights to a path.
std::optional<std::string> WhyNot(std::string_view path, int rights) {
    if (faccessat(AT_FDCWD, NativePath(path).c_str(), rights, AT_EACCESS) == 0) return std::nullopt;
    return Utf8ToCodePage(std::strerror(errno));
}

}  // namespace

cMachine::cPortTrial cPosixMachine::TryPort(const std::string& address, std::int32_t port) const {
    const cBoundPort bound = BindTcpPort(address, static_cast<std::uint16_t>(port));
    if (bound.failure == 0) return {ePort::Free, ""};
    if (bound.failure == EADDRINUSE) return {ePort::InUse, ""};
    return {ePort::Failed, bound.reason};
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
