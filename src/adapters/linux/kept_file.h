#pragma once

#include <string>

namespace vigrel {

// Gives an open file the mode, the owner, the access list and the user's attributes of another one, as far as
// the system lets us and never opening it to more users than the other; nothing when the other is no ordinary
// file. By the descriptor: the name of the open file can be another file's by now. Does not fail. The path is
// the machine's.
void GiveAttributes(int descriptor, const std::string& like);

}  // namespace vigrel
