#pragma once

#include "platform/windows.h"

namespace vigrel {

// Places a window in the middle of the screen; one that is larger begins at the screen's edge.
inline void CenterForm(cWindow& form, const cScreen& screen) {
    const double left = (screen.Width() - form.Width()) / 2;
    const double top = (screen.Height() - form.Height()) / 2;
    form.SetLeft(left < 0 ? 0 : left);
    form.SetTop(top < 0 ? 0 : top);
}

// The result is not 0 on success.
inline short SetTopMost(cWindow& form, bool topMost) {
    form.SetTopMost(topMost);
    return 1;
}

}  // namespace vigrel
