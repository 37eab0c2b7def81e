#pragma once

#include <optional>
#include <vector>

#include "vigrel-report/figures/plant.h"

namespace vigrel::report {

struct cSourceCount {
    std::uint32_t source = 0;
    std::size_t activations = 0;
};

struct cSourceFigures {
    std::vector<cSourceCount> ranking;  // most activations first; equal ones by name
    double topTenShare = 0;
    // The fewest sources that make four fifths of all activations.
    std::size_t makeEighty = 0;
};
inline constexpr std::size_t kTop = 10;

cSourceFigures RankSources(const cPlant& plant, const cAlarmNames& names, const cSpan& period);

}  // namespace vigrel::report
