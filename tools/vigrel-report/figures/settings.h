#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>

#include "vigrel-report/record/moments.h"

namespace vigrel::report {

enum class ePriority { Low, Medium, High };

// What the reader of a report decides.
struct cSettings {
    cSpan period;
    std::optional<cSpan> before;  // what the period is compared with
    int operators = 1;
    std::map<std::string, ePriority> priorities;  // by category in upper case; empty: no mapping
    int workBegins = 7, workEnds = 17;            // hours of the wall clock
    std::array<bool, 7> workDays = {true, true, true, true, true, false, false};  // Monday first
};

}  // namespace vigrel::report
