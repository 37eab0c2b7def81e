#include "adapters/linux/printer.h"

#include <algorithm>
#include <system_error>

#include "common/code_page.h"
#include "common/numbers.h"

namespace vigrel {
namespace {

constexpr std::string_view kTcp = "tcp:", kCups = "cups:";
constexpr int kLastPort = 65535;

bool IsPort(const std::string& text) {
    const bool digits = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
    return digits && Val(text) >= 1 && Val(text) <= kLastPort;
}

// "HOST:PORT", "[ADDRESS]:PORT".
PrinterPtr MakeTcpPrinterOf(const std::string& address) {
    const std::size_t colon = address.rfind(':');
    if (colon == std::string::npos) return nullptr;
    std::string host = address.substr(0, colon);
    if (host.starts_with('[') && host.ends_with(']')) host = host.substr(1, host.size() - 2);
    const std::string port = address.substr(colon + 1);
    return host.empty() || !IsPort(port) ? nullptr : MakeTcpPrinter(host, port);
}

}  // namespace

PrinterPtr MakePrinter(std::string_view entry) {
    const std::string device = CodePageToUtf8(entry);
    if (device.starts_with('/')) return MakePathPrinter(device);
    const std::string kind = ToLower(std::string_view(device).substr(0, device.find(':') + 1));
    const std::string rest = device.substr(kind.size());
    if (kind == kTcp) return MakeTcpPrinterOf(rest);
    return kind == kCups && !rest.empty() ? MakeCupsPrinter(rest) : nullptr;
}

int MillisecondsLeft(Deadline deadline) {
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    return static_cast<int>(std::max<std::chrono::milliseconds::rep>(left.count(), 0));
}

PrintProblem SystemProblem(const std::string& subject, int errorNumber) {
    return subject + ": " + std::generic_category().message(errorNumber);
}

}  // namespace vigrel
