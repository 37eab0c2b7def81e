#include "receiver-check/posix_machine.h"

#include <cups/cups.h>
#include <fcntl.h>
#include <sndfile.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <memory>

#include "adapters/linux/native_path.h"
#include "adapters/linux/printer.h"
#include "adapters/linux/system_error_text.h"
#include "adapters/linux/tcp_port.h"
#include "common/code_page.h"

namespace vigrel {
namespace {

// How long a printer of the network may take to answer.
constexpr std::chrono::seconds kPatience{2};

// Why the user has no such rights to a path.
std::optional<std::string> WhyNot(std::string_view path, int rights) {
    if (faccessat(AT_FDCWD, NativePath(path).c_str(), rights, AT_EACCESS) == 0) return std::nullopt;
    return SystemErrorText(errno);
}

// Written to when a line is printed; a plain file is made then, a device is there before.
std::optional<std::string> WhyNotPath(const std::string& path) {
    const bool made = !path.starts_with("/dev/") && !std::filesystem::exists(NativePath(path));
    if (made) return WhyNot(std::filesystem::path(path).parent_path().string(), W_OK | X_OK);
    return WhyNot(path, W_OK);
}

std::optional<std::string> WhyNotQueue(const std::string& queue) {
    cups_dest_t* found = cupsGetNamedDest(CUPS_HTTP_DEFAULT, queue.c_str(), nullptr);
    if (found == nullptr) return "the print system has no queue " + queue;
    cupsFreeDests(1, found);
    return std::nullopt;
}

}  // namespace

// Only a connection to a printer of the network is made by what prints: a line without characters.
std::optional<std::string> cPosixMachine::WhyNotPrinting(std::string_view device) const {
    const std::string kind = ToLower(device.substr(0, 5));
    if (device.starts_with("/")) return WhyNotPath(std::string(device));
    if (kind == "cups:") return WhyNotQueue(std::string(device.substr(kind.size())));
    const PrinterPtr printer = MakePrinter(device);
    if (!printer) return std::nullopt;  // a malformed entry is told of with the section
    const PrintProblem problem = printer->Print("", std::chrono::steady_clock::now() + kPatience);
    return problem.empty() ? std::nullopt : std::optional(problem);
}

std::optional<double> cPosixMachine::SecondsOfSound(std::string_view path) const {
    SF_INFO info{};
    const std::unique_ptr<SNDFILE, int (*)(SNDFILE*)> file(sf_open(NativePath(path).c_str(), SFM_READ, &info),
                                                           sf_close);
    if (!file || info.samplerate <= 0 || info.channels <= 0 || info.frames <= 0) return std::nullopt;
    return static_cast<double>(info.frames) / info.samplerate;
}

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
