#pragma once

#include <optional>
#include <vector>

#include "vigrel-report/figures/plant.h"

namespace vigrel::report {

inline constexpr Seconds kBin = 10 * kMinute;
// Alarms for each operator in ten minutes above which a flood begins, and below which it is over.
inline constexpr double kFloodBegins = 10, kFloodEnds = 5;
inline constexpr double kBusyHour = 30;

// Alarms of each bin of a period; the bins are aligned to the wall clock.
struct cBins {
    Moment begin = 0;  // of the first bin
    Seconds length = kBin;
    std::vector<std::uint32_t> counts;
    std::vector<bool> observed;  // the record knows at least half of the bin, or an alarm in it
    Moment BeginOf(std::size_t bin) const { return begin + static_cast<Seconds>(bin) * length; }
};
cBins CountBins(const cPlant& plant, const cSpan& period, const cTimeZone& zone, Seconds length);

struct cFlood {
    cSpan span;
    std::size_t alarms = 0, peak = 0;
    std::optional<std::uint32_t> firstSource;
};

struct cDayLoad {
    Moment midnight = 0;
    std::size_t alarms = 0, peak = 0;
    Seconds observed = 0, flooded = 0;
};

struct cLoad {
    std::size_t activations = 0;
    Seconds observed = 0;
    double perTenMinutes = 0, perHour = 0, perDay = 0;  // for each operator
    std::size_t peak = 0;                               // the largest bin
    Moment peakAt = 0;
    double meanDailyPeak = 0;
    double busyBins = 0, busyHours = 0;  // shares of the observed ones
    std::vector<cFlood> floods;
    double floodShare = 0;  // of the observed time
    std::vector<cDayLoad> days;
    cBins bins;
};
cLoad MeasureLoad(const cPlant& plant, const cSpan& period, const cTimeZone& zone, int operators);

}  // namespace vigrel::report
