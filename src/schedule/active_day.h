#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "schedule/calendar_days.h"
#include "schedule/time_schedule.h"

namespace vigrel {

// The day type by which a schedule treats a date of which a calendar has the value: the date's own when the
// schedule has it active, else that of the weekday (0 for Monday). A value that is none of the table's counts
// as 0.
std::int16_t ResolveDayType(std::int16_t value, std::int16_t weekDay, const cTimeSchedule& schedule);

// 0 for Monday, of any date.
std::int16_t WeekDayOf(DateTime date);

// What a schedule has in force on one day, and by which rule.
struct cActiveDay {
    enum class eReason {
        Weekday,        // the calendar says nothing of the date
        Calendar,       // it gives the date the day type
        NotInSchedule,  // it gives the date one that the schedule doesn't use: the weekday counts
    };
    std::int16_t dayType = 0;        // whose periods hold
    std::int16_t calendarValue = 0;  // of the date
    eReason reason = eReason::Weekday;
    bool used = false;                         // whether the schedule uses the day type
    std::vector<std::int16_t> group;           // the other day types with the same periods
    std::vector<std::pair<int, int>> periods;  // minutes; from the first on, up to the second; by start

    // Whether a period covers the minute.
    bool IsActiveAt(int minute) const;
    // The minute behind this one at which that changes; 1440 when it doesn't on this day.
    int NextChange(int minute) const;
};
cActiveDay ActiveDay(const cTimeSchedule& schedule, std::int16_t calendarValue, std::int16_t weekDay);

}  // namespace vigrel
