#include "schedule/time_text.h"

#include <algorithm>

#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

constexpr std::string_view kSeparators = ":., -+";
constexpr std::size_t kMostDigits = 4;  // without a separator: hours and minutes
constexpr int kLastMinute = 59, kMinutesOfADay = 24 * 60;

bool IsOneOrTwoDigits(std::string_view text) {
    return !text.empty() && text.size() <= 2 &&
           text.find_first_not_of("0123456789") == std::string_view::npos;
}

// The hours and minutes that a text of digits means: up to two are hours, unless they begin with 0.
std::string WithSeparator(std::string digits) {
    if (digits[0] != '0' && digits.size() < 3) digits += "00";
    digits.insert(0, kMostDigits - digits.size(), '0');
    return digits.insert(2, ":");
}

}  // namespace

std::optional<cPhrase> FaultOfTimeText(std::string_view text) {
    const std::string typed(text);
    const cPhrase noTime{Pattern("Reasons", "\"%1\" is not a time such as 8, 0830 or 16:30."), {typed}};
    std::string time = Trim(text);
    if (time.empty()) return Pattern("Reasons", "The time is missing.");
    std::size_t separator = time.find_first_of(kSeparators);
    if (separator == std::string::npos) {
        if (time.size() > kMostDigits || time.find_first_not_of("0123456789") != std::string::npos) {
            return noTime;
        }
        time = WithSeparator(time);
        separator = 2;
    }
    const std::string hours = time.substr(0, separator), minutes = time.substr(separator + 1);
    if (!IsOneOrTwoDigits(hours) || !IsOneOrTwoDigits(minutes)) return noTime;
    if (Val(minutes) > kLastMinute) {
        return cPhrase{Pattern("Reasons", "\"%1\" has more than 59 minutes."), {typed}};
    }
    if (Val(hours) * 60 + Val(minutes) > kMinutesOfADay) {
        return cPhrase{Pattern("Reasons", "\"%1\" lies behind 24:00."), {typed}};
    }
    return std::nullopt;
}

}  // namespace vigrel
