#include "editor_ui/drawing/day_type_names.h"

#include "adapters/qt/qt_text.h"
#include "schedule/day_types.h"

namespace vigrel {
namespace {

constexpr std::string_view kDayTypesSection = "DayTypes";

}  // namespace

cDayNames DayNamesOf(const cLocaleForms& forms) {
    cDayNames names;
    for (std::size_t day = 0; day < names.m_LongNames.size(); ++day) {
        // The locale's week begins on Sunday.
        names.m_ShortNames[day] = forms.shortDayNames[(day + 1) % 7];
        names.m_LongNames[day] = forms.dayNames[(day + 1) % 7];
    }
    return names;
}

std::string cDayTypeNames::Name(std::int16_t dayType) const {
    const std::size_t index = DayTypeIndex(dayType);
    if (dayType < kWeekDays) return m_DayNames.m_LongNames[index];
    const std::string own = OwnName(dayType);
    return own.empty() ? FromQString(tr("Special day type %1").arg(dayType - kWeekDays + 1)) : own;
}

std::string cDayTypeNames::OwnName(std::int16_t dayType) const {
    return m_Ini.GetIniString(kDayTypesSection, std::to_string(dayType), "", kDefinitionsIni);
}

std::string cDayTypeNames::Entry(std::int16_t number) const {
    if (number == 1) return FromQString(tr("No special day type"));
    return Name(static_cast<std::int16_t>(number - 2));
}

bool cDayTypeNames::Rename(std::int16_t dayType, std::string_view name) {
    if (DayTypeIndex(dayType) < static_cast<std::size_t>(kWeekDays)) return false;
    m_Ini.PutIniString(kDayTypesSection, std::to_string(dayType), name, kDefinitionsIni);
    return OwnName(dayType) == name;
}

}  // namespace vigrel
