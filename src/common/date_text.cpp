#include "common/date_text.h"

#include <array>

#include "common/dates.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

// Takes exactly that many digits from the front of a text.
std::optional<int> TakeDigits(std::string_view& text, std::size_t count) {
    if (text.size() < count) return std::nullopt;
    int value = 0;
    for (const char c : text.substr(0, count)) {
        if (c < '0' || c > '9') return std::nullopt;
        value = value * 10 + (c - '0');
    }
    text.remove_prefix(count);
    return value;
}

bool TakeOneOf(std::string_view& text, std::string_view characters) {
    if (text.empty() || characters.find(text[0]) == std::string_view::npos) return false;
    text.remove_prefix(1);
    return true;
}

std::optional<DateTime> TakeDate(std::string_view& text) {
    const auto year = TakeDigits(text, 4);
    if (!year || *year < 100 || !TakeOneOf(text, "-")) return std::nullopt;
    const auto month = TakeDigits(text, 2);
    if (!month || *month < 1 || *month > 12 || !TakeOneOf(text, "-")) return std::nullopt;
    const auto day = TakeDigits(text, 2);
    if (!day || *day < 1) return std::nullopt;
    const DateTime date = DateSerial(*year, *month, 1);
    // A day behind the month's end would be carried into the next month.
    if (*day > 28 && SplitDateTime(date + *day - 1).month != *month) return std::nullopt;
    return date + *day - 1;
}

std::optional<DateTime> TakeTime(std::string_view& text) {
    std::array<int, 3> parts{};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i == 2 && text.empty()) break;
        if (i > 0 && !TakeOneOf(text, ":")) return std::nullopt;
        const auto part = TakeDigits(text, 2);
        if (!part || *part > (i == 0 ? 23 : 59)) return std::nullopt;
        parts[i] = *part;
    }
    return TimeSerial(parts[0], parts[1], parts[2]);
}

std::string Written(const cDateParts& parts) {
    return Digits(parts.year, 4) + "-" + Digits(parts.month, 2) + "-" + Digits(parts.day, 2) + " " +
           Digits(parts.hour, 2) + ":" + Digits(parts.minute, 2) + ":" + Digits(parts.second, 2);
}

}  // namespace

std::string DateTimeText(DateTime value) {
    std::string text = NumberText(value);
    SkipFailure([&] { text = Written(SplitDateTime(value)); });
    return text;
}

std::optional<DateTime> ParseDateTimeText(std::string_view text) {
    const std::string trimmed = Trim(text);
    std::string_view rest = trimmed;
    const auto date = TakeDate(rest);
    if (!date || rest.empty()) return date;
    if (!TakeOneOf(rest, " Tt")) return std::nullopt;
    const auto time = TakeTime(rest);
    if (!time || !rest.empty()) return std::nullopt;
    // In front of day 0 the fraction counts forward in its absolute value.
    return *date < 0 ? *date - *time : *date + *time;
}

}  // namespace vigrel
