#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace vigrel {

// A colour: red in the low byte, then green, then blue. A part above 255 counts as 255, one below 0 as 0.
constexpr std::int32_t Rgb(int red, int green, int blue) {
    const auto part = [](int value) { return std::clamp(value, 0, 255); };
    return part(red) | part(green) << 8 | part(blue) << 16;
}
inline constexpr std::int32_t kBlack = Rgb(0, 0, 0), kWhite = Rgb(255, 255, 255);

enum class eMousePointer : std::int16_t { Normal = 0, SizeHorizontal = 9 };

// Names a drawing surface to those who draw on it beside the paint object (images).
using DeviceContext = std::uintptr_t;

// The surface that a schedule or a calendar is drawn on. Lengths are in units of the drawing, one pixel at
// 100 %; the surface scales them. The origin is the upper left corner. Nothing here fails.
class cPaintObject {
  public:
    virtual ~cPaintObject() = default;

    // A solid line, one unit wide, horizontal or vertical: from the first point up to, not including, the
    // second.
    virtual void Line(double x1, double y1, double x2, double y2, std::int32_t colour) = 0;
    // A filled box between two corners; the row and column of the second corner are not included.
    virtual void FillBox(double x1, double y1, double x2, double y2, std::int32_t colour) = 0;

    virtual double TextWidth(std::string_view text) const = 0;
    virtual double TextHeight(std::string_view text) const = 0;
    virtual void SetCurrentPosition(double x, double y) = 0;
    // Prints in the desktop's text colour; the current position is the text's upper left corner.
    virtual void Print(std::string_view text) = 0;

    virtual std::int32_t BackColour() const = 0;
    virtual void SetMousePointer(eMousePointer pointer) = 0;
    // Shown while the pointer rests on the surface; empty for none.
    virtual void SetToolTipText(std::string_view text) = 0;
    virtual DeviceContext GetDeviceContext() const = 0;
};

}  // namespace vigrel
