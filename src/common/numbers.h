#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vigrel {

// The numeric reading of a text: its longest numeric prefix (sign, digits, ".", digits, exponent), blanks
// ignored wherever they stand; 0 when there is none.
double Val(std::string_view text);
// Whether the whole text reads as one number; outer blanks are allowed.
bool IsNumeric(std::string_view text);

// Rounding to the nearest integer, ties to the even neighbour.
double RoundEven(double value);
// Rounded conversions; a value outside the range, or no number, throws cFailure (Overflow).
std::uint8_t ToByte(double value);
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);

// The shortest decimal text that reads back as the same value: "5000", "10.5", "-0.25".
std::string NumberText(double value);
// The decimal text of a value kept with 32-bit precision: at most seven significant digits.
std::string SingleText(float value);
// Decimal digits with leading zeros to at least that many characters: Digits(7, 3) is "007".
std::string Digits(std::int64_t value, int width);
// The last count characters of zeros with the digits behind them: LastDigits("1234", 2) is "34",
// LastDigits("7", 2) is "07".
std::string LastDigits(std::string_view digits, std::size_t count);
// Upper-case hexadecimal without leading zeros.
std::string HexText(std::uint32_t value);

}  // namespace vigrel
