#include <algorithm>
#include <map>

#include "common/code_page.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/setting_keys.h"
#include "common/text.h"
#include "receiver-check/checks.h"
#include "receiver-check/names.h"

namespace vigrel {
namespace {

std::string KeyOf(std::string_view prefix, std::size_t status) {
    return std::string(prefix) + std::string(kStateSuffixes[status]);
}

// The settings of one section: General, or that of a category.
class cLook {
  public:
    cLook(const cInstallation& installation, std::string section, const cCategorySpecificSetting& setting,
          cFindings& findings)
        : m_Installation(installation),
          m_Section(std::move(section)),
          m_Setting(setting),
          m_Findings(findings) {}

    void Check() {
        for (std::size_t status = 0; status < kStateSuffixes.size(); ++status) {
            Colours(status);
            Light(status);
        }
        Sound();
    }

  private:
    bool IsGeneral() const { return m_Section == "General"; }
    cPlace Place(const std::string& key) const { return m_Installation.PlaceOf(m_Section, key); }
    std::string Own(const std::string& key) const {
        const cIniDocument::cKey* found = m_Installation.Document().Key(m_Section, key);
        return found == nullptr ? "" : found->value;
    }

    void Colours(std::size_t status) {
        const std::string back = KeyOf("BackColor_", status), fore = KeyOf("ForeColor_", status);
        if (Own(back).empty()) {
            if (!Own(fore).empty()) {
                m_Findings.Warning("fore-without-back", Place(fore),
                                   "does nothing without " + back + " in the same section");
            }
            // Colours that are inherited are told of where they are set.
            if (IsGeneral()) Contrast(status, Place(back));
            return;
        }
        if (Own(fore).empty()) {
            m_Findings.Warning(
                "back-without-fore", Place(back),
                "without " + fore + " in the same section the text takes a colour that nobody chose");
        }
        Contrast(status, Place(back));
    }

    void Contrast(std::size_t status, const cPlace& place) {
        const int state = static_cast<int>(status);
        const Colour back = m_Setting.GetBackColor(state), fore = m_Setting.GetForeColor(state);
        const std::string name(kStateSuffixes[status]);
        if (back == fore) {
            m_Findings.Error("no-contrast", place,
                             "text and ground of state " + name + " have the same colour" +
                                 (back == 0 ? ", black" : "") + ": nothing can be read");
            return;
        }
        const double contrast = vigrel::Contrast(back, fore);
        if (contrast >= kReadableContrast) return;
        m_Findings.Warning("weak-contrast", place,
                           "text and ground of state " + name + " have a contrast of " +
                               OneDecimal(contrast) + "; " + OneDecimal(kReadableContrast) +
                               " is needed to be read well");
    }
    static std::string OneDecimal(double number) { return NumberText(RoundEven(number * 10) / 10); }

    void Light(std::size_t status) {
        if (!Own(KeyOf("USBLED_DeviceName_", status)).empty()) return;
        for (const auto* prefix : {"USBLED_Control_", "USBLED_FreqDuty_", "USBLED_InitialPhaseDelay_",
                                   "USBLED_Power_", "USBLED_PreScalar_", "USBLED_SyncLeds_"}) {
            if (Own(KeyOf(prefix, status)).empty()) continue;
            m_Findings.Warning(
                "light-without-name", Place(KeyOf(prefix, status)),
                "does nothing without " + KeyOf("USBLED_DeviceName_", status) + " in the same section");
            return;
        }
    }

    bool PlaysFile() const { return m_Setting.m_EventSignal == 2 || m_Setting.m_EventSignal == 3; }

    void Sound() {
        const bool ownFile = !Own("EventSoundFile").empty(), ownSignal = !Own("EventSignal").empty();
        // What is inherited as a whole is told of in General.
        if (!ownFile && !ownSignal && !IsGeneral()) return;
        const std::string& file = m_Setting.m_EventSoundFile;
        if (file == m_Installation.Path()) {
            if (PlaysFile()) {
                m_Findings.Error("sound-not-set", Place("EventSignal"),
                                 "plays a sound, but no EventSoundFile is set: it stays silent");
            }
            return;
        }
        const cPlace place = Place(ownFile ? "EventSoundFile" : "EventSignal");
        if (!m_Installation.Files().FileExists(file)) {
            m_Findings.Add(PlaysFile() ? eSeverity::Error : eSeverity::Warning, "sound-missing", place,
                           "there is no file " + file + (PlaysFile() ? ": it stays silent" : ""));
        } else {
            WaveFile(file, place);
        }
    }

    void WaveFile(const std::string& file, const cPlace& place) {
        std::string content;
        const auto failure = CatchFailure([&] { content = m_Installation.Files().ReadFile(file); });
        if (failure) {
            m_Findings.Error("sound-unreadable", place, failure->what());
        } else if (!content.starts_with("RIFF") || content.substr(0, 12).substr(8) != "WAVE") {
            m_Findings.Warning("sound-not-wave", place, file + " is no wave file");
        }
    }

    const cInstallation& m_Installation;
    std::string m_Section;
    const cCategorySpecificSetting& m_Setting;
    cFindings& m_Findings;
};

bool NamesLight(const cCategorySpecificSetting& setting) {
    return setting.USBLED_Enabled;
}

void CheckLightsOfGeneral(const cInstallation& installation, cFindings& findings) {
    const cCategorySettings& categories = installation.Categories();
    if (!NamesLight(categories.m_DefaultCategorySetting)) return;
    if (std::any_of(categories.m_CategorySettings.begin(), categories.m_CategorySettings.end(), NamesLight))
        return;
    for (const std::string_view state : kStateSuffixes) {
        const std::string key = "USBLED_DeviceName_" + std::string(state);
        if (installation.Value("General", key).empty()) continue;
        findings.Warning("light-in-general-only", installation.PlaceOf("General", key),
                         "holds for alarms without a category's section only, and the menu never offers to "
                         "stop this light: name it in the sections of categories");
        return;
    }
}

// The section that counts for each category, by its upper-cased name.
using SectionsByCategory = std::map<std::string, std::string>;

std::string CategoryOf(const cIniDocument::cSection& section) {
    return Trim(section.name.substr(kCategorySectionPrefix.size()));
}

SectionsByCategory FindSections(const cIniDocument& document) {
    SectionsByCategory sections;
    for (const cIniDocument::cSection& section : document.m_Sections) {
        if (!section.first || !IsCategorySection(section.name)) continue;
        sections.try_emplace(ToUpper(CategoryOf(section)), section.name);
    }
    return sections;
}

void CheckRepeated(const cInstallation& installation, const SectionsByCategory& sections,
                   cFindings& findings) {
    for (const cIniDocument::cSection& section : installation.Document().m_Sections) {
        if (!section.first || !IsCategorySection(section.name)) continue;
        const std::string category = CategoryOf(section);
        if (category.empty()) {
            findings.Warning("category-without-name", cInstallation::PlaceOf(section),
                             "names no category: it holds for alarms without one");
        }
        const std::string& first = sections.at(ToUpper(category));
        if (EqualsNoCase(first, section.name)) continue;
        findings.Warning("category-repeated", cInstallation::PlaceOf(section),
                         "the category has the section [" + first + "] already, which counts");
    }
}

void CheckSystemErrorCategory(const cInstallation& installation, cFindings& findings) {
    const std::string category = installation.Value("General", "SystemErrorCategory");
    if (!installation.Categories().Find(category).m_Category.empty()) return;
    std::vector<std::string> names;
    for (const auto& setting : installation.Categories().m_CategorySettings) {
        names.push_back(setting.m_Category);
    }
    findings.Remark("category-without-section", installation.PlaceOf("General", "SystemErrorCategory"),
                    "the alarms of lost senders have category \"" + category +
                        "\", which has no section: they look and sound as section General says" +
                        MeantPerhaps(category, names));
}

}  // namespace

void CheckCategories(const cInstallation& installation, cFindings& findings) {
    if (!installation.IsConfigured()) return;
    cLook(installation, "General", installation.Categories().m_DefaultCategorySetting, findings).Check();
    const SectionsByCategory sections = FindSections(installation.Document());
    for (const cCategorySpecificSetting& setting : installation.Categories().m_CategorySettings) {
        const bool first = &installation.Categories().Find(setting.m_Category) == &setting;
        const auto section = sections.find(ToUpper(setting.m_Category));
        if (first && section != sections.end())
            cLook(installation, section->second, setting, findings).Check();
    }
    CheckLightsOfGeneral(installation, findings);
    CheckRepeated(installation, sections, findings);
    CheckSystemErrorCategory(installation, findings);
}

}  // namespace vigrel
