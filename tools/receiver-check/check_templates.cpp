#include "common/setting_keys.h"
#include "receiver-check/checks.h"
#include "receiver-check/template_slips.h"

namespace vigrel {
namespace {

void CheckTemplate(const cInstallation& installation, const std::string& section, const std::string& key,
                   cFindings& findings) {
    const cPlace place = installation.PlaceOf(section, key);
    for (const cTemplateSlip& slip : TemplateSlips(place.value)) {
        findings.Warning(slip.name, place, slip.message);
    }
}

}  // namespace

void CheckTemplates(const cInstallation& installation, cFindings& findings) {
    CheckTemplate(installation, "General", "EventPopupFormat", findings);
    CheckTemplate(installation, "Printer", "Format", findings);
    for (const cIniDocument::cSection& section : installation.Document().m_Sections) {
        if (!section.first || !IsCategorySection(section.name)) continue;
        CheckTemplate(installation, section.name, "EventPopupFormat", findings);
    }
}

}  // namespace vigrel
