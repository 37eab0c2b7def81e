#pragma once

#include <QCoreApplication>
#include <cstdint>
#include <string>
#include <string_view>

#include "common/ini.h"
#include "platform/locale.h"
#include "schedule/containers.h"

namespace vigrel {

// What the editor remembers of an application folder, beside the receiver's own configuration.
inline constexpr std::string_view kDefinitionsIni = "VigrelDefinitions.INI";

// The names of the weekdays in the desktop's language.
cDayNames DayNamesOf(const cLocaleForms& forms);

// The names of all day types. Those of the sixteen special types are the installation's own: keys 7 to 22 of
// section "DayTypes".
class cDayTypeNames {
    Q_DECLARE_TR_FUNCTIONS(cDayTypeNames)
  public:
    cDayTypeNames(cIni& ini, const cLocaleForms& forms) : m_Ini(ini), m_DayNames(DayNamesOf(forms)) {}

    const cDayNames& DayNames() const { return m_DayNames; }
    // Of a day type 0 to 22; another throws cFailure (OutOfBounds).
    std::string Name(std::int16_t dayType) const;
    // Of an entry in a calendar's list of day types: 1 is no special type, k day type k - 2. Another number
    // throws cFailure (OutOfBounds).
    std::string Entry(std::int16_t number) const;
    // The installation's own name of a special day type; empty for none.
    std::string OwnName(std::int16_t dayType) const;
    // An empty name takes the own one away. False when it could not be stored.
    bool Rename(std::int16_t dayType, std::string_view name);

  private:
    cIni& m_Ini;
    cDayNames m_DayNames;
};

}  // namespace vigrel
