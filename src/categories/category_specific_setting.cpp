#include "categories/category_specific_setting.h"

#include <algorithm>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

// One key of a section and state.
class cStateKeys {
  public:
    cStateKeys(const cIniReader& ini, std::string_view section, std::string_view suffix)
        : m_Ini(ini), m_Section(section), m_Suffix(suffix) {}
    // What another section has, when this one has nothing.
    std::string Text(std::string_view prefix, std::string_view inherited) const {
        return m_Ini.GetIniString(m_Section, Key(prefix), inherited);
    }
    std::int16_t Int16(std::string_view prefix, std::string_view inherited) const {
        return ToInt16(Val(Text(prefix, inherited)));
    }
    // The light's keys are not inherited.
    std::string Own(std::string_view prefix) const {
        return Trim(cSettingReader(m_Ini, m_Section).Text(Key(prefix)));
    }

  private:
    std::string Key(std::string_view prefix) const { return std::string(prefix) + std::string(m_Suffix); }

    const cIniReader& m_Ini;
    std::string_view m_Section, m_Suffix;
};

// "\" and "/" are the same separator here; a path below the application folder's own begins with one of them.
bool IsFullPath(std::string_view path) {
    return (!path.empty() && (path[0] == '\\' || path[0] == '/')) || (path.size() > 1 && path[1] == ':');
}

}  // namespace

const cCategorySpecificSetting::cState& cCategorySpecificSetting::At(int status) const {
    if (status < 0 || status > 3) {
        throw cFailure(eFailure::OutOfBounds, "status " + std::to_string(status) + " is not one of 0 to 3");
    }
    return m_States[static_cast<std::size_t>(status)];
}

void cCategorySpecificSetting::GetStateSettings(std::size_t status, std::string_view sectionName,
                                                const cState& parent, const cIniReader& ini) {
    const cStateKeys keys(ini, sectionName, kStateSuffixes[status]);
    cState& state = m_States[status];

    state.iconNotObserved = parent.iconNotObserved;
    state.iconObserved = parent.iconObserved;
    const std::string icons = keys.Text("Icon_", "");
    if (!icons.empty()) {
        SkipFailure([&] { state.iconNotObserved = ToInt16(Val(GetField(icons, 0, ","))); });
        SkipFailure([&] { state.iconObserved = ToInt16(Val(GetField(icons, 1, ","))); });
    }

    state.backColor = parent.backColor;
    state.foreColor = parent.foreColor;
    const std::string back = keys.Text("BackColor_", "");
    if (!back.empty()) {
        state.backColor = ColorFromText(back);
        // The back colour's key decides for both, so that a text never stands on a ground it was not chosen
        // for.
        state.foreColor = ColorFromText(keys.Text("ForeColor_", std::to_string(parent.foreColor)));
    }

    SkipFailure([&] { state.fontBold = keys.Int16("FontBold_", std::to_string(parent.fontBold)); });
    SkipFailure([&] { state.fontItalic = keys.Int16("FontItalic_", std::to_string(parent.fontItalic)); });

    state.deviceName = keys.Own("USBLED_DeviceName_");
    if (!state.deviceName.empty()) USBLED_Enabled = true;
    state.control = keys.Own("USBLED_Control_");
    state.freqDuty = keys.Own("USBLED_FreqDuty_");
    state.initialPhaseDelay = keys.Own("USBLED_InitialPhaseDelay_");
    state.power = keys.Own("USBLED_Power_");
    SkipFailure([&] { state.preScalar = ToInt16(Val(keys.Own("USBLED_PreScalar_"))); });
    state.syncLeds = Val(keys.Own("USBLED_SyncLeds_")) != 0 ? True16 : False16;
}

void cCategorySpecificSetting::GetSettings(std::string_view sectionName,
                                           const cCategorySpecificSetting* defaultCategorySetting,
                                           const cIniReader& ini) {
    const cCategorySpecificSetting nothing;
    const cCategorySpecificSetting& parent =
        defaultCategorySetting != nullptr ? *defaultCategorySetting : nothing;
    for (std::size_t status = 0; status < m_States.size(); ++status) {
        GetStateSettings(status, sectionName, parent.m_States[status], ini);
    }
    m_EventPopupFormat = ini.GetIniString(sectionName, "EventPopupFormat", parent.m_EventPopupFormat);
    SkipFailure([&] {
        m_EventSignal =
            ToInt16(Val(ini.GetIniString(sectionName, "EventSignal", std::to_string(parent.m_EventSignal))));
    });
    m_EventSoundFile = ini.GetIniString(sectionName, "EventSoundFile", parent.m_EventSoundFile);
    if (!IsFullPath(m_EventSoundFile)) m_EventSoundFile = ini.ApplicationPath() + m_EventSoundFile;
    m_ExtraText = ini.GetIniString(sectionName, "ExtraText", parent.m_ExtraText);
}

void cCategorySettings::ReadDefault(const cIniReader& ini) {
    m_DefaultCategorySetting.GetSettings("General", nullptr, ini);
}

void cCategorySettings::ReadCategories(const cFileReader& files, const cIniReader& ini) {
    const cIniEntries sections = ReadIniEntries(files, "", kSectionNamesBuffer, ini.FullPath(kIniFile));
    // A category would look and sound like any other.
    if (!sections.problem.empty()) throw cFailure(eFailure::InputOutput, sections.problem);
    for (const std::string& section : sections.entries) {
        if (!IsCategorySection(section)) continue;
        cCategorySpecificSetting& setting = m_CategorySettings.emplace_back();
        setting.GetSettings(section, &m_DefaultCategorySetting, ini);
        setting.m_Category = Trim(section.substr(kCategorySectionPrefix.size()));
    }
}

const cCategorySpecificSetting& cCategorySettings::Find(std::string_view category) const {
    const auto found =
        std::find_if(m_CategorySettings.begin(), m_CategorySettings.end(),
                     [&](const auto& setting) { return EqualsNoCase(setting.m_Category, category); });
    return found == m_CategorySettings.end() ? m_DefaultCategorySetting : *found;
}

}  // namespace vigrel
