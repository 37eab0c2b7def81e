#pragma once

#include <vector>

#include "bench/table.h"

namespace vigrel::bench {

// How much is measured. The short form takes seconds and shows that everything runs.
struct cSize {
    int stored, alarms, rounds, popups, sounds;
    int settles;               // milliseconds until a configuration counts as unchanged
    std::vector<int> plotted;  // numbers of stored alarms
};

// Whole stations, from outside: starts, memory, system calls, answers a second.
std::vector<cLine> MeasureStarts(const cSize& size);
std::vector<cLine> MeasureAnswers(const cSize& size);
std::vector<cLine> MeasureExport(const cSize& size);
// Writes start.svg, memory.svg and rate.svg into the folder.
void PlotStations(const cSize& size, const std::string& folder);

}  // namespace vigrel::bench
