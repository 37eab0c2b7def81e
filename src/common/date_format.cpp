#include <algorithm>
#include <array>

#include "common/date_pattern.h"
#include "common/dates.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

// Where a pattern stands: as the caller gave it, or as one of the locale's forms that the caller's pattern
// names. A form of the locale can't name a form again, so that none can name itself.
enum class eOrigin { Caller, Locale };

class cDateFormatter {
  public:
    cDateFormatter(const cDateParts& parts, const cLocaleForms& forms) : m_Parts(parts), m_Forms(forms) {}

    std::string Pattern(std::string_view pattern, eOrigin origin) const;
    std::string GeneralDate() const;

  private:
    std::string Symbol(const cDateToken& token, bool twelveHours) const;
    std::string Form(const cDateToken& token, eOrigin origin) const;
    int Hour(bool twelveHours) const;
    int Week() const;
    std::string OwnHalfOfDay(std::string_view spelling) const;

    const cDateParts& m_Parts;
    const cLocaleForms& m_Forms;
};

bool NamesForm(eDateSymbol symbol) {
    return symbol == eDateSymbol::ShortDate || symbol == eDateSymbol::LongDate ||
           symbol == eDateSymbol::LongTime || symbol == eDateSymbol::DateAndTime;
}

bool IsHalfOfDay(eDateSymbol symbol) {
    return symbol == eDateSymbol::OwnHalfOfDay || symbol == eDateSymbol::LocaleHalfOfDay;
}

std::string cDateFormatter::Pattern(std::string_view pattern, eOrigin origin) const {
    const std::vector<cDateToken> tokens = SplitDatePattern(pattern);
    const bool twelveHours = std::any_of(tokens.begin(), tokens.end(),
                                         [](const cDateToken& token) { return IsHalfOfDay(token.symbol); });
    std::string text;
    for (const cDateToken& token : tokens) {
        text += NamesForm(token.symbol) ? Form(token, origin) : Symbol(token, twelveHours);
    }
    return text;
}

std::string cDateFormatter::Form(const cDateToken& token, eOrigin origin) const {
    if (origin == eOrigin::Locale) return token.text;
    switch (token.symbol) {
        case eDateSymbol::ShortDate:
            return Pattern(m_Forms.shortDate, eOrigin::Locale);
        case eDateSymbol::LongDate:
            return Pattern(m_Forms.longDate, eOrigin::Locale);
        case eDateSymbol::LongTime:
            return Pattern(m_Forms.longTime, eOrigin::Locale);
        default:
            return GeneralDate();
    }
}

// A value that is a time alone has no date to show, and one at midnight no time.
std::string cDateFormatter::GeneralDate() const {
    const bool hasDate = m_Parts.year != 1899 || m_Parts.month != 12 || m_Parts.day != 30;
    const bool hasTime = m_Parts.hour != 0 || m_Parts.minute != 0 || m_Parts.second != 0;
    if (!hasDate) return Pattern(m_Forms.longTime, eOrigin::Locale);
    const std::string date = Pattern(m_Forms.shortDate, eOrigin::Locale);
    return hasTime ? date + " " + Pattern(m_Forms.longTime, eOrigin::Locale) : date;
}

int cDateFormatter::Hour(bool twelveHours) const {
    return twelveHours ? (m_Parts.hour + 11) % 12 + 1 : m_Parts.hour;
}

int cDateFormatter::Week() const {
    const DateTime day = DateSerial(m_Parts.year, m_Parts.month, m_Parts.day);
    return WeekOfYear(day, 1, eFirstWeek::FirstOfJanuary);
}

std::string cDateFormatter::OwnHalfOfDay(std::string_view spelling) const {
    const std::size_t slash = spelling.find('/');
    return std::string(m_Parts.hour < 12 ? spelling.substr(0, slash) : spelling.substr(slash + 1));
}

std::string cDateFormatter::Symbol(const cDateToken& token, bool twelveHours) const {
    const auto weekday = static_cast<std::size_t>(m_Parts.weekday) - 1;
    const auto month = static_cast<std::size_t>(m_Parts.month) - 1;
    // clang-format off
    switch (token.symbol) {
        case eDateSymbol::Day: return Digits(m_Parts.day, 1);
        case eDateSymbol::DayTwoDigits: return Digits(m_Parts.day, 2);
        case eDateSymbol::DayShortName: return m_Forms.shortDayNames[weekday];
        case eDateSymbol::DayName: return m_Forms.dayNames[weekday];
        case eDateSymbol::Weekday: return Digits(m_Parts.weekday, 1);
        case eDateSymbol::Week: return Digits(Week(), 1);
        case eDateSymbol::Month: return Digits(m_Parts.month, 1);
        case eDateSymbol::MonthTwoDigits: return Digits(m_Parts.month, 2);
        case eDateSymbol::MonthShortName: return m_Forms.shortMonthNames[month];
        case eDateSymbol::MonthName: return m_Forms.monthNames[month];
        case eDateSymbol::Quarter: return Digits((m_Parts.month + 2) / 3, 1);
        case eDateSymbol::DayOfYear: return Digits(m_Parts.dayOfYear, 1);
        case eDateSymbol::YearTwoDigits: return Digits(m_Parts.year % 100, 2);
        case eDateSymbol::Year: return Digits(m_Parts.year, 4);
        case eDateSymbol::Hour: return Digits(Hour(twelveHours), 1);
        case eDateSymbol::HourTwoDigits: return Digits(Hour(twelveHours), 2);
        case eDateSymbol::Minute: return Digits(m_Parts.minute, 1);
        case eDateSymbol::MinuteTwoDigits: return Digits(m_Parts.minute, 2);
        case eDateSymbol::Second: return Digits(m_Parts.second, 1);
        case eDateSymbol::SecondTwoDigits: return Digits(m_Parts.second, 2);
        case eDateSymbol::OwnHalfOfDay: return OwnHalfOfDay(token.text);
        case eDateSymbol::LocaleHalfOfDay: return m_Parts.hour < 12 ? m_Forms.am : m_Forms.pm;
        case eDateSymbol::DateSeparator: return m_Forms.dateSeparator;
        case eDateSymbol::TimeSeparator: return m_Forms.timeSeparator;
        default: return token.text;
    }
    // clang-format on
}

struct cNamedForm {
    std::string_view name;
    std::string cLocaleForms::*pattern;
};

constexpr std::array<cNamedForm, 6> kNamedForms{{
    {"Long Date", &cLocaleForms::longDate},
    {"Medium Date", &cLocaleForms::mediumDate},
    {"Short Date", &cLocaleForms::shortDate},
    {"Long Time", &cLocaleForms::longTime},
    {"Medium Time", &cLocaleForms::mediumTime},
    {"Short Time", &cLocaleForms::shortTime},
}};

}  // namespace

std::string FormatDateTime(DateTime value, std::string_view pattern, const cLocaleForms& forms) {
    const cDateParts parts = SplitDateTime(value);
    const cDateFormatter formatter(parts, forms);
    if (pattern.empty() || EqualsNoCase(pattern, "General Date")) return formatter.GeneralDate();
    const auto* named = std::find_if(kNamedForms.begin(), kNamedForms.end(), [&](const cNamedForm& form) {
        return EqualsNoCase(form.name, pattern);
    });
    if (named != kNamedForms.end()) return formatter.Pattern(forms.*named->pattern, eOrigin::Locale);
    return formatter.Pattern(pattern, eOrigin::Caller);
}

}  // namespace vigrel
