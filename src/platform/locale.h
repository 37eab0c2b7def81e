#pragma once

#include <array>
#include <string>

namespace vigrel {

// Which week of a year is its first: that of 1 January, the first with at least four days in the year, or the
// first that lies in the year as a whole.
enum class eFirstWeek { FirstOfJanuary, FirstFourDays, FirstFullWeek };

// How the desktop's user writes dates and times. Patterns are those of FormatDateTime (common/dates.h); all
// text is in the code page. Filled once at start.
struct cLocaleForms {
    std::string shortDate = "yyyy-mm-dd";
    std::string mediumDate = "dd-mmm-yy";
    std::string longDate = "dddd d mmmm yyyy";
    std::string shortTime = "hh:nn";
    std::string mediumTime = "hh:nn AM/PM";
    std::string longTime = "hh:nn:ss";
    std::string am = "AM", pm = "PM";
    std::string dateSeparator = "-", timeSeparator = ":";
    // Sunday first.
    std::array<std::string, 7> dayNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                        "Thursday", "Friday", "Saturday"};
    std::array<std::string, 7> shortDayNames{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    std::array<std::string, 12> monthNames{"January",   "February", "March",    "April",
                                           "May",       "June",     "July",     "August",
                                           "September", "October",  "November", "December"};
    std::array<std::string, 12> shortMonthNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    int firstDayOfWeek = 2;  // 1 Sunday to 7 Saturday
    eFirstWeek firstWeekOfYear = eFirstWeek::FirstFourDays;
};

class cLocale {
  public:
    virtual ~cLocale() = default;
    virtual cLocaleForms Forms() const = 0;
    virtual std::string EnglishLanguageName() const = 0;
    virtual std::string NativeLanguageName() const = 0;
    virtual std::string EnglishCountryName() const = 0;
};

}  // namespace vigrel
