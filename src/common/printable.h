#pragma once

#include <string>
#include <string_view>

namespace vigrel {

// A text of the code page as it can be shown on a terminal, in UTF-8: control characters become escapes like
// "\n" and "\x1B", so that neither a file nor a peer can steer the terminal.
std::string Printable(std::string_view text);

// The same of a text that may name paths (common/path_text.h), which come in their own script; a byte of them
// that belongs to no text becomes an escape too ("\xFF"), so that a shell that is given it finds the file.
std::string PrintablePath(std::string_view text);

}  // namespace vigrel
