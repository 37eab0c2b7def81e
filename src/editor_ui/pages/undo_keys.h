#pragma once

#include <functional>

class QLineEdit;

namespace vigrel {

// A field's own undo would be a second history beside the page's. This leaves the keys of undo and redo,
// which a field takes first, to the page. With takeBack, undo in a field that was typed in but not taken over
// yet takes the typing back instead.
void LeaveUndoToPage(QLineEdit& field, std::function<void()> takeBack = nullptr);

}  // namespace vigrel
