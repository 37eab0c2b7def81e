#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "vigrel-report/record/log_time.h"
#include "vigrel-report/record/moments.h"

namespace vigrel::report {

// One record of an alarm that came over the link: a change of its state.
struct cAlarmEvent {
    Moment time = 0, order = 0;
    std::uint32_t sender = 0, body = 0;
    std::int8_t state = 0;
    bool observed = false;           // the alarm's file says that somebody acknowledged it
    bool unobserved = false;         // it says that nobody did
    Seconds acknowledgedAfter = -1;  // by a line of the log
};

// An alarm of the station's own: a sender fell silent, or was heard again.
struct cSenderEvent {
    Moment time = 0;
    std::uint32_t sender = 0;
    bool lost = false;
};

enum class eEnd { BySession, ByOperator, Unexpected };

// Behind every period.
inline constexpr Moment kForever = Moment{1} << 40;

// From an end of the station to its next start; to kForever when there was none.
struct cOutage {
    cSpan span;
    eEnd end = eEnd::Unexpected;
};

// A time without a word from a sender while the station ran.
struct cSilence {
    std::uint32_t sender = 0;
    cSpan span;
};

struct cSupervision {
    std::uint32_t sender = 0;
    std::int64_t minutes = 0;  // 0: not supervised
};

// What lines, files and alarms could not tell.
struct cRecordFaults {
    std::size_t lines = 0;                     // all that were read
    std::size_t damagedLines = 0;              // without a time, or cut short
    std::size_t unknownLines = 0;              // of no language
    std::size_t damagedAlarms = 0;             // files of the store
    std::vector<std::string> foreignFiles;     // with no line of a station
    std::vector<std::string> unreadableFiles;  // with the reason
    std::size_t quietDays = 0;                 // without a log, between lines of the same run
    std::size_t acknowledgements = 0;          // of alarms that the record doesn't hold
    std::size_t doublePrintLines = 0;          // a failed print, or a popup closed by the system
};

// Everything that one station's folder tells, whatever the period.
struct cStationRecord {
    std::string folder;
    std::string name;                 // key Object; empty: none
    std::vector<cAlarmEvent> alarms;  // in order
    std::vector<cSenderEvent> senderEvents;
    Spans running;  // by the log
    std::vector<cOutage> outages;
    Spans stored;  // from the oldest stored alarm to the newest
    std::vector<Moment> starts, failedPrints, messages, unknownSenders;
    std::vector<Moment> ends;  // in order, not unexpected
    struct cRemoval {
        Moment time = 0;
        std::int64_t alarms = 0;
    };
    std::vector<cRemoval> removals;
    std::vector<cSupervision> supervisions;
    std::vector<cSilence> silences;  // of five minutes and more
    std::vector<cLogTime::cSetBack> setBacks;
    cRecordFaults faults;
};

}  // namespace vigrel::report
