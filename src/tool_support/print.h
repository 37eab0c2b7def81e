#pragma once

#include <string>

namespace vigrel {

// Writes UTF-8 to standard output. Throws cFailure (DiskFull) when it takes no more.
void PrintOutput(const std::string& utf8);

}  // namespace vigrel
