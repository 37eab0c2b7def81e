#include "vigrel-report/record/run_times.h"

namespace vigrel::report {
namespace {

// A station without senders that report themselves may write nothing for days. More days than these without a
// log are a hole in the record.
constexpr std::size_t kMostQuietDays = 14;

}  // namespace

void cRunTimes::BeginDay(WallTime midnight) {
    if (m_Day && midnight > *m_Day) m_MissingDays += static_cast<std::size_t>((midnight - *m_Day) / kDay) - 1;
    m_Day = midnight;
}

void cRunTimes::Close(Moment end) {
    if (m_RunningSince) m_Record.running.push_back({*m_RunningSince, end});
    m_RunningSince.reset();
}

void cRunTimes::Lives(Moment time) {
    m_Pending.reset();  // the start was a second program's, and this is the first one's line
    if (m_RunningSince && m_MissingDays > kMostQuietDays) Close(m_Last);
    if (!m_RunningSince) {
        // The start's lines are missing. Behind an orderly end they can't be far.
        if (m_Outage) {
            m_Outage->span.end = time;
            m_Record.outages.push_back(*m_Outage);
            m_Outage.reset();
        }
        ++m_Run;
        m_RunningSince = time;
    } else {
        m_Record.faults.quietDays += m_MissingDays;
    }
    m_MissingDays = 0;
    m_Last = time;
}

void cRunTimes::Start(Moment time) {
    m_Pending = cPendingStart{time, m_Last};
}

void cRunTimes::Started(Moment time) {
    const cPendingStart start = m_Pending.value_or(cPendingStart{time, m_Last});
    m_Pending.reset();
    if (m_RunningSince) {
        Close(start.lastBefore);
        m_Outage = cOutage{{start.lastBefore, 0}, eEnd::Unexpected};
    }
    if (m_Outage) {
        m_Outage->span.end = start.time;
        m_Record.outages.push_back(*m_Outage);
        m_Outage.reset();
    }
    m_Record.starts.push_back(start.time);
    ++m_Run;
    m_RunningSince = start.time;
    m_MissingDays = 0;
    m_Last = time;
}

void cRunTimes::End(Moment time, eEnd end) {
    Lives(time);
    Close(time);
    m_Record.ends.push_back(time);
    m_Outage = cOutage{{time, 0}, end};
    m_Last = time;
}

void cRunTimes::Finish() {
    Close(m_Last + 1);
    // Nobody has started it since.
    if (m_Outage) {
        m_Outage->span.end = kForever;
        m_Record.outages.push_back(*m_Outage);
    }
    m_Record.running = Joined(std::move(m_Record.running));
}

}  // namespace vigrel::report
