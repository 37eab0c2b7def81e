#include "tool_support/print.h"

#include <cstdio>

#include "common/failure.h"

namespace vigrel {

void PrintOutput(const std::string& utf8) {
    if (std::fwrite(utf8.data(), 1, utf8.size(), stdout) != utf8.size() || std::fflush(stdout) != 0) {
        throw cFailure(eFailure::DiskFull, "standard output can't be written");
    }
}

}  // namespace vigrel
