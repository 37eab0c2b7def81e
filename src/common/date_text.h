#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace vigrel {

// The one unambiguous text form of a date-time, for files, tables and fields that are read back:
// "2026-03-15 12:30:15", cut to the second. A value outside the years 100 to 9999 gives its day count.
std::string DateTimeText(DateTime value);

// Reads "2026-03-15", "2026-03-15 12:30", "2026-03-15 12:30:15" (a "T" may stand for the blank); nothing for
// any other text, nor for a day or time that doesn't exist.
std::optional<DateTime> ParseDateTimeText(std::string_view text);

}  // namespace vigrel
