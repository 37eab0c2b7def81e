#pragma once

#include <vector>

#include "vigrel-report/record/station_record.h"

namespace vigrel::report {

// How far two tellings of the same event may lie apart: the one that is joined may come earlier or later by
// so much.
struct cTolerance {
    Seconds earlier = 0, later = 0;
};

// Joins the events that another source tells to those of a list in order: an event that both tell (same
// sender, text and state, times that fit, each used once) stays one, with what the other knows; the rest is
// added. The result is in order. Returns how many both told.
std::size_t MergeAlarms(std::vector<cAlarmEvent>& events, std::vector<cAlarmEvent> others,
                        cTolerance tolerance);

}  // namespace vigrel::report
