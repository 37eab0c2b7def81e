#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "common/ini.h"
#include "platform/files.h"
#include "platform/locale.h"

namespace vigrel {

// The choice of a language when none is set yet. It has no texts of its own, since no language is loaded.
class cLanguageSelection {
  public:
    struct cLanguage {
        std::string name;  // as the language's own file gives it
        std::int16_t number;
    };

    cLanguageSelection(const cFileReader& files, cIni& ini, const cLocale& locale)
        : m_Files(files), m_Ini(ini), m_Locale(locale) {}

    // Lists the languages of the application folder, and selects the last one whose name is that of the
    // user's language. A file that can't be read, and one without a name, is no language.
    void Load();
    const std::vector<cLanguage>& Languages() const { return m_Languages; }
    // Index of the selected language; -1 for none.
    int Selected() const { return m_Selected; }
    void Select(int index) { m_Selected = index; }
    // Writes the selected language to the settings, and the user's country where none is written yet. Nothing
    // without a selection.
    void Confirm();

  private:
    void LoadFile(const std::string& name, std::int16_t number);
    bool IsUsersLanguage(const std::string& name) const;

    const cFileReader& m_Files;
    cIni& m_Ini;
    const cLocale& m_Locale;
    std::string m_EnglishName, m_NativeName, m_Country;  // of the user; the names in upper case
    std::vector<cLanguage> m_Languages;
    int m_Selected = -1;
};

}  // namespace vigrel
