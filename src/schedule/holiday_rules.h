#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "schedule/calendar_days.h"

namespace vigrel {

// How a holiday falls in each of the years that it is kept.
struct cHolidayRule {
    enum class eKind {
        Fixed,           // month, day
        Easter,          // days from Easter Sunday
        WeekdayOnOrFrom  // the first such weekday on or behind month, day
    };
    enum class eStanding {
        Public,
        PublicWithSubstitute,  // on a weekend another weekday is free as well
        NameOnly
    };
    eKind kind;
    int month, day;         // Easter: day is the distance
    int weekday;            // 0 for Monday
    std::string_view name;  // UTF-8
    eStanding standing = eStanding::Public;
    int firstYear = kFirstCalendarYear, lastYear = kLastCalendarYear;

    constexpr cHolidayRule From(int year) const { return Years(year, lastYear); }
    constexpr cHolidayRule Until(int year) const { return Years(firstYear, year); }
    constexpr cHolidayRule In(int year) const { return Years(year, year); }
    constexpr cHolidayRule NameOnly() const { return With(eStanding::NameOnly); }
    constexpr cHolidayRule WithSubstitute() const { return With(eStanding::PublicWithSubstitute); }

  private:
    constexpr cHolidayRule Years(int first, int last) const {
        cHolidayRule rule = *this;
        rule.firstYear = first;
        rule.lastYear = last;
        return rule;
    }
    constexpr cHolidayRule With(eStanding other) const {
        cHolidayRule rule = *this;
        rule.standing = other;
        return rule;
    }
};

constexpr cHolidayRule Fixed(int month, int day, std::string_view name) {
    return {cHolidayRule::eKind::Fixed, month, day, 0, name};
}
constexpr cHolidayRule FromEaster(int days, std::string_view name) {
    return {cHolidayRule::eKind::Easter, 0, days, 0, name};
}
constexpr cHolidayRule OnOrFrom(int weekday, int month, int day, std::string_view name) {
    return {cHolidayRule::eKind::WeekdayOnOrFrom, month, day, weekday, name};
}

struct cHolidayCountry {
    std::string_view code;  // of ISO 3166; a part of a country has a suffix
    std::string_view name;  // in English, plain letters
};

// The countries whose holidays are known.
std::span<const cHolidayCountry> HolidayCountries();

// The rules of a country; none for an unknown code.
std::vector<cHolidayRule> HolidayRules(std::string_view code);

}  // namespace vigrel
