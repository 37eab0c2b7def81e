#include "categories/readable_colours.h"

#include <algorithm>

namespace vigrel {
namespace {

constexpr Colour kBlack = 0, kWhite = 0xFFFFFF;
constexpr int kSteps = 255;

double LeastContrastOf(Colour text, const cUserColor& color) {
    return std::min({Contrast(text, color.m_BackColor), Contrast(text, color.m_BackColorFade),
                     Contrast(text, color.m_BackColorFlash)});
}

// So many of the steps on the way from one colour to another.
Colour Between(Colour from, Colour to, int step) {
    Colour between = 0;
    for (const int shift : {0, 8, 16}) {
        const int first = (from >> shift) & 0xFF, last = (to >> shift) & 0xFF;
        between |= (first + (last - first) * step / kSteps) << shift;
    }
    return between;
}

}  // namespace

double LeastContrast(const cUserColor& color) {
    return LeastContrastOf(color.m_ForeColor, color);
}

Colour ReadableForeColor(const cUserColor& color) {
    const bool isBlackBetter = LeastContrastOf(kBlack, color) >= LeastContrastOf(kWhite, color);
    for (int step = 0; step <= kSteps; ++step) {
        for (const Colour end : {isBlackBetter ? kBlack : kWhite, isBlackBetter ? kWhite : kBlack}) {
            const Colour text = Between(color.m_ForeColor, end, step);
            if (LeastContrastOf(text, color) >= kReadableContrast) return text;
        }
    }
    return isBlackBetter ? kBlack : kWhite;
}

}  // namespace vigrel
