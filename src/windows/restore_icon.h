#pragma once

class QWidget;

namespace vigrel {

// Makes a window of an icon. The toolkit alone doesn't as long as it has not heard from the window manager
// that the window is one.
void RestoreFromIcon(QWidget& window);

}  // namespace vigrel
