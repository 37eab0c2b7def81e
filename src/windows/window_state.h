#pragma once

#include <Qt>

#include "platform/windows.h"

class QWidget;

namespace vigrel {

eWindowState StateOf(const QWidget& window);
// The toolkit's state with the given one in it. An icon comes back as what it was made of.
Qt::WindowStates WithState(Qt::WindowStates now, eWindowState state);

}  // namespace vigrel
