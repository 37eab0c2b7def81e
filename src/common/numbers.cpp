#include "common/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "common/failure.h"

namespace vigrel {
namespace {

// Beyond the exponent of any number that a text can bring back into range by its digits.
constexpr std::int64_t kFarExponent = std::int64_t{1} << 60;

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Length of the longest numeric prefix of a text without blanks.
std::size_t NumericPrefix(std::string_view text) {
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    const std::size_t digits = i;
    while (i < text.size() && IsDigit(text[i])) ++i;
    std::size_t count = i - digits;
    if (i < text.size() && text[i] == '.') {
        std::size_t j = i + 1;
        while (j < text.size() && IsDigit(text[j])) ++j;
        if (count + (j - i - 1) > 0) {
            count += j - i - 1;
            i = j;
        }
    }
    if (count == 0) return 0;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        std::size_t j = i + 1;
        if (j < text.size() && (text[j] == '+' || text[j] == '-')) ++j;
        const std::size_t exponent = j;
        while (j < text.size() && IsDigit(text[j])) ++j;
        if (j > exponent) i = j;
    }
    return i;
}

// Decimal exponent of the first digit that isn't 0, of a numeric prefix that has one.
std::int64_t Magnitude(std::string_view number) {
    const std::size_t e = std::min(number.find_first_of("eE"), number.size());
    std::int64_t exponent = 0;
    if (e < number.size()) {
        const std::string_view digits = number.substr(e + (number[e + 1] == '+' ? 2 : 1));
        const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
        if (result.ec == std::errc::result_out_of_range)
            exponent = digits[0] == '-' ? -kFarExponent : kFarExponent;
    }
    const auto point = static_cast<std::int64_t>(std::min(number.find('.'), e));
    const auto first = static_cast<std::int64_t>(number.find_first_of("123456789"));
    return exponent + point - first;
}

double ToDouble(std::string_view number) {
    if (!number.empty() && number[0] == '+') number.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec != std::errc::result_out_of_range) return value;
    // Out of the range of a double: too small is 0, too large can't be converted to anything further on.
    if (Magnitude(number) < 0) return 0;
    return number[0] == '-' ? -std::numeric_limits<double>::infinity()
                            : std::numeric_limits<double>::infinity();
}

template <class Integer>
Integer ToInteger(double value) {
    const double rounded = RoundEven(value);
    if (!(rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
          rounded <= static_cast<double>(std::numeric_limits<Integer>::max()))) {
        throw cFailure(eFailure::Overflow, {Pattern("Reasons", "the number %1 does not fit %2 bits"),
                                            {NumberText(value), std::to_string(sizeof(Integer) * 8)}});
    }
    return static_cast<Integer>(rounded);
}

}  // namespace

double Val(std::string_view text) {
    std::string number;
    number.reserve(text.size());
    for (const char c : text) {
        if (!IsBlank(c)) number.push_back(c);
    }
    return ToDouble(std::string_view(number).substr(0, NumericPrefix(number)));
}

bool IsNumeric(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return !text.empty() && NumericPrefix(text) == text.size() && std::isfinite(ToDouble(text));
}

// The default rounding mode is nearest, ties to even, and nothing in the system changes it.
double RoundEven(double value) {
    return std::nearbyint(value);
}

std::uint8_t ToByte(double value) {
    return ToInteger<std::uint8_t>(value);
}
std::int16_t ToInt16(double value) {
    return ToInteger<std::int16_t>(value);
}
std::int32_t ToInt32(double value) {
    return ToInteger<std::int32_t>(value);
}

std::string NumberText(double value) {
    std::array<char, 400> buffer{};
    // Fixed form for all numbers of everyday size.
    const bool everyday = std::fabs(value) < 1e15 && (value == 0 || std::fabs(value) >= 1e-5);
    const auto result = everyday ? std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                                 std::chars_format::fixed)
                                 : std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return {buffer.data(), result.ptr};
}

std::string SingleText(float value) {
    std::array<char, 64> buffer{};
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, 7);
    return {buffer.data(), result.ptr};
}

std::string Digits(std::int64_t value, int width) {
    std::string digits = std::to_string(value);
    const std::size_t sign = value < 0 ? 1 : 0;
    const std::size_t count = digits.size() - sign;
    const auto wanted = static_cast<std::size_t>(width);
    if (count < wanted) digits.insert(sign, wanted - count, '0');
    return digits;
}

std::string LastDigits(std::string_view digits, std::size_t count) {
    const std::string padded = std::string(count, '0') + std::string(digits);
    return padded.substr(padded.size() - count);
}

std::string HexText(std::uint32_t value) {
    std::array<char, 8> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, 16);
    std::string text(buffer.data(), result.ptr);
    for (char& c : text) {
        if (c >= 'a') c = static_cast<char>(c - 'a' + 'A');
    }
    return text;
}

}  // namespace vigrel
