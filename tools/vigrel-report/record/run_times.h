#pragma once

#include <optional>

#include "vigrel-report/record/station_record.h"

namespace vigrel::report {

// From the lines of starts, ends and everything between: when the station ran.
class cRunTimes {
  public:
    explicit cRunTimes(cStationRecord& record) : m_Record(record) {}

    void BeginDay(WallTime midnight);
    // A line about what came over the link: only a station that has finished its start writes it.
    void Lives(Moment time);
    // A line that a station can also write while it ends.
    void Touch(Moment time) {
        if (m_RunningSince) Lives(time);
    }
    // A start that may come to nothing: a second program on the same folder writes this line too.
    void Start(Moment time);
    void Started(Moment time);
    void End(Moment time, eEnd end);
    // After the last line.
    void Finish();
    // Counts the runs: silence from one run to the next is the station's, not the sender's.
    std::size_t Run() const { return m_Run; }

  private:
    void Close(Moment end);

    cStationRecord& m_Record;
    std::size_t m_Run = 0;
    std::optional<Moment> m_RunningSince;
    Moment m_Last = 0;                // line of the run
    std::optional<cOutage> m_Outage;  // since the last end
    struct cPendingStart {
        Moment time = 0, lastBefore = 0;
    };
    std::optional<cPendingStart> m_Pending;
    std::optional<WallTime> m_Day;
    std::size_t m_MissingDays = 0;  // in front of the day, until its first line
};

}  // namespace vigrel::report
