#pragma once

#include <string_view>

#include "common/failure.h"
#include "platform/files.h"

namespace vigrel {

// Whether a file is there, whatever it holds. Throws where that can't be told: a look that fails is no
// answer, and what is made in place of a file that is taken for missing replaces it.
inline bool IsThere(const cFileReader& files, std::string_view path) {
    const auto failure = CatchFailure([&] { files.ReadFile(path); });
    if (failure && failure->Number() == eFailure::FileNotFound) return false;
    // One that can't be read is there all the same.
    if (failure && !files.FileExists(path)) throw *failure;
    return true;
}

// Whether a file is certainly not there.
inline bool IsMissing(const cFileReader& files, std::string_view path) {
    bool missing = false;
    SkipFailure([&] { missing = !IsThere(files, path); });
    return missing;
}

}  // namespace vigrel
