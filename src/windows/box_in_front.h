#pragma once

namespace vigrel {

// A box that waits for its answer holds all other windows up: hidden behind one of them, or an icon, it would
// leave a program that seems to stand still. To be called behind what brings another window up.
void KeepBoxInFront();

}  // namespace vigrel
