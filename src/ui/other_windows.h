#pragma once

#include <string>

#include "common/ini.h"
#include "core/receiver_ports.h"

namespace vigrel {

// The receiver's further windows on the screen.
class cQtOtherWindows : public cOtherWindows {
  public:
    cQtOtherWindows(cFiles& files, const cLocale& locale, const std::string& applicationPath)
        : m_Files(files), m_Locale(locale), m_Ini(files, applicationPath) {}
    void ShowLanguageWindow() override;
    void ShowDebugWindow() override {}
    void WriteTrace(std::string_view, std::int16_t) override {}
    void ShowAboutBox() override {}
    void UnloadAboutBox() override {}

  private:
    cFiles& m_Files;
    const cLocale& m_Locale;
    cIni m_Ini;
};

}  // namespace vigrel
