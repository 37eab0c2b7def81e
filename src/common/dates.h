#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/locale.h"

namespace vigrel {

// Date-times are days from 1899-12-30 in local time; see platform/clock.h. Before that day the whole part is
// negative and the fraction still counts forward in its absolute value, as the format of stored dates has it.

struct cDateParts {
    int year = 1899, month = 12, day = 30;
    int hour = 0, minute = 0, second = 0;
    int weekday = 7;      // 1 Sunday to 7 Saturday
    int dayOfYear = 364;  // 1 January is 1
};

// Cut to the second, as every clock shows time: what is half a second old is not told as the second to come,
// nor an evening's last moment as tomorrow. A whole second reads as that second however it was made. A value
// outside the years 100 to 9999, or no number, throws cFailure (Overflow).
cDateParts SplitDateTime(DateTime value);

// Midnight of a day. Months and days out of range carry; a year of 0 to 99 means 2000 to 2029 and 1930 to
// 1999. Throws cFailure (InvalidCall) when the result lies outside the years 100 to 9999.
DateTime DateSerial(int year, int month, int day);
// A time of day as a fraction; parts out of range carry, into whole days too.
DateTime TimeSerial(int hour, int minute, int second);
// The whole day of a date-time.
DateTime DateOf(DateTime value);

// The order of date-times, in which every value has a place: files may hold any 64 bits, and a comparison
// that knows no answer would take sorted rows and stores apart. What is no finite number is no time, and
// comes in front of all that are one, equal to its like: it counts as the oldest, which goes first at every
// limit, so that what is broken never costs a new alarm its place.
//
// A number that is smaller for an earlier time, and the same for an equal one.
std::uint64_t TimeRank(DateTime value);
bool Earlier(DateTime a, DateTime b);

// The number of the week that a date lies in. Days of the week count 1 Sunday to 7 Saturday. The last days of
// a year can belong to week 1 of the next, and the first ones to the last week of the year before, unless the
// first week is that of 1 January.
int WeekOfYear(DateTime value, int firstDayOfWeek, eFirstWeek firstWeekOfYear);

// The text of a date-time. The pattern is a named form ("General Date", "Long Date", "Medium Date", "Short
// Date", "Long Time", "Medium Time", "Short Time", in any case) or a sequence of: d dd ddd dddd ddddd dddddd,
// w ww, m mm mmm mmmm, q, y yy yyyy, h hh, n nn, s ss, ttttt, AM/PM am/pm A/P a/p AMPM, c, "/" and ":" (the
// locale's separators), literals in quotes or behind a backslash; other characters stand for themselves. "m"
// directly behind "h" (other characters than letters between) is minutes. An empty pattern is "General Date".
// Weeks begin on Sunday, and week 1 is that of 1 January. A form of the locale that names a form shows that
// name as it stands. Throws cFailure (Overflow) like SplitDateTime.
std::string FormatDateTime(DateTime value, std::string_view pattern, const cLocaleForms& forms);

}  // namespace vigrel
