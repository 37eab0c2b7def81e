#pragma once

#include <Qt>

namespace vigrel {

// The virtual-key code of a key as the report list's contract counts them; 0 for a key that has none.
int VirtualKeyCode(int qtKey, Qt::KeyboardModifiers modifiers);
// 1 shift, 2 control, 4 alt, added up.
int ShiftState(Qt::KeyboardModifiers modifiers);

}  // namespace vigrel
