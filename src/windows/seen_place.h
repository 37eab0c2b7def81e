#pragma once

#include <QRect>

namespace vigrel {

// Where a frame goes so that it is seen: where it is, or the corner of the first screen when it lies on none,
// as after a monitor went.
QPoint SeenPlace(const QRect& frame);

}  // namespace vigrel
