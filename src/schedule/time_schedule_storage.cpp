#include <algorithm>

#include "common/numbers.h"
#include "common/text.h"
#include "schedule/time_schedule.h"

namespace vigrel {
namespace {

Boolean16 Boolean(bool value) {
    return value ? True16 : False16;
}

}  // namespace

// The sequence that the file and the text form share.
std::vector<std::int16_t> cTimeSchedule::Values() const {
    std::vector<std::int16_t> values;
    for (std::size_t i = 0; i < m_Periods.size(); ++i) {
        values.push_back(Boolean(m_Active[i]));
        values.push_back(Boolean(m_Grouped[i]));
        values.push_back(ToInt16(static_cast<double>(m_Periods[i].size())));
        for (const PeriodPtr& period : m_Periods[i]) {
            values.push_back(period->m_StartMinute);
            values.push_back(period->m_StopMinute);
        }
        values.push_back(m_AxisIndex[i]);
    }
    values.push_back(Boolean(m_UseCalendar != False16));
    return values;
}

void cTimeSchedule::SaveToDisk(cBinaryWriter& file) const {
    for (const std::int16_t value : Values()) file.Int16(value);
}

void cTimeSchedule::ComposePeriodArray(std::string& periodArray) const {
    periodArray.clear();
    for (const std::int16_t value : Values()) periodArray += Int16ToChars(value);
}

void cTimeSchedule::ReadFromDisk(cBinaryReader& file) {
    for (std::int16_t dayType = 0; dayType < kDayTypes; ++dayType) {
        const auto i = static_cast<std::size_t>(dayType);
        m_Active[i] = file.Int16() != False16;
        m_Grouped[i] = file.Int16() != False16;
        ReadPeriods(dayType, file);
        m_AxisIndex[i] = file.Int16();
    }
    m_UseCalendar = Boolean(file.Int16() != False16);
}

// A damaged count must not fill the memory: there are no more periods than begin inside the file.
void cTimeSchedule::ReadPeriods(std::int16_t dayType, cBinaryReader& file) {
    Periods(dayType).clear();
    const std::int16_t count = file.Int16();
    for (std::int16_t i = 0; i < count && file.Position() < file.Size(); ++i) {
        const std::int16_t start = file.Int16();
        AddPeriod(dayType, start, file.Int16());
    }
}

void cTimeSchedule::ExtractPeriodArray(std::string_view periodArray) {
    cBinaryWriter values;
    for (; periodArray.size() >= 2; periodArray.remove_prefix(2)) values.Int16(CharsToInt16(periodArray));
    cBinaryReader reader(values.Bytes());
    ReadFromDisk(reader);
}

}  // namespace vigrel
