#include <algorithm>
#include <array>

#include "common/code_page.h"
#include "common/setting_keys.h"
#include "common/text.h"
#include "events/alarm_list_view.h"
#include "receiver-check/checks.h"
#include "receiver-check/names.h"
#include "receiver-check/values.h"

namespace vigrel {
namespace {

// Their keys are the installer's.
constexpr std::array<std::string_view, 3> kFreeSections{"Senders", "CategoryTranslations", "PrinterPorts"};

bool IsFreeSection(std::string_view section) {
    return std::any_of(kFreeSections.begin(), kFreeSections.end(),
                       [&](std::string_view free) { return EqualsNoCase(free, section); });
}

std::vector<std::string> KnownSections() {
    std::vector<std::string> sections(kFreeSections.begin(), kFreeSections.end());
    for (const cSettingKey& key : SettingKeys()) {
        if (std::find(sections.begin(), sections.end(), key.section) == sections.end())
            sections.push_back(key.section);
    }
    return sections;
}

class cKeyCheck {
  public:
    cKeyCheck(const cInstallation& installation, cFindings& findings)
        : m_Installation(installation),
          m_Findings(findings),
          m_Columns(SplitAt(installation.Value("General", "Columns"), ',')) {}

    void Run() {
        for (const cIniDocument::cSection& section : m_Installation.Document().m_Sections) {
            // What is wrong with a section that nobody reads doesn't matter.
            if (section.first) Section(section);
        }
    }

  private:
    void Section(const cIniDocument::cSection& section) {
        if (IsFreeSection(section.name)) return Lengths(section);
        const bool known = IsCategorySection(section.name) || IsColumn(section.name) ||
                           Contains(m_KnownSections, section.name);
        if (!known) return UnknownSection(section);
        Lengths(section);
        for (const cIniDocument::cKey& key : section.keys) {
            if (key.first) Key(section, key);
        }
    }

    static bool Contains(const std::vector<std::string>& names, std::string_view name) {
        return std::any_of(names.begin(), names.end(),
                           [&](const std::string& known) { return EqualsNoCase(known, name); });
    }
    static bool IsCategoryKey(std::string_view name) {
        return FindSettingKey(kCategorySectionPrefix, name) != nullptr;
    }
    bool IsColumn(std::string_view section) const { return !section.empty() && Contains(m_Columns, section); }

    void UnknownSection(const cIniDocument::cSection& section) {
        std::string message = "nobody reads a section of this name";
        if (EqualsNoCase(section.name, "ColumnText") || EqualsNoCase(section.name, "ColumnWidth")) {
            message += ": " + section.name + " is a key of each column's own section";
        } else if (ToUpper(section.name).starts_with("CATEGORY")) {
            message += ": a category's is named " + std::string(kCategorySectionPrefix) + "NAME";
        } else {
            message += MeantPerhaps(section.name, m_KnownSections);
        }
        m_Findings.Warning("unknown-section", cInstallation::PlaceOf(section), message);
    }

    void Lengths(const cIniDocument::cSection& section) {
        for (const cIniDocument::cKey& key : section.keys) {
            if (key.length <= kMostValueCharacters) continue;
            cPlace place = cInstallation::PlaceOf(section, key);
            place.value = place.value.substr(0, 40) + "...";
            m_Findings.Warning("value-too-long", place,
                               "only the first " + std::to_string(kMostValueCharacters) + " of its " +
                                   std::to_string(key.length) + " characters are read");
        }
    }

    void Key(const cIniDocument::cSection& section, const cIniDocument::cKey& key) {
        // A column that isn't known has the keys of one that is.
        const bool unknownColumn = IsColumn(section.name) && !Contains(m_KnownSections, section.name);
        const std::string_view sameKeys = unknownColumn ? kColumnKeywords[0] : std::string_view(section.name);
        const cSettingKey* known = FindSettingKey(sameKeys, key.name);
        if (known == nullptr) return UnknownKey(section, key);
        CheckValue(*known, OverflowOf(section, key), cInstallation::PlaceOf(section, key), m_Findings);
    }

    eOverflow OverflowOf(const cIniDocument::cSection& section, const cIniDocument::cKey& key) const {
        if (EqualsNoCase(section.name, "PopupForm")) return eOverflow::StopsPopups;
        if (IsCategoryKey(key.name)) return eOverflow::Skipped;
        // The section of a column that isn't shown is not read.
        const bool column = std::any_of(kColumnKeywords.begin(), kColumnKeywords.end(),
                                        [&](auto keyword) { return EqualsNoCase(keyword, section.name); });
        return column && !IsColumn(section.name) ? eOverflow::Skipped : eOverflow::EndsStart;
    }

    void UnknownKey(const cIniDocument::cSection& section, const cIniDocument::cKey& key) {
        std::vector<std::string> here;
        std::string elsewhere;
        for (const cSettingKey& known : SettingKeys()) {
            const bool sameSection = EqualsNoCase(known.section, section.name);
            const bool category = IsCategoryKey(known.name) && known.section == "General";
            if (sameSection || (category && IsCategorySection(section.name))) here.push_back(known.name);
            if (EqualsNoCase(known.name, key.name)) elsewhere = known.section;
        }
        std::string message = "nobody reads a key of this name here";
        const std::string nearest = MeantPerhaps(key.name, here);
        if (!nearest.empty()) {
            message += nearest;
        } else if (!elsewhere.empty()) {
            message += "; it belongs to section " + elsewhere;
        }
        m_Findings.Warning("unknown-key", cInstallation::PlaceOf(section, key), message);
    }

    const cInstallation& m_Installation;
    cFindings& m_Findings;
    std::vector<std::string> m_Columns;
    std::vector<std::string> m_KnownSections = KnownSections();
};

}  // namespace

void CheckKeys(const cInstallation& installation, cFindings& findings) {
    cKeyCheck(installation, findings).Run();
}

}  // namespace vigrel
