#include "schedule/calendar_year.h"

#include <algorithm>

#include "common/dates.h"

namespace vigrel {
namespace {

bool IsMarked(const cHolidays& holidays, std::int32_t day) {
    const cHolidayLabel* label = holidays.LabelOf(day);
    return label != nullptr && label->m_ViewInCalendar != False16;
}

// The marked day of that name from one day up to another; the first day's index less one when there is none.
std::int32_t DayNamed(const cHolidays& holidays, const std::string& name, std::int32_t from,
                      std::int32_t before) {
    const auto found = std::find_if(holidays.m_HolidayLabels.begin(), holidays.m_HolidayLabels.end(),
                                    [&](const cHolidayLabel& label) {
                                        return label.m_Day >= from && label.m_Day < before &&
                                               label.m_ViewInCalendar != False16 && label.m_Label == name;
                                    });
    return found == holidays.m_HolidayLabels.end() ? from - 1 : found->m_Day;
}

}  // namespace

void CopyToNextYear(cCalendar& calendar, const cHolidays& holidays, int year) {
    if (year < kFirstCalendarYear || year >= kLastCalendarYear) return;
    const std::int32_t first = CalendarIndex(DateSerial(year, 1, 1));
    const std::int32_t next = CalendarIndex(DateSerial(year + 1, 1, 1));
    const std::int32_t end = CalendarIndex(DateSerial(year + 2, 1, 1));
    for (std::int32_t day = next; day < end; ++day) calendar.SetDayType(day, 0);
    for (std::int32_t day = first; day < next; ++day) {
        const cDateParts date = SplitDateTime(day + kFirstCalendarDay);
        const std::int32_t same = CalendarIndex(DateSerial(year + 1, date.month, date.day));
        const bool isThere = SplitDateTime(same + kFirstCalendarDay).day == date.day;
        if (isThere && !IsMarked(holidays, day)) calendar.SetDayType(same, calendar.GetDayType(day));
    }
    // Behind the others, so that a holiday counts for more than the date that it falls on.
    for (std::int32_t day = first; day < next; ++day) {
        if (!IsMarked(holidays, day) || calendar.GetDayType(day) == 0) continue;
        const std::int32_t moved = DayNamed(holidays, holidays.LabelOf(day)->m_Label, next, end);
        if (moved >= next) calendar.SetDayType(moved, calendar.GetDayType(day));
    }
}

}  // namespace vigrel
