#pragma once

#include <map>
#include <set>
#include <vector>

#include "vigrel-report/figures/plant.h"

namespace vigrel::report {

struct cChattering {
    std::uint32_t source = 0;
    std::size_t bursts = 0, activations = 0;  // within bursts
    std::size_t most = 0;                     // in one burst
    Moment first = 0;
};

struct cFleeting {
    std::uint32_t source = 0;
    std::size_t activations = 0;
};

struct cStale {
    std::uint32_t source = 0;
    Moment since = 0;
    bool active = false;    // still, at the end of the period
    Seconds activeFor = 0;  // until its return or the end of the period
    bool acknowledged = false;
};

struct cStaleDay {
    Moment midnight = 0;
    std::size_t alarms = 0;
};

struct cNuisance {
    std::vector<cChattering> chattering;  // most activations first
    std::vector<cFleeting> fleeting;
    std::size_t fleetingActivations = 0;
    std::vector<cStale> stale;  // longest first
    std::vector<cStaleDay> staleDays;
    std::size_t mostStale = 0;              // on one day
    std::vector<cStale> standing;           // active at the end; longest first
    std::set<const cActivation*> excluded;  // chattering, fleeting, stale
};
cNuisance FindNuisance(const cPlant& plant, const cAlarmNames& names, const cSpan& period,
                       const cTimeZone& zone);

}  // namespace vigrel::report
