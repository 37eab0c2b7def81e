#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "schedule/calendar_days.h"
#include "schedule/holiday_label.h"

namespace vigrel {

// The holidays that a calendar marks.
class cHolidays {
  public:
    cHolidays() : m_HolidayMarks(kCalendarDays, False16) {}

    std::vector<Boolean16> m_HolidayMarks;       // by index of the day
    std::vector<cHolidayLabel> m_HolidayLabels;  // by day; of one day, those shown in the calendar first

    // Sorts the label in and sets the mark. A day outside the calendar's span is left out.
    void Add(cHolidayLabel label);
    // The same with many, in their order. Each for itself would move all behind it.
    void Add(std::vector<cHolidayLabel> labels);
    // The first label of a day that has a mark; none otherwise.
    const cHolidayLabel* LabelOf(std::int32_t day) const;
};

}  // namespace vigrel
