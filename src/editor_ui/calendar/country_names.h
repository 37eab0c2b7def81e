#pragma once

#include <QString>

#include "schedule/holiday_rules.h"

namespace vigrel {

// The name of a country or state in the editor's language.
QString CountryName(const cHolidayCountry& country);

}  // namespace vigrel
