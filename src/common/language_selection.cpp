#include "common/language_selection.h"

#include <algorithm>
#include <vector>

#include "common/code_page.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/numbers.h"
#include "common/setting_keys.h"
#include "common/text.h"
#include "common/texts.h"

namespace vigrel {
namespace {

// The entry with a language's own name: id 0, written so at the very start of a line.
constexpr std::string_view kNameEntry = "0=";

// The first name in a language file; empty when it has none, or can't be read.
std::string LanguageName(const cFileReader& files, const std::string& path) {
    std::string content;
    SkipFailure([&] { content = files.ReadFile(path); });
    for (const std::string& line : SplitLines(content)) {
        if (line.starts_with(kNameEntry) && line.size() > kNameEntry.size()) {
            return line.substr(kNameEntry.size());
        }
    }
    return {};
}

}  // namespace

void cLanguageSelection::Load() {
    m_EnglishName = ToUpper(m_Locale.EnglishLanguageName());
    m_NativeName = ToUpper(m_Locale.NativeLanguageName());
    m_Country = m_Locale.EnglishCountryName();
    m_Languages.clear();
    m_Selected = -1;
    std::int16_t number = 0;
    // A folder is listed in no order of its own.
    std::vector<std::string> names =
        m_Files.ListFiles(m_Ini.ApplicationPath(), std::string(kTextFile) + "???");
    std::sort(names.begin(), names.end(),
              [](const auto& a, const auto& b) { return ToUpper(a) < ToUpper(b); });
    for (const std::string& name : names) {
        const std::string extension = name.substr(name.find('.') + 1);
        if (!IsNumeric(extension)) continue;
        // An extension such as 9e9 is a number, and too large for one: the file goes by the number before it.
        SkipFailure([&] { number = ToInt16(Val(extension)); });
        LoadFile(name, number);
    }
}

void cLanguageSelection::LoadFile(const std::string& fileName, std::int16_t number) {
    const std::string name = LanguageName(m_Files, m_Ini.FullPath(fileName));
    if (name.empty()) return;
    m_Languages.push_back({name, number});
    if (IsUsersLanguage(name)) m_Selected = static_cast<int>(m_Languages.size()) - 1;
}

bool cLanguageSelection::IsUsersLanguage(const std::string& name) const {
    const std::string folded = ToUpper(name);
    return folded == m_EnglishName || folded == m_NativeName;
}

void cLanguageSelection::Confirm() {
    if (m_Selected < 0 || m_Selected >= static_cast<int>(m_Languages.size())) return;
    const std::int16_t number = m_Languages[static_cast<std::size_t>(m_Selected)].number;
    m_Ini.PutIniString("General", "Language", Digits(number, 3));
    if (Trim(cSettingReader(m_Ini, "General").Text("CountryFilter")).empty()) {
        m_Ini.PutIniString("General", "CountryFilter", m_Country);
    }
}

}  // namespace vigrel
