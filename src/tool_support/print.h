#pragma once

#include <string>
#include <string_view>

#include "common/printable.h"

namespace vigrel {

// Writes UTF-8 to standard output. Throws cFailure (DiskFull) when it takes no more.
void PrintOutput(const std::string& utf8);

// A line on standard error: the program's name, and a text that may name paths (common/path_text.h).
void PrintError(const std::string& program, std::string_view text);

}  // namespace vigrel
