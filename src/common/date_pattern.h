#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vigrel {

// What the patterns of FormatDateTime (common/dates.h) are made of.
enum class eDateSymbol {
    Literal,
    Day,             // d
    DayTwoDigits,    // dd
    DayShortName,    // ddd
    DayName,         // dddd
    ShortDate,       // ddddd
    LongDate,        // dddddd
    Weekday,         // w
    Week,            // ww
    Month,           // m
    MonthTwoDigits,  // mm
    MonthShortName,  // mmm
    MonthName,       // mmmm
    Quarter,         // q
    DayOfYear,       // y
    YearTwoDigits,   // yy
    Year,            // yyyy
    Hour,            // h
    HourTwoDigits,   // hh
    Minute,          // n, or m behind an hour
    MinuteTwoDigits,
    Second,           // s
    SecondTwoDigits,  // ss
    LongTime,         // ttttt
    DateAndTime,      // c
    OwnHalfOfDay,     // AM/PM, A/P: written as the pattern writes it
    LocaleHalfOfDay,  // AMPM
    DateSeparator,    // /
    TimeSeparator,    // :
};

struct cDateToken {
    eDateSymbol symbol;
    std::string text;  // as the pattern spells it; of a literal what it stands for
};

// Cuts a pattern from left to right, the longest symbol first: "ddddddd" is "dddddd" and "d". A quote that
// isn't closed reaches to the end; a backslash at the end stands for itself.
std::vector<cDateToken> SplitDatePattern(std::string_view pattern);

}  // namespace vigrel
