#pragma once

#include <QColor>
#include <cstdint>

namespace vigrel {

// A colour as settings number it: red in the low byte, then green, then blue.
inline QColor ColourFromNumber(std::int32_t number) {
    return QColor(number & 0xFF, (number >> 8) & 0xFF, (number >> 16) & 0xFF);
}

}  // namespace vigrel
