#include "vigrel-report/figures/load.h"

#include "vigrel-report/figures/periods.h"

namespace vigrel::report {
namespace {

// Marks the bins that the record knows at least half of.
void MarkObserved(cBins& bins, const Spans& known) {
    std::vector<Seconds> covered(bins.counts.size());
    for (const cSpan& span : known) {
        auto bin = static_cast<std::size_t>(std::max<Seconds>(span.begin - bins.begin, 0) / bins.length);
        for (; bin < covered.size() && bins.BeginOf(bin) < span.end; ++bin) {
            covered[bin] +=
                std::min(span.end, bins.BeginOf(bin + 1)) - std::max(span.begin, bins.BeginOf(bin));
        }
    }
    for (std::size_t bin = 0; bin < covered.size(); ++bin) {
        bins.observed[bin] = bins.counts[bin] > 0 || 2 * covered[bin] >= bins.length;
    }
}

double ShareAbove(const cBins& bins, double limit) {
    std::size_t observed = 0, above = 0;
    for (std::size_t bin = 0; bin < bins.counts.size(); ++bin) {
        observed += bins.observed[bin] ? 1 : 0;
        above += bins.counts[bin] > limit ? 1 : 0;
    }
    return observed == 0 ? 0 : static_cast<double>(above) / static_cast<double>(observed);
}

// The first bin can begin before the period, and the last one end behind it.
void CutFloods(std::vector<cFlood>& floods, const cSpan& period) {
    for (cFlood& flood : floods) {
        flood.span = {std::max(flood.span.begin, period.begin), std::min(flood.span.end, period.end)};
    }
}

// The record needn't know all of a flood's time, which can begin and end in the midst of ten minutes.
Spans KnownTimesOf(const std::vector<cFlood>& floods, const Spans& known) {
    Spans times;
    for (const cFlood& flood : floods) {
        const Spans within = Within(known, flood.span);
        times.insert(times.end(), within.begin(), within.end());
    }
    return times;
}

std::vector<cFlood> FindFloods(const cBins& bins, int operators, bool flooded = false) {
    std::vector<cFlood> floods;
    for (std::size_t bin = 0; bin < bins.counts.size(); ++bin) {
        const double load = static_cast<double>(bins.counts[bin]) / operators;
        const bool goesOn = flooded && bins.observed[bin] && load >= kFloodEnds;
        if (!goesOn) flooded = load > kFloodBegins;
        if (!flooded) continue;
        if (!goesOn || floods.empty()) floods.push_back({{bins.BeginOf(bin), 0}, 0, 0, {}});
        cFlood& flood = floods.back();
        flood.span.end = bins.BeginOf(bin + 1);
        flood.alarms += bins.counts[bin];
        flood.peak = std::max<std::size_t>(flood.peak, bins.counts[bin]);
    }
    return floods;
}

// Whether a flood that began before stands when the period's first bin begins.
bool StandsBefore(const cBins& bins, const cPlant& plant, const cTimeZone& zone, int operators) {
    if (plant.known.empty() || plant.known.front().begin >= bins.begin) return false;
    const cBins before = CountBins(plant, {plant.known.front().begin, bins.begin}, zone, bins.length);
    const std::vector<cFlood> floods = FindFloods(before, operators);
    return !floods.empty() && floods.back().span.end == bins.begin;
}

void FindFirstSources(std::vector<cFlood>& floods, const cPlant& plant) {
    for (cFlood& flood : floods) {
        for (const cActivation* activation : Activations(plant, flood.span)) {
            flood.firstSource = activation->source;
            break;
        }
    }
}

std::vector<cDayLoad> MeasureDays(const cLoad& load, const Spans& flooded, const cPlant& plant,
                                  const cSpan& period, const cTimeZone& zone) {
    std::vector<cDayLoad> days;
    for (Moment day = zone.Midnight(period.begin); day < period.end; day = zone.Midnight(day, 1)) {
        const cSpan span{std::max(day, period.begin), std::min(zone.Midnight(day, 1), period.end)};
        days.push_back(
            {day, 0, 0, TotalLength(Within(plant.known, span)), TotalLength(Within(flooded, span))});
    }
    std::size_t day = 0;
    for (std::size_t bin = 0; bin < load.bins.counts.size(); ++bin) {
        while (day + 1 < days.size() && load.bins.BeginOf(bin) >= days[day + 1].midnight) ++day;
        days[day].alarms += load.bins.counts[bin];
        days[day].peak = std::max<std::size_t>(days[day].peak, load.bins.counts[bin]);
    }
    return days;
}

double MeanDailyPeak(const std::vector<cDayLoad>& days) {
    std::size_t sum = 0, count = 0;
    for (const cDayLoad& day : days) {
        if (day.observed == 0 && day.alarms == 0) continue;
        sum += day.peak;
        ++count;
    }
    return count == 0 ? 0 : static_cast<double>(sum) / static_cast<double>(count);
}

}  // namespace

cBins CountBins(const cPlant& plant, const cSpan& period, const cTimeZone& zone, Seconds length) {
    const Seconds ahead = zone.AheadAt(period.begin);
    cBins bins;
    bins.length = length;
    bins.begin = (period.begin + ahead) / length * length - ahead;
    const auto count = static_cast<std::size_t>((period.end - bins.begin + length - 1) / length);
    bins.counts.resize(count);
    bins.observed.resize(count);
    for (const cActivation* activation : Activations(plant, period)) {
        ++bins.counts[static_cast<std::size_t>((activation->start - bins.begin) / length)];
    }
    MarkObserved(bins, Within(plant.known, period));
    return bins;
}

cLoad MeasureLoad(const cPlant& plant, const cSpan& period, const cTimeZone& zone, int operators) {
    cLoad load;
    load.bins = CountBins(plant, period, zone, kBin);
    load.observed = TotalLength(Within(plant.known, period));
    for (std::size_t bin = 0; bin < load.bins.counts.size(); ++bin) {
        load.activations += load.bins.counts[bin];
        if (load.bins.counts[bin] <= load.peak) continue;
        load.peak = load.bins.counts[bin];
        load.peakAt = load.bins.BeginOf(bin);
    }
    if (load.observed > 0) {
        const double rate =
            static_cast<double>(load.activations) / static_cast<double>(load.observed) / operators;
        load.perTenMinutes = rate * kBin;
        load.perHour = rate * kHour;
        load.perDay = rate * kDay;
    }
    load.busyBins = ShareAbove(load.bins, kFloodBegins * operators);
    load.busyHours = ShareAbove(CountBins(plant, period, zone, kHour), kBusyHour * operators);
    load.floods = FindFloods(load.bins, operators, StandsBefore(load.bins, plant, zone, operators));
    CutFloods(load.floods, period);
    FindFirstSources(load.floods, plant);
    const Spans flooded = KnownTimesOf(load.floods, plant.known);
    if (load.observed > 0)
        load.floodShare = static_cast<double>(TotalLength(flooded)) / static_cast<double>(load.observed);
    load.days = MeasureDays(load, flooded, plant, period, zone);
    load.meanDailyPeak = MeanDailyPeak(load.days);
    return load;
}

}  // namespace vigrel::report
