#include "common/dates.h"

#include <bit>
#include <cmath>

#include "common/failure.h"

namespace vigrel {
namespace {

// Days from 1970-01-01 of a date of the Gregorian calendar, for any year.
std::int64_t DaysFromCivil(std::int64_t year, int month, int day) {
    year -= month <= 2;
    const std::int64_t era = (year >= 0 ? year : year - 399) / 400;
    const std::int64_t yearOfEra = year - era * 400;
    const std::int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

// And back, from the year 100 on.
void CivilFromDays(std::int64_t days, cDateParts& parts) {
    // From 0000-03-01 on; no day of the calendar is before it.
    days += 719468;
    const std::int64_t era = days / 146097;
    const std::int64_t dayOfEra = days - era * 146097;
    const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t shifted = (5 * dayOfYear + 2) / 153;
    parts.day = static_cast<int>(dayOfYear - (153 * shifted + 2) / 5 + 1);
    parts.month = static_cast<int>(shifted < 10 ? shifted + 3 : shifted - 9);
    parts.year = static_cast<int>(yearOfEra + era * 400 + (parts.month <= 2 ? 1 : 0));
}

constexpr std::int64_t kEpoch = 25569;       // 1970-01-01 as a day count from 1899-12-30
constexpr std::int64_t kFirstDay = -657434;  // 0100-01-01
constexpr std::int64_t kLastDay = 2958465;   // 9999-12-31

// In seconds: a whole second that was made of a day and a time of day can lie this far below itself, as the
// sum keeps 52 bits; in the year 9999 one step of it is 0.04 ms. Clocks keep away from it (platform/clock.h).
constexpr double kTraceOfSum = 1e-4;

[[noreturn]] void FailOutside() {
    throw cFailure(eFailure::Overflow, Pattern("Reasons", "a date-time lies outside the years 100 to 9999"));
}

}  // namespace

cDateParts SplitDateTime(DateTime value) {
    if (!(value > static_cast<double>(kFirstDay) - 1 && value < static_cast<double>(kLastDay) + 1))
        FailOutside();
    const double whole = std::trunc(value);
    auto days = static_cast<std::int64_t>(whole);
    auto seconds = static_cast<std::int64_t>(std::fabs(value - whole) * 86400 + kTraceOfSum);
    if (seconds == 86400) {
        seconds = 0;
        if (++days > kLastDay) FailOutside();
    }
    cDateParts parts;
    CivilFromDays(days - kEpoch, parts);
    parts.hour = static_cast<int>(seconds / 3600);
    parts.minute = static_cast<int>(seconds / 60 % 60);
    parts.second = static_cast<int>(seconds % 60);
    // Day 0, 1899-12-30, was a Saturday.
    parts.weekday = static_cast<int>(((days + 6) % 7 + 7) % 7) + 1;
    parts.dayOfYear = static_cast<int>(days - kEpoch - DaysFromCivil(parts.year, 1, 1)) + 1;
    return parts;
}

DateTime DateSerial(int year, int month, int day) {
    if (year >= 0 && year < 100) year += year < 30 ? 2000 : 1900;
    const std::int64_t months = static_cast<std::int64_t>(year) * 12 + month - 1;
    const std::int64_t carriedYear = months >= 0 ? months / 12 : (months - 11) / 12;
    const std::int64_t days =
        DaysFromCivil(carriedYear, static_cast<int>(months - carriedYear * 12) + 1, 1) + day - 1 + kEpoch;
    if (days < kFirstDay || days > kLastDay) {
        throw cFailure(eFailure::InvalidCall,
                       Pattern("Reasons", "a date lies outside the years 100 to 9999"));
    }
    return static_cast<DateTime>(days);
}

DateTime TimeSerial(int hour, int minute, int second) {
    return (static_cast<double>(hour) * 3600 + static_cast<double>(minute) * 60 + second) / 86400;
}

DateTime DateOf(DateTime value) {
    return std::trunc(value);
}

// The bits of finite numbers compare as the numbers do once those below 0 are turned round.
std::uint64_t TimeRank(DateTime value) {
    constexpr std::uint64_t kSign = std::uint64_t{1} << 63;
    if (!std::isfinite(value)) return 0;
    const auto bits = std::bit_cast<std::uint64_t>(value == 0 ? 0.0 : value);
    return (bits & kSign) != 0 ? ~bits : bits | kSign;
}

bool Earlier(DateTime a, DateTime b) {
    return TimeRank(a) < TimeRank(b);
}

int WeekOfYear(DateTime value, int firstDayOfWeek, eFirstWeek firstWeekOfYear) {
    const auto beginOfWeek = [firstDayOfWeek](DateTime day) {
        return day - (SplitDateTime(day).weekday - firstDayOfWeek + 7) % 7;
    };
    // The first week holds this day of January, whatever weekday that is.
    const int dayInWeekOne = firstWeekOfYear == eFirstWeek::FirstFourDays   ? 4
                             : firstWeekOfYear == eFirstWeek::FirstFullWeek ? 7
                                                                            : 1;
    const auto weekOne = [&](int year) { return beginOfWeek(DateSerial(year, 1, dayInWeekOne)); };
    const DateTime week = beginOfWeek(DateOf(value));
    int year = SplitDateTime(DateOf(value)).year;
    if (firstWeekOfYear != eFirstWeek::FirstOfJanuary) {
        if (week < weekOne(year)) {
            --year;
        } else if (week >= weekOne(year + 1)) {
            ++year;
        }
    }
    return static_cast<int>(week - weekOne(year)) / 7 + 1;
}

}  // namespace vigrel
