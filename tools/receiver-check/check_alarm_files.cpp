#include <set>
#include <string>

#include "common/code_page.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/numbers.h"
#include "common/text.h"
#include "receiver-check/checks.h"
#include "vigrel-inspect/inspect.h"

namespace vigrel {
namespace {

constexpr std::string_view kFolder = "Alarms\\";

cPlace PlaceOf(const std::string& name) {
    return {std::string(kFolder) + name, 0, "", "", ""};
}

// Whether the receiver reads a file of this name: "A", seven characters that are a number, ".alm".
bool IsAlarmName(const std::string& name) {
    return name.size() == 12 && ToUpper(name[0]) == 'A' && EqualsNoCase(name.substr(8), ".alm") &&
           IsNumeric(name.substr(1, 7));
}

void CheckAlarm(const cInstallation& installation, const std::string& name, cFindings& findings) {
    std::string content;
    const auto failure = CatchFailure(
        [&] { content = installation.Files().ReadFile(installation.Path() + std::string(kFolder) + name); });
    if (failure) {
        findings.Error("alarm-unreadable", PlaceOf(name),
                       std::string(failure->what()) + ": the start ends with this message");
        return;
    }
    const std::vector<cProblem> problems = Inspect(eFileKind::Alarm, name, content).problems;
    if (problems.empty()) return;
    const cProblem& first = problems.front();
    const std::string more =
        problems.size() > 1 ? " (and " + std::to_string(problems.size() - 1) + " more)" : "";
    findings.Warning("alarm-damaged", PlaceOf(name),
                     "byte " + std::to_string(first.offset) +
                         (first.field.empty() ? "" : ", " + first.field) + ": " + first.description + more);
}

void CheckStranger(const std::string& name, bool isLeftover, cFindings& findings) {
    if (isLeftover) {
        findings.Remark("leftover", PlaceOf(name), "was left by a crash; the next start removes it");
        return;
    }
    const bool alarm = ToUpper(name).ends_with(".ALM");
    findings.Add(
        alarm ? eSeverity::Warning : eSeverity::Remark, "not-an-alarm", PlaceOf(name),
        alarm ? "is not read: an alarm's name is A, seven digits, .alm" : "is no file of the station");
}

// What is left out at the start.
std::set<std::string> CheckUnreadable(const cInstallation& installation, cFindings& findings) {
    std::set<std::string> names;
    const auto listing = installation.Files().List(installation.Path() + std::string(kFolder), "*.alm");
    if (!listing.problem.empty()) {
        findings.Error("alarms-unreadable", PlaceOf(""),
                       listing.problem + ": the station starts without its stored alarms");
    }
    for (const auto& [name, reason] : listing.unreadable) {
        if (!IsAlarmName(name)) continue;
        findings.Error("alarm-unreadable", PlaceOf(name), reason + ": the start leaves it out");
        names.insert(name);
    }
    return names;
}

}  // namespace

void CheckAlarmFiles(const cInstallation& installation, cFindings& findings) {
    const std::set<std::string> unreadable = CheckUnreadable(installation, findings);
    const std::string folder = installation.Path() + std::string(kFolder);
    const auto temporaries = installation.Files().ListFiles(folder, kTemporaryMask);
    const std::set<std::string> leftovers(temporaries.begin(), temporaries.end());
    double alarms = 0;
    for (const std::string& name : installation.Files().ListFiles(folder, "*")) {
        if (unreadable.contains(name)) continue;
        if (IsAlarmName(name)) {
            CheckAlarm(installation, name, findings);
            ++alarms;
        } else {
            CheckStranger(name, leftovers.contains(name), findings);
        }
    }
    const double most = installation.Number("General", "MaxEvents");
    if (most <= 0 || alarms <= most) return;
    findings.Remark("more-than-max-events", installation.PlaceOf("General", "MaxEvents"),
                    NumberText(alarms) + " alarms are stored: the next start removes the oldest " +
                        NumberText(alarms - most));
}

}  // namespace vigrel
