#include "adapters/linux/printer.h"

#include <algorithm>
#include <system_error>

#include "common/code_page.h"

namespace vigrel {
namespace {

constexpr std::string_view kTcp = "tcp:", kCups = "cups:";
constexpr const char* kRawPort = "9100";

bool IsNumber(std::string_view text) {
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// "HOST", "HOST:PORT", "[ADDRESS]", "[ADDRESS]:PORT".
PrinterPtr MakeTcpPrinterOf(std::string_view address) {
    std::string_view host = address, port = kRawPort;
    const std::size_t bracket = address.starts_with('[') ? address.find(']') : std::string_view::npos;
    const std::size_t colon = address.find(':', bracket == std::string_view::npos ? 0 : bracket);
    if (colon != std::string_view::npos) {
        host = address.substr(0, colon);
        port = address.substr(colon + 1);
    }
    if (bracket != std::string_view::npos) {
        if (host.size() != bracket + 1) return nullptr;
        host = host.substr(1, bracket - 1);
    }
    if (host.empty() || !IsNumber(port)) return nullptr;
    return MakeTcpPrinter(std::string(host), std::string(port));
}

}  // namespace

PrinterPtr MakePrinter(std::string_view entry) {
    if (entry.starts_with('/')) return MakePathPrinter(CodePageToUtf8(entry));
    if (entry.starts_with(kTcp)) return MakeTcpPrinterOf(entry.substr(kTcp.size()));
    if (entry.starts_with(kCups) && entry.size() > kCups.size()) {
        return MakeCupsPrinter(CodePageToUtf8(entry.substr(kCups.size())));
    }
    return nullptr;
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
