#pragma once

#include <optional>
#include <vector>

#include "vigrel-report/figures/plant.h"

namespace vigrel::report {

// A sender of one station.
struct cSenderFigures {
    std::uint32_t sender = 0;
    std::optional<std::int64_t> minutes;  // of allowed silence; 0: not supervised; nothing: not known
    std::size_t lost = 0, returned = 0;   // as far as the record tells; repeated alarms count once
    Spans losses;                         // from the alarms to the returns, or to an end of the station
    Seconds without = 0;                  // all of these together
    bool isLost = false;                  // at the end of the period
    Seconds longestSilence = 0;           // by the log, while the station ran; 0: less than five minutes
};

struct cStationFigures {
    std::string name, folder;
    std::vector<cSenderFigures> senders;  // longest without contact first
    std::size_t starts = 0, orderlyEnds = 0, unexpectedEnds = 0;
    Seconds running = 0, notRunning = 0, notKnown = 0;
    std::vector<cOutage> outages;
    Spans down;  // not running
    Spans gaps;  // the record knows nothing of these times
    std::size_t failedPrints = 0, messages = 0, unknownSenders = 0;
    std::int64_t removed = 0;  // alarms, by the limits
};
cStationFigures MeasureStation(const cStationRecord& station, const cSpan& period);

}  // namespace vigrel::report
