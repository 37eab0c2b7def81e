#pragma once

#include <string>

#include "life/naive_alarm.h"

namespace vigrel::testing {

// A template of an alarm that is no message, expanded as plainly as it can be. Numbers in it are short and
// whole, and nothing in it is negative but an offset.
std::string NaiveExpanded(const cNaiveAlarm& alarm, const std::string& pattern, const std::string& extra,
                          const std::string& object);

}  // namespace vigrel::testing
