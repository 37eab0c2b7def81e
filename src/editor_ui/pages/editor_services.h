#pragma once

#include <QSettings>
#include <cstdint>
#include <functional>
#include <string>

#include "common/ini.h"
#include "definitions/station_definitions.h"
#include "editor_ui/drawing/day_type_images.h"
#include "editor_ui/drawing/day_type_names.h"
#include "editor_ui/pages/printout.h"
#include "editor_ui/pages/prompts.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/locale.h"

namespace vigrel {

// What the pages of the editor share; all of it outlives the window.
struct cEditorServices {
    cFiles& m_Files;
    const cClock& m_Clock;
    cIni& m_Ini;  // of the application folder
    const cLocaleForms& m_Forms;
    std::function<std::string(std::int32_t)> GetText;
    cPrompts& m_Prompts;
    QSettings& m_Settings;  // the user's
    cDayTypeNames m_DayTypeNames;
    cDayTypeImages m_DayTypeImages;
    cStationDefinitions& m_Station;  // receivers and profiles of the application folder
};

// What the picture of a special day type, 7 to 22, means.
cPrintout::cSign SignOf(std::int16_t dayType, const cEditorServices& services);

// Over the owner's window, that a choice for the station could not be stored.
void TellNotStored(QWidget* owner, const cEditorServices& services);

}  // namespace vigrel
