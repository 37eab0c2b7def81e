#pragma once

#include <string_view>

namespace vigrel {

// A line on standard error: who says it, and a text that may name paths (common/path_text.h). It can be a
// terminal, so neither may steer it (common/printable.h).
void PrintError(std::string_view who, std::string_view text);

}  // namespace vigrel
