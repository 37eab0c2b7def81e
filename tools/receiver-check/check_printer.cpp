#include "common/code_page.h"
#include "common/numbers.h"
#include "common/text.h"
#include "receiver-check/checks.h"

namespace vigrel {
namespace {

bool IsWhole(std::string_view text, double low, double high) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos &&
           Val(text) >= low && Val(text) <= high;
}

// "/dev/usb/lp0", "tcp:HOST:PORT", "cups:QUEUE".
bool IsDevice(const std::string& device) {
    if (device.starts_with("/")) return device.size() > 1;
    const std::string kind = ToLower(device.substr(0, device.find(':') + 1));
    const std::string rest = device.substr(kind.size());
    if (kind == "cups:") return !rest.empty();
    const std::size_t colon = rest.rfind(':');
    return kind == "tcp:" && colon != std::string::npos && colon > 0 &&
           IsWhole(std::string_view(rest).substr(colon + 1), 1, 65535);
}

void CheckPorts(const cInstallation& installation, cFindings& findings) {
    const cIniDocument::cSection* ports = installation.Document().Section("PrinterPorts");
    if (ports == nullptr) return;
    for (const cIniDocument::cKey& key : ports->keys) {
        if (!key.first) continue;
        const cPlace place = cInstallation::PlaceOf(*ports, key);
        if (!IsWhole(key.name, 1, 32767) || key.name.starts_with('0')) {
            findings.Warning("printer-port-name", place, "a printer port is a number from 1");
        } else if (key.value.empty()) {
            findings.Remark("printer-port-empty", place,
                            "names no device; the port is looked for as without a line");
        } else if (!IsDevice(key.value)) {
            findings.Warning("printer-port-malformed", place,
                             "is none of /dev/..., tcp:HOST:PORT and cups:QUEUE");
        }
    }
}

}  // namespace

void CheckPrinter(const cInstallation& installation, cFindings& findings) {
    CheckPorts(installation, findings);
    if (installation.Value("Printer", "Format").empty()) return;
    const double port = installation.Number("Printer", "Port");
    const cPlace place = installation.PlaceOf("Printer", "Port");
    if (port <= 0) {
        findings.Warning("printing-off", place,
                         "nothing is printed, though Format is set: ports count from 1");
        return;
    }
    const std::string name = NumberText(RoundEven(port));
    if (!Trim(installation.Ini().GetIniString("PrinterPorts", name, "")).empty()) return;
    const std::string zeroBased = NumberText(RoundEven(port) - 1);
    findings.Remark("printer-port-unset", place,
                    "section PrinterPorts has no line for port " + name +
                        ": it is the first that is there of /dev/lp" + zeroBased + ", /dev/usb/lp" +
                        zeroBased + ", queue LPT" + name);
}

}  // namespace vigrel
