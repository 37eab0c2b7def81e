#pragma once

#include <vector>

#include "bench/station_lines.h"
#include "bench/table.h"

namespace vigrel::bench {

// Publishes the time from an alarm's last byte to the first sample of its sound, as a recording of the sound
// server hears it; the sound begins at a tick of the station, twice a second. Needs an application of the
// toolkit.
std::vector<cLine> MeasureSound(const cSize& size);

}  // namespace vigrel::bench
