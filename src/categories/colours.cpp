#include "categories/colours.h"

#include <algorithm>
#include <cmath>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

double Luminance(Colour colour) {
    const auto part = [&](int shift) {
        const double value = ((colour >> shift) & 0xFF) / 255.0;
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(0) + 0.7152 * part(8) + 0.0722 * part(16);
}

}  // namespace

ColourParts ColourPartsFromText(std::string_view text) {
    ColourParts parts{};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        parts[i] = ToInt16(Val(GetField(text, static_cast<std::int16_t>(i), ",")));
    }
    return parts;
}

Colour MakeColour(const ColourParts& parts) {
    Colour colour = 0;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (parts[i] < 0) throw cFailure(eFailure::InvalidCall, "a colour is negative");
        colour |= std::min<Colour>(parts[i], 255) << (8 * i);
    }
    return colour;
}

Colour ColorFromText(std::string_view text) {
    Colour colour = 0xFFFFFF;
    SkipFailure([&] { colour = MakeColour(ColourPartsFromText(text)); });
    return colour;
}

double Contrast(Colour a, Colour b) {
    const auto [dark, light] = std::minmax({Luminance(a), Luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

}  // namespace vigrel
