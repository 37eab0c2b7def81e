// Input: the content of a daily log. Whatever it holds, what is read of it fits together.

#include "fuzz/fuzz_target.h"
#include "vigrel-report/figures/figures.h"
#include "vigrel-report/record/log_reader.h"

namespace {

using namespace vigrel;
using namespace vigrel::report;

cLogPhrases EnglishPhrases() {
    cLogPhrases phrases;
    phrases.start = "Start";
    phrases.started = "Started";
    phrases.endByOperator = "End";
    phrases.acknowledged = "Ack: ";
    phrases.popupOpened = "Popup: ";
    phrases.printFailed = "Print: ";
    phrases.alarm = " alarm: ";
    phrases.message = " message -> ";
    phrases.keepAlive = " lives";
    phrases.removed = " removed";
    phrases.supervised = " - every ";
    phrases.minutes = " min";
    phrases.lost = " - lost ";
    return phrases;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr WallTime kMidnight = 1774137600;  // 2026-03-22
    const cTimeZone zone(3600, {{kMidnight + 2 * kHour, 0}});
    cLogForms forms({cLogPhrases(), EnglishPhrases()});
    cAlarmNames names;
    cStationRecord record;
    cLogReader reader(zone, forms, names, record);
    const std::string_view content = fuzz::Text(data, size);
    reader.ReadDay(kMidnight, content.substr(0, size / 2));
    reader.ReadDay(kMidnight + kDay, content.substr(size / 2));
    reader.Finish({});
    const std::size_t events = record.alarms.size();
    for (std::size_t i = 1; i < events; ++i) {
        fuzz::Require(record.alarms[i - 1].order <= record.alarms[i].order, "events are in order");
    }
    const cRecordFaults faults = record.faults;
    fuzz::Require(events + faults.damagedLines + faults.unknownLines <= 2 * faults.lines,
                  "a line is counted once");
    const cPlant plant = MakePlant({std::move(record)}, names);
    fuzz::Require(plant.activations.size() + plant.repeats.size() <= events, "an activation is an event");
    const cSpan period{kMidnight - kHour, kMidnight + 2 * kDay};
    const cFigures figures = Measure(plant, names, {}, period, zone);
    fuzz::Require(figures.load.observed <= period.Length(), "no more is known than the period");
    std::size_t counted = 0;
    for (const cSourceCount& source : figures.sources.ranking) counted += source.activations;
    fuzz::Require(counted == figures.load.activations, "every activation has a source");
    for (const cActivation& activation : plant.activations) {
        fuzz::Require(activation.acknowledgedAfter >= -1 && activation.activeFor >= -1,
                      "nothing ends before it begins");
    }
    return 0;
}
