#pragma once

#include <vector>

#include "bench/station_lines.h"
#include "bench/table.h"

namespace vigrel::bench {

// A receiver in this process: what can only be seen from inside. They need an application of the toolkit.
std::vector<cLine> MeasureAcknowledging(const cSize& size);
std::vector<cLine> MeasureBurst(const cSize& size);
std::vector<cLine> MeasurePopups(const cSize& size);
std::vector<cLine> MeasureSorting(const cSize& size);
std::vector<cLine> MeasureTexts(const cSize& size);

}  // namespace vigrel::bench
