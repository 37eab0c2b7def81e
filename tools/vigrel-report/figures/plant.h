#pragma once

#include <vector>

#include "vigrel-report/record/alarm_names.h"
#include "vigrel-report/record/station_record.h"
#include "vigrel-report/record/time_zone.h"

namespace vigrel::report {

// A transition of an alarm into the active state.
struct cActivation {
    std::uint32_t source = 0;
    Moment start = 0;                // by the clock
    Moment order = 0;                // for what lies between two events
    Seconds activeFor = -1;          // until its return; negative: none was seen
    Seconds acknowledgedAfter = -1;  // here or at the source, whichever came first; negative: not known
    bool acknowledged = false;       // at a time that may not be known
};

// What all stations of the report tell together.
struct cPlant {
    std::vector<cActivation> activations;  // in order
    std::vector<Moment> repeats;           // records "active" of alarms that were active already
    // By sender: whether it ever told that an alarm is over. Of one that doesn't, every record "active" is an
    // activation, and how long its alarms last is not known.
    std::vector<bool> tellsReturns;
    Spans known;     // the alarms of these times are known
    Spans unlogged;  // of these, those that stored alarms alone tell: whether a station ran isn't known
    std::size_t toldTwice = 0;  // events that more than one station received
    std::vector<cStationRecord> stations;

    bool KnowsReturn(const cAlarmNames& names, std::uint32_t source) const {
        return tellsReturns[names.Source(source).sender];
    }
};

cPlant MakePlant(std::vector<cStationRecord> stations, cAlarmNames& names);

}  // namespace vigrel::report
