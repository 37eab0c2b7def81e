#pragma once

#include <algorithm>
#include <cmath>

namespace vigrel {

// The toolkit's pixel is 1/96 inch at every scale of the screen.
inline constexpr double kTwipsPerPixel = 15;

inline double ToTwips(double pixels) {
    return pixels * kTwipsPerPixel;
}
// The nearest pixel, within what the window system can hold.
inline int ToPixels(double twips) {
    constexpr double kMost = 32000;
    return static_cast<int>(std::lround(std::clamp(twips / kTwipsPerPixel, -kMost, kMost)));
}

}  // namespace vigrel
