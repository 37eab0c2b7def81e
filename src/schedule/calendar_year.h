#pragma once

#include "schedule/calendar.h"
#include "schedule/holidays.h"

namespace vigrel {

// Gives the year behind a year its day types, in place of what it has: each date those of the same date, and
// each holiday that is marked in the calendar those of the holiday of the same name, wherever that falls. The
// 29th of February gets none from a year that lacks it. Nothing happens for the calendar's last year.
void CopyToNextYear(cCalendar& calendar, const cHolidays& holidays, int year);

}  // namespace vigrel
