#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/ini.h"
#include "platform/files.h"
#include "platform/locale.h"

namespace vigrel {

// What a first start knows of its surroundings.
struct cFirstStartHints {
    // Wished language: three digits, or "locale" for the user's own. Where there is no such language, it is
    // the user's own, or else English: whoever wishes one is not asked. Empty: it is asked for.
    std::string language;
    bool canAsk = true;  // there is somebody at a screen
    // The part of the screen that windows may cover, in pixels; nothing is fitted to one without a size.
    int left = 0, top = 0, width = 0, height = 0;
};

// The configuration of a folder that has none yet. Delivered are Templates\VigrelReceiver.NNN, one for each
// language; the folder's own template, Templates\VigrelReceiver.oni, is made of one of them.
class cFirstStart {
  public:
    // The files of the folder that the ini belongs to.
    cFirstStart(cFiles& files, cIni& ini, const cLocale& locale, cFirstStartHints hints)
        : m_Files(files), m_Ini(ini), m_Locale(locale), m_Hints(std::move(hints)) {}

    // Makes template and configuration in the wished language, or else in the user's, or else in English,
    // and fits window and columns to the screen. The language is set where it was wished or nobody can be
    // asked. A folder with a configuration or a template of its own is left alone. Failures are skipped: the
    // start goes on with what there is. An end at any moment leaves the whole configuration, or none.
    void Prepare();
    // When the operator chose another language than the one prepared: its template and configuration take
    // their place. Only in the start that prepared them: later on they are the installer's.
    void FollowChoice();

  private:
    std::string UsersLanguage() const;
    std::string DecidedLanguage(const std::string& users) const;
    // Keys of section General and their values.
    using cKeys = std::vector<std::pair<std::string_view, std::string>>;
    bool Place(const std::string& language, const cKeys& general);
    void FitToScreen(std::string_view fileName);

    cFiles& m_Files;
    cIni& m_Ini;
    const cLocale& m_Locale;
    const cFirstStartHints m_Hints;
    std::string m_Placed;  // the language of the template that was put in place; empty for none
};

// What is beside the columns in a list as wide as the window: frame and scroll bar, in pixels.
inline constexpr int kBesideColumns = 28;

}  // namespace vigrel
