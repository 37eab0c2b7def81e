#include "common/standard_error.h"

#include <cstdio>

#include "common/printable.h"

namespace vigrel {

void PrintError(std::string_view who, std::string_view text) {
    const std::string line = PrintablePath(who) + ": " + PrintablePath(text) + "\n";
    std::fputs(line.c_str(), stderr);
}

}  // namespace vigrel
