#include "receiver-check/check.h"

#include <algorithm>
#include <tuple>

#include "receiver-check/checks.h"

namespace vigrel {

cFindings CheckInstallation(const cFileReader& files, const std::string& applicationPath,
                            const cMachine* machine) {
    const cInstallation installation(files, applicationPath);
    cFindings findings;
    for (const auto check : {CheckFile, CheckKeys, CheckList, CheckCategories, CheckPopups, CheckTemplates,
                             CheckSenders, CheckPrinter, CheckLanguage, CheckLists, CheckAlarmFiles}) {
        check(installation, findings);
    }
    if (machine != nullptr) CheckMachine(installation, *machine, findings);
    // The configuration first, since most is about it.
    const auto order = [](const cFinding& finding) {
        return std::make_tuple(finding.place.file != kIniFile, finding.place.file, finding.place.line);
    };
    std::stable_sort(findings.m_All.begin(), findings.m_All.end(),
                     [&](const cFinding& a, const cFinding& b) { return order(a) < order(b); });
    return findings;
}

}  // namespace vigrel
