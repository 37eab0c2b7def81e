#pragma once

#include <string_view>

#include "platform/clock.h"
#include "schedule/holidays.h"

namespace vigrel {

// The holidays of a country for every year of the calendar, by the laws of their time; none for another code.
// Public holidays are marked in the month grid. Eves and other days on which most people are free, or which
// have a name without being free, only have their name. Names are in the country's language.
cHolidays PublicHolidays(std::string_view code);

// Easter Sunday of the western churches.
DateTime EasterSunday(int year);

}  // namespace vigrel
