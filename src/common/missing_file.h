#pragma once

#include <string_view>

#include "common/failure.h"
#include "platform/files.h"

namespace vigrel {

// Whether a file is certainly not there. A look that fails is no answer: what is made in place of a file that
// is taken for missing replaces it.
inline bool IsMissing(const cFileReader& files, std::string_view path) {
    const auto failure = CatchFailure([&] { files.ReadFile(path); });
    return failure && failure->Number() == eFailure::FileNotFound;
}

}  // namespace vigrel
