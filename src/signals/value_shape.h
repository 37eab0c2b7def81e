#pragma once

#include <string>
#include <string_view>

namespace vigrel {

// What happens to the value of a field of an event template before it is put in place. A step that fails
// leaves the value as it is.

// The longest that a width or a replacement makes a value; a step that would make it longer fails.
inline constexpr std::size_t kLongestValue = 65535;

// Range and width of a token "NAME:range:width". The range "from-to" counts from 0, "to" inclusive; a missing
// or smaller "to" is "from". The width pads with blanks or cuts.
std::string ShapeValue(std::string value, std::string_view token);

// Whether a token's upper-cased name is that of a modifier: REPLACE, R, CUTFROM, CF, CUTUNTIL, CU.
bool IsModifier(std::string_view name);

// Applies a modifier token "NAME:find:argument". The search ignores case.
// - CUTUNTIL keeps what stands behind the first occurrence, from as many characters further as the argument
// says.
// - CUTFROM keeps what stands in front of the first occurrence, up to as many characters further.
// - REPLACE runs one round for each occurrence that a search finds which goes on behind each inserted text.
// Each round
//   replaces the first occurrence in the whole value as it then stands, which may lie in inserted text.
std::string ApplyModifier(std::string value, std::string_view modifier);

}  // namespace vigrel
