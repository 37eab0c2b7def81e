#include "schedule/calendar_year.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "common/dates.h"

namespace vigrel {
namespace {

bool IsMarked(const cHolidays& holidays, std::int32_t day) {
    const cHolidayLabel* label = holidays.LabelOf(day);
    return label != nullptr && label->m_ViewInCalendar != False16;
}

// The marked days of that name from one day up to another, in their order.
std::vector<std::int32_t> DaysNamed(const cHolidays& holidays, const std::string& name, std::int32_t from,
                                    std::int32_t before) {
    std::vector<std::int32_t> days;
    for (const cHolidayLabel& label : holidays.m_HolidayLabels) {
        const bool isMeant = label.m_Day >= from && label.m_Day < before &&
                             label.m_ViewInCalendar != False16 && label.m_Label == name;
        if (isMeant) days.push_back(label.m_Day);
    }
    return days;
}

// Several days on end have one name: the second of a year goes with the second of the next.
std::optional<std::int32_t> SameInNext(const cHolidays& holidays, std::int32_t day, std::int32_t first,
                                       std::int32_t next, std::int32_t end) {
    const std::string& name = holidays.LabelOf(day)->m_Label;
    const std::vector<std::int32_t> days = DaysNamed(holidays, name, first, next);
    const std::vector<std::int32_t> those = DaysNamed(holidays, name, next, end);
    const auto place = static_cast<std::size_t>(std::find(days.begin(), days.end(), day) - days.begin());
    if (place >= those.size()) return std::nullopt;
    return those[place];
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
        const auto moved = SameInNext(holidays, day, first, next, end);
        if (moved) calendar.SetDayType(*moved, calendar.GetDayType(day));
    }
}

}  // namespace vigrel
