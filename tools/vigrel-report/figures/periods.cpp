#include "vigrel-report/figures/periods.h"

#include <cmath>

namespace vigrel::report {

// The times of a clock that was set back are in no order, so all are looked at.
std::vector<const cActivation*> Activations(const cPlant& plant, const cSpan& period) {
    std::vector<const cActivation*> within;
    for (const cActivation& activation : plant.activations) {
        if (period.Holds(activation.start)) within.push_back(&activation);
    }
    return within;
}

Seconds Percentile(const std::vector<Seconds>& sorted, double share) {
    if (sorted.empty()) return 0;
    const double rank = std::ceil(share * static_cast<double>(sorted.size()));
    return sorted[static_cast<std::size_t>(std::max(rank, 1.0)) - 1];
}

double Median(const std::vector<Seconds>& sorted) {
    if (sorted.empty()) return 0;
    const std::size_t middle = sorted.size() / 2;
    if (sorted.size() % 2 == 1) return static_cast<double>(sorted[middle]);
    return static_cast<double>(sorted[middle - 1] + sorted[middle]) / 2;
}

}  // namespace vigrel::report
