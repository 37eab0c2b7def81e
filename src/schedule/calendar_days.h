#pragma once

#include <cstdint>

#include "platform/clock.h"

namespace vigrel {

// The calendar's span: 2000-01-01, index 0, to 2039-12-31.
inline constexpr std::int32_t kCalendarDays = 14610;
inline constexpr std::int32_t kFirstCalendarDay = 36526;  // as a date-time
inline constexpr int kFirstCalendarYear = 2000;
inline constexpr int kLastCalendarYear = 2039;

// The index of a date; below 0 or from kCalendarDays on outside the span.
inline std::int32_t CalendarIndex(DateTime date) {
    return static_cast<std::int32_t>(date) - kFirstCalendarDay;
}
// 0 for Monday. 2000-01-01 was a Saturday.
inline std::int16_t WeekDayOfIndex(std::int32_t index) {
    return static_cast<std::int16_t>((index + 5) % 7);
}

}  // namespace vigrel
