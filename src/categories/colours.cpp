#include "categories/colours.h"

#include <algorithm>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {

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

}  // namespace vigrel
