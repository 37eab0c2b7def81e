#pragma once

#include <string>
#include <string_view>

namespace vigrel {

// The path as the operating system knows it, byte by byte, spelled as given: separators mapped.
std::string SpelledPath(std::string_view path);

// The same with every part that exists under another case spelled as it stands on disk. Where a name has
// several spellings, the given one is preferred to others; but one that is no ordinary file (no folder,
// inside the path) counts only where no other spelling is one.
// Throws cFailure when a folder can't be searched for now, as without a free descriptor: a name that was not
// looked for is not a missing one.
std::string NativePath(std::string_view path);

}  // namespace vigrel
