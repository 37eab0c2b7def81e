// All measurements of the system as one table: what it takes today, what a bare reference takes in the same
// run, their ratio, the target. Ends with 1 when a target is missed; docs/performance.md tells the figures.
//
//   bench [--short] [--plots FOLDER] [LINE]...
//
// --short: small numbers, to see that everything runs; its figures mean nothing and no target counts.
// LINE: only these of starts, answers, acknowledging, burst, popups, sorting, texts, export.

#include <QApplication>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <functional>
#include <string>
#include <vector>

#include "bench/receiver_lines.h"
#include "bench/sound_lines.h"
#include "bench/station_lines.h"

namespace {

using namespace vigrel::bench;

struct cGroup {
    const char* name;
    std::function<std::vector<cLine>(const cSize&)> measure;
};

// Answers come first, on a disk from which nothing was removed yet.
const std::vector<cGroup> kGroups{
    {"answers", MeasureAnswers}, {"starts", MeasureStarts}, {"acknowledging", MeasureAcknowledging},
    {"burst", MeasureBurst},     {"popups", MeasurePopups}, {"sorting", MeasureSorting},
    {"texts", MeasureTexts},     {"export", MeasureExport}, {"sound", MeasureSound}};

struct cOptions {
    bool shortForm = false;
    std::string plots;
    std::vector<std::string> only;
};

cOptions Read(int argc, char** argv) {
    cOptions options;
    for (int i = 1; i < argc; ++i) {
        const std::string option = argv[i];
        if (option == "--short") {
            options.shortForm = true;
        } else if (option == "--plots" && i + 1 < argc) {
            options.plots = argv[++i];
        } else {
            options.only.push_back(option);
        }
    }
    return options;
}

bool Wanted(const cOptions& options, const char* name) {
    return options.only.empty() ||
           std::find(options.only.begin(), options.only.end(), name) != options.only.end();
}

int Measure(const cOptions& options) {
    const cSize full{100'000, 2000, 5, 1000, 60, 2100, {0, 10'000, 100'000, 250'000, 500'000, 1'000'000}};
    const cSize brief{100, 20, 1, 10, 2, 0, {0, 100}};
    const cSize& size = options.shortForm ? brief : full;
    std::vector<cLine> lines;
    for (const cGroup& group : kGroups) {
        if (!Wanted(options, group.name)) continue;
        for (cLine& line : group.measure(size)) lines.push_back(std::move(line));
        std::fprintf(stderr, "%s measured\n", group.name);
    }
    const bool met = PrintTable(lines);
    if (!options.plots.empty()) PlotStations(size, options.plots);
    return met || options.shortForm ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    try {
        return Measure(Read(argc, argv));
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "bench: %s\n", failure.what());
        return 2;
    }
}
