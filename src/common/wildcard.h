#pragma once

#include <string_view>

#include "common/binary.h"

namespace vigrel {

// Whether the whole text fits a pattern of "?" (any one character), "*" (any run) and other characters
// (themselves; case counts). A run ends at the first place where what follows it in the pattern is found, and
// no other place is tried later: "*a" doesn't fit "aba". An empty text fits "*" alone. A pattern is cut
// behind its 31st part, a part being a run of "?", a "*" with the characters behind it, or characters in
// front of any of these.
Boolean16 WildcardMatch(std::string_view text, std::string_view pattern);

}  // namespace vigrel
