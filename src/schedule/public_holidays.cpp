#include "schedule/public_holidays.h"

#include <algorithm>
#include <vector>

#include "common/code_page.h"
#include "common/dates.h"
#include "schedule/holiday_rules.h"

namespace vigrel {
namespace {

using eKind = cHolidayRule::eKind;
using eStanding = cHolidayRule::eStanding;

DateTime DateOfRule(const cHolidayRule& rule, int year) {
    if (rule.kind == eKind::Easter) return EasterSunday(year) + rule.day;
    const DateTime date = DateSerial(year, rule.month, rule.day);
    if (rule.kind == eKind::Fixed) return date;
    return date + (rule.weekday - WeekDayOfIndex(CalendarIndex(date)) + 7) % 7;
}

bool IsWeekend(std::int32_t day) {
    return WeekDayOfIndex(day) >= 5;
}

// The holidays of one country and year.
class cHolidayYear {
  public:
    explicit cHolidayYear(cHolidays& holidays) : m_Holidays(holidays) {}

    void Add(const cHolidayRule& rule, std::int32_t day) {
        const bool isFree = rule.standing != eStanding::NameOnly;
        Add(day, isFree, Utf8ToCodePage(rule.name));
        if (isFree) m_FreeDays.push_back(day);
        if (rule.standing == eStanding::PublicWithSubstitute && IsWeekend(day))
            m_OnWeekend.push_back({&rule, day});
    }

    // Once all days of the year are known: each holiday on a weekend moves to the next weekday that isn't a
    // holiday itself, in the order of the days.
    void AddSubstitutes() {
        std::sort(m_OnWeekend.begin(), m_OnWeekend.end(),
                  [](const cOnWeekend& a, const cOnWeekend& b) { return a.day < b.day; });
        for (const auto& [rule, holiday] : m_OnWeekend) {
            std::int32_t day = holiday;
            while (IsWeekend(day) || IsFree(day)) ++day;
            Add(day, true, Utf8ToCodePage(rule->name) + " (substitute day)");
            m_FreeDays.push_back(day);
        }
    }

  private:
    struct cOnWeekend {
        const cHolidayRule* rule;
        std::int32_t day;
    };
    void Add(std::int32_t day, bool isFree, std::string name) {
        cHolidayLabel label{day, kLikeSaturday, False16, std::move(name)};
        if (isFree) {
            label.m_DayType = kLikeSunday;
            label.m_ViewInCalendar = True16;
        }
        m_Holidays.Add(std::move(label));
    }
    bool IsFree(std::int32_t day) const {
        return std::find(m_FreeDays.begin(), m_FreeDays.end(), day) != m_FreeDays.end();
    }

    cHolidays& m_Holidays;
    std::vector<std::int32_t> m_FreeDays;
    std::vector<cOnWeekend> m_OnWeekend;
};

}  // namespace

// By the paschal full moon: the age of the moon from the year's place in the cycle of 19 years, corrected by
// the leap days and the moon's drift that the Gregorian reform took into account.
DateTime EasterSunday(int year) {
    const int golden = year % 19;
    const int century = year / 100;
    const int moonDrift = (century - (century + 8) / 25 + 1) / 3;
    const int daysToFullMoon = (19 * golden + century - century / 4 - moonDrift + 15) % 30;
    const int daysToSunday = (32 + 2 * (century % 4) + 2 * (year % 100 / 4) - daysToFullMoon - year % 4) % 7;
    // Two full moons that would fall too late are moved a day.
    const int correction = (golden + 11 * daysToFullMoon + 22 * daysToSunday) / 451;
    return DateSerial(year, 3, 22) + daysToFullMoon + daysToSunday - 7 * correction;
}

cHolidays PublicHolidays(std::string_view code) {
    cHolidays holidays;
    const std::vector<cHolidayRule> rules = HolidayRules(code);
    for (int year = kFirstCalendarYear; year <= kLastCalendarYear; ++year) {
        cHolidayYear ofYear(holidays);
        for (const cHolidayRule& rule : rules) {
            if (year < rule.firstYear || year > rule.lastYear) continue;
            ofYear.Add(rule, CalendarIndex(DateOfRule(rule, year)));
        }
        ofYear.AddSubstitutes();
    }
    return holidays;
}

}  // namespace vigrel
