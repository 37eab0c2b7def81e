#pragma once

#include <vector>

#include "vigrel-report/figures/plant.h"

namespace vigrel::report {

// The activations that began within a period, in the order in which they came.
std::vector<const cActivation*> Activations(const cPlant& plant, const cSpan& period);

// The smallest value that a share of the values doesn't exceed; the values are sorted. 0 without values.
Seconds Percentile(const std::vector<Seconds>& sorted, double share);
// The middle value, or the mean of the two in the middle.
double Median(const std::vector<Seconds>& sorted);

}  // namespace vigrel::report
