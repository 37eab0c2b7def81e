#include "common/date_pattern.h"

#include <algorithm>
#include <array>

#include "common/code_page.h"
#include "common/text.h"

namespace vigrel {
namespace {

struct cSpelling {
    std::string_view text;
    eDateSymbol symbol;
};

// Of spellings that begin alike the longer stands first.
constexpr std::array<cSpelling, 29> kSpellings{{
    {"AM/PM", eDateSymbol::OwnHalfOfDay},
    {"AMPM", eDateSymbol::LocaleHalfOfDay},
    {"A/P", eDateSymbol::OwnHalfOfDay},
    {"dddddd", eDateSymbol::LongDate},
    {"ddddd", eDateSymbol::ShortDate},
    {"dddd", eDateSymbol::DayName},
    {"ddd", eDateSymbol::DayShortName},
    {"dd", eDateSymbol::DayTwoDigits},
    {"d", eDateSymbol::Day},
    {"ww", eDateSymbol::Week},
    {"w", eDateSymbol::Weekday},
    {"mmmm", eDateSymbol::MonthName},
    {"mmm", eDateSymbol::MonthShortName},
    {"mm", eDateSymbol::MonthTwoDigits},
    {"m", eDateSymbol::Month},
    {"q", eDateSymbol::Quarter},
    {"yyyy", eDateSymbol::Year},
    {"yy", eDateSymbol::YearTwoDigits},
    {"y", eDateSymbol::DayOfYear},
    {"hh", eDateSymbol::HourTwoDigits},
    {"h", eDateSymbol::Hour},
    {"nn", eDateSymbol::MinuteTwoDigits},
    {"n", eDateSymbol::Minute},
    {"ss", eDateSymbol::SecondTwoDigits},
    {"s", eDateSymbol::Second},
    {"ttttt", eDateSymbol::LongTime},
    {"c", eDateSymbol::DateAndTime},
    {"/", eDateSymbol::DateSeparator},
    {":", eDateSymbol::TimeSeparator},
}};

bool IsLetter(char character) {
    return ToUpper(character) != ToLower(character);
}

// Cuts count characters from the front of the pattern.
std::string Take(std::string_view& pattern, std::size_t count) {
    std::string taken(pattern.substr(0, count));
    pattern.remove_prefix(taken.size());
    return taken;
}

std::string TakeQuoted(std::string_view& pattern) {
    Take(pattern, 1);
    std::string text = Take(pattern, pattern.find('"'));
    Take(pattern, 1);
    return text;
}

std::string TakeEscaped(std::string_view& pattern) {
    if (pattern.size() > 1) Take(pattern, 1);
    return Take(pattern, 1);
}

cDateToken TakeSymbol(std::string_view& pattern) {
    const auto* spelling = std::find_if(kSpellings.begin(), kSpellings.end(), [&](const cSpelling& s) {
        return EqualsNoCase(pattern.substr(0, s.text.size()), s.text);
    });
    if (spelling == kSpellings.end()) return {eDateSymbol::Literal, Take(pattern, 1)};
    return {spelling->symbol, Take(pattern, spelling->text.size())};
}

// Patterns are commonly written with "m" for months and minutes alike; it is the hour in front that tells.
void MonthBehindHourIsMinute(cDateToken& token) {
    if (token.symbol == eDateSymbol::Month) token.symbol = eDateSymbol::Minute;
    if (token.symbol == eDateSymbol::MonthTwoDigits) token.symbol = eDateSymbol::MinuteTwoDigits;
}

// Whether a month behind this token is one behind an hour.
bool KeepsHour(const cDateToken& token, bool behindHour) {
    switch (token.symbol) {
        case eDateSymbol::Hour:
        case eDateSymbol::HourTwoDigits:
            return true;
        case eDateSymbol::Literal:
            return behindHour && !IsLetter(token.text[0]);
        case eDateSymbol::DateSeparator:
        case eDateSymbol::TimeSeparator:
            return behindHour;
        default:
            return false;
    }
}

}  // namespace

std::vector<cDateToken> SplitDatePattern(std::string_view pattern) {
    std::vector<cDateToken> tokens;
    bool behindHour = false;
    while (!pattern.empty()) {
        // What is quoted is no part of the pattern's own letters, and leaves hour and minute side by side.
        if (pattern[0] == '"') {
            tokens.push_back({eDateSymbol::Literal, TakeQuoted(pattern)});
        } else if (pattern[0] == '\\') {
            tokens.push_back({eDateSymbol::Literal, TakeEscaped(pattern)});
        } else {
            tokens.push_back(TakeSymbol(pattern));
            if (behindHour) MonthBehindHourIsMinute(tokens.back());
            behindHour = KeepsHour(tokens.back(), behindHour);
        }
    }
    return tokens;
}

}  // namespace vigrel
