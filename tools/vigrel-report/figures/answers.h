#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "vigrel-report/figures/nuisance.h"
#include "vigrel-report/figures/settings.h"

namespace vigrel::report {

struct cAnswerTimes {
    std::size_t count = 0;
    double median = 0;  // seconds
    Seconds ninetieth = 0, most = 0;
    std::size_t untimed = 0;  // acknowledged, the time isn't known
    std::size_t never = 0;
};

struct cGroupAnswers {
    std::string category;               // in the code page; of a group by priority: empty
    std::optional<ePriority> priority;  // nothing: not mapped
    std::size_t activations = 0;
    cAnswerTimes times;
};

struct cAnswers {
    cAnswerTimes all;
    std::vector<cGroupAnswers> categories;  // most activations first
    std::vector<cGroupAnswers> priorities;  // high, medium, low, not mapped; empty without a mapping
    std::size_t leftOut = 0;                // chattering, fleeting, stale
};
cAnswers MeasureAnswers(const cPlant& plant, const cAlarmNames& names, const cSettings& settings,
                        const cSpan& period, const cNuisance& nuisance);

}  // namespace vigrel::report
