#pragma once

#include "common/delivered_texts.h"

namespace vigrel {

// The texts of all languages that the programs carry in themselves.
cDeliveredTexts BuiltInTexts();

}  // namespace vigrel
