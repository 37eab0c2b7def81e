#pragma once

#include <cstdint>
#include <string>

#include "common/texts.h"

namespace vigrel {

// What the language calls a status; empty for a message and for a number that is no status.
std::string StatusText(const cTexts& texts, std::int16_t status);

}  // namespace vigrel
