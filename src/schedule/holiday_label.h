#pragma once

#include <cstdint>
#include <string>

#include "common/binary.h"

namespace vigrel {

// The day types that holidays are like.
inline constexpr std::int16_t kLikeSaturday = 5, kLikeSunday = 6;

// The name of a holiday, for the tooltip and the red marking of the calendar.
class cHolidayLabel {
  public:
    std::int32_t m_Day = 0;                // index into the calendar's table of days
    std::int16_t m_DayType = 0;            // the one that the holiday is like
    Boolean16 m_ViewInCalendar = False16;  // mark the day as a holiday in the month grid
    std::string m_Label;
};

}  // namespace vigrel
