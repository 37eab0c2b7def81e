#include <set>

#include "common/code_page.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/setting_keys.h"
#include "common/text.h"
#include "core/read_settings.h"
#include "receiver-check/checks.h"

namespace vigrel {
namespace {

constexpr double kLargestPort = 65535;
constexpr double kLongSound = 30;  // seconds

void CheckPort(const cInstallation& installation, const cMachine& machine, cFindings& findings) {
    const cPlace place = installation.PlaceOf("TCPIP", "Port");
    std::int32_t port = 0;
    // A number that doesn't fit was told of with the values.
    if (!SkipFailure([&] { port = ReadPort(installation.Ini()); })) return;
    const std::string address = ReadAddress(installation.Ini());
    const std::string name =
        "TCP port " + std::to_string(port) + (address.empty() ? "" : " of address " + address);
    if (port < 1 || port > kLargestPort) {
        findings.Error("port-out-of-range", place, name + " is none that senders could reach: 1 to 65535");
        return;
    }
    const cMachine::cPortTrial trial = machine.TryPort(address, port);
    if (trial.port == cMachine::ePort::InUse) {
        findings.Warning("port-in-use", place, name + " is in use (perhaps by the station itself)");
    } else if (trial.port == cMachine::ePort::Failed) {
        findings.Error("port-not-opened", place, name + " can't be opened: " + trial.reason);
    }
}

// A folder that is missing is made by the start, where the folder above lets it.
void CheckFolder(const cInstallation& installation, const cMachine& machine, const std::string& name,
                 eSeverity severity, const std::string& effect, cFindings& findings) {
    const std::string path = installation.Path() + name;
    if (!machine.FolderExists(path)) {
        if (machine.WhyNotWritable(installation.Path())) {
            findings.Add(severity, "folder-missing", {name, 0, "", "", ""},
                         "the folder is missing and can't be made: " + effect);
        }
    } else if (const auto reason = machine.WhyNotWritable(path)) {
        findings.Add(severity, "folder-not-writable", {name, 0, "", "", ""}, *reason + ": " + effect);
    }
}

// The printer that lines go to. What the port is without a line of its own is told of with the printing.
void CheckPrinterAnswers(const cInstallation& installation, const cMachine& machine, cFindings& findings) {
    const double port = installation.Number("Printer", "Port");
    if (installation.Value("Printer", "Format").empty() || port < 1) return;
    const std::string name = NumberText(RoundEven(port));
    const std::string device = Trim(installation.Ini().GetIniString("PrinterPorts", name, ""));
    if (device.empty()) return;
    const auto reason = machine.WhyNotPrinting(device);
    if (!reason) return;
    findings.Warning("printer-silent", installation.PlaceOf("PrinterPorts", name),
                     "the printer doesn't answer: " + *reason);
}

// Sounds that are there: whether they can be decoded.
void CheckSounds(const cInstallation& installation, const cMachine& machine, cFindings& findings) {
    std::set<std::string> told;
    const auto check = [&](const std::string& section, const cCategorySpecificSetting& setting) {
        const std::string& file = setting.m_EventSoundFile;
        if (!installation.Files().FileExists(file) || !told.insert(ToUpper(file)).second) return;
        const auto seconds = machine.SecondsOfSound(file);
        const cPlace place = installation.PlaceOf(section, "EventSoundFile");
        if (!seconds) {
            findings.Error("sound-not-decoded", place, file + " can't be decoded: it stays silent");
        } else if (*seconds > kLongSound) {
            findings.Remark("sound-long", place,
                            file + " plays for " + NumberText(RoundEven(*seconds)) + " s");
        }
    };
    check("General", installation.Categories().m_DefaultCategorySetting);
    for (const cCategorySpecificSetting& setting : installation.Categories().m_CategorySettings) {
        check(std::string(kCategorySectionPrefix) + setting.m_Category, setting);
    }
}

}  // namespace

void CheckMachine(const cInstallation& installation, const cMachine& machine, cFindings& findings) {
    CheckPort(installation, machine, findings);
    CheckPrinterAnswers(installation, machine, findings);
    CheckSounds(installation, machine, findings);
    CheckFolder(installation, machine, "Alarms", eSeverity::Error, "no alarm is kept over a restart",
                findings);
    CheckFolder(installation, machine, "LogFiles", eSeverity::Warning, "nothing is logged", findings);
    if (const auto reason = machine.WhyNotWritable(installation.Path())) {
        findings.Warning("folder-not-writable", {".", 0, "", "", ""},
                         *reason + ": neither language nor window and column sizes are kept");
    }
}

}  // namespace vigrel
