#include "vigrel-report/record/log_time.h"

namespace vigrel::report {
namespace {

// What a clock that is kept right may be taken back without anybody setting it.
constexpr Seconds kJitter = 5;
// A line that was begun before midnight can be stamped behind it in the old day's file.
constexpr Seconds kLate = kDay - kMinute, kEarly = kMinute;

}  // namespace

void cLogTime::BeginDay(WallTime midnight) {
    m_Midnight = midnight;
    m_LastSecond = 0;
    // Around midnight too: a late line belongs to the next day.
    const Seconds before = m_Zone.AheadAt(midnight - kDay), after = m_Zone.AheadAt(midnight + 2 * kDay);
    m_Ahead = before == after ? std::optional(before) : std::nullopt;
}

Moment cLogTime::MomentOf(WallTime wall) const {
    if (m_Ahead) return wall - *m_Ahead;
    const cTimeZone::cMoments moments = m_Zone.ToMoments(wall);
    const bool firstIsOver = m_Last && moments.first + kJitter < m_Last->time;
    return firstIsOver && moments.second + kJitter >= m_Last->time ? moments.second : moments.first;
}

cLogTime::cStamp cLogTime::At(Seconds secondOfDay) {
    if (m_LastSecond >= kLate && secondOfDay < kEarly) m_Midnight += kDay;
    m_LastSecond = secondOfDay;
    cStamp stamp{MomentOf(m_Midnight + secondOfDay), 0};
    stamp.order = stamp.time + m_Shift;
    if (m_Last && stamp.order < m_Last->order) {
        const Seconds back = m_Last->order - stamp.order;
        if (back > kJitter) {
            m_Shift += back;
            m_SetBacks.push_back({stamp.time, back, m_Last->order});
        }
        stamp.order = m_Last->order;
    }
    m_Last = stamp;
    return stamp;
}

Moment cLogTime::OrderOf(Moment time) const {
    Seconds shift = 0;
    for (const cSetBack& setBack : m_SetBacks) {
        if (time + shift < setBack.order) break;
        shift += setBack.by;
    }
    return time + shift;
}

}  // namespace vigrel::report
