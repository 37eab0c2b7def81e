#pragma once

#include <optional>
#include <string_view>

#include "common/phrase.h"

namespace vigrel {

// Why a typed text is not a time of day, in a sentence; none when it is one. The common reading of times
// makes something of every text ("25:30" is 24:00 there), which an operator who mistyped would not notice.
std::optional<cPhrase> FaultOfTimeText(std::string_view text);

}  // namespace vigrel
