#pragma once

class QWidget;

namespace vigrel {

// The widget within an area that scrolls as soon as it doesn't fit, and that shows the field which
// has the keyboard. The area owns it.
QWidget* Scrolled(QWidget* widget);

}  // namespace vigrel
