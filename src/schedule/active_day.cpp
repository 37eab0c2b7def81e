#include "schedule/active_day.h"

#include <algorithm>

#include "common/dates.h"

namespace vigrel {
namespace {

bool IsDayTypeValue(std::int16_t value) {
    return value > 0 && value <= kDayTypes;
}

}  // namespace

std::int16_t ResolveDayType(std::int16_t value, std::int16_t weekDay, const cTimeSchedule& schedule) {
    const auto dayType = static_cast<std::int16_t>(value - 1);
    return IsDayTypeValue(value) && schedule.GetActive(dayType) ? dayType : weekDay;
}

// Weekdays of a date count from Sunday as 1.
std::int16_t WeekDayOf(DateTime date) {
    return static_cast<std::int16_t>((SplitDateTime(date).weekday + 5) % 7);
}

cActiveDay ActiveDay(const cTimeSchedule& schedule, std::int16_t calendarValue, std::int16_t weekDay) {
    using eReason = cActiveDay::eReason;
    cActiveDay day;
    day.calendarValue = calendarValue;
    day.dayType = ResolveDayType(calendarValue, weekDay, schedule);
    if (IsDayTypeValue(calendarValue)) {
        day.reason = day.dayType == calendarValue - 1 && schedule.GetActive(day.dayType)
                         ? eReason::Calendar
                         : eReason::NotInSchedule;
    }
    day.used = schedule.GetActive(day.dayType);
    for (std::int16_t other = 0; other < kDayTypes && schedule.IsGrouped(day.dayType); ++other) {
        if (other != day.dayType && schedule.IsGrouped(other)) day.group.push_back(other);
    }
    std::int16_t start = 0, stop = 0;
    PeriodPtr period;
    while ((period = schedule.GetNextTimePeriod(day.dayType, start, stop, period))) {
        day.periods.emplace_back(start, stop);
    }
    std::sort(day.periods.begin(), day.periods.end());
    return day;
}

bool cActiveDay::IsActiveAt(int minute) const {
    return std::any_of(periods.begin(), periods.end(), [minute](const auto& period) {
        return period.first <= minute && minute < period.second;
    });
}

// Periods can touch or overlap in a file from elsewhere.
int cActiveDay::NextChange(int minute) const {
    const bool now = IsActiveAt(minute);
    do {
        ++minute;
    } while (minute < kMinutesOfDay && IsActiveAt(minute) == now);
    return std::min(minute, int{kMinutesOfDay});
}

}  // namespace vigrel
