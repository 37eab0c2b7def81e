#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace vigrel {

// A colour: red in the low byte, then green, then blue.
using Colour = std::int32_t;

// Red, green and blue.
using ColourParts = std::array<std::int16_t, 3>;

// Three decimal numbers, red, green and blue, separated by ",". A missing one is 0. Throws cFailure
// (Overflow) for one that 16 bits don't hold.
ColourParts ColourPartsFromText(std::string_view text);
// A part above 255 counts as 255; a negative one throws cFailure (InvalidCall).
Colour MakeColour(const ColourParts& parts);
// The colour of such a text; white when a number is negative or above 32,767.
Colour ColorFromText(std::string_view text);

// How far two colours stand apart, 1 to 21, as the accessibility guidelines for web content compute it.
double Contrast(Colour a, Colour b);
// The least contrast of text and ground that those guidelines ask for.
inline constexpr double kReadableContrast = 4.5;

}  // namespace vigrel
