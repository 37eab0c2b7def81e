#include "categories/colour_rules.h"
#include "definitions/receiver_types.h"
#include "receiver-check/checks.h"
#include "schedule/own_holidays.h"

namespace vigrel {
namespace {

// Reads a list as the programs do; a list that isn't there is no trouble of a receiver.
template <class List>
void CheckList(const cInstallation& installation, std::string_view name, cFindings& findings) {
    const std::string path = installation.Path() + std::string(name);
    if (installation.Files().Stamp(path).size < 0) return;
    for (const cLineProblem& problem : List().Load(installation.Files(), path)) {
        findings.Warning("list-line-skipped", {std::string(name), problem.line, "", "", ""},
                         problem.description.English() + "; the line is skipped");
    }
}

}  // namespace

void CheckLists(const cInstallation& installation, cFindings& findings) {
    CheckList<cColourRules>(installation, kColourRulesFile, findings);
    CheckList<cOwnHolidays>(installation, kOwnHolidaysFile, findings);
    CheckList<cReceiverTypes>(installation, kReceiverTypesFile, findings);
}

}  // namespace vigrel
