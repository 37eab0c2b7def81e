#pragma once

namespace vigrel {

// Hands what windows were told to the window system now. Without this, changes of the stacking order stay in
// the toolkit's buffer until something else is sent.
void FlushToScreen();

}  // namespace vigrel
