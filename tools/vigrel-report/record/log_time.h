#pragma once

#include <optional>
#include <vector>

#include "vigrel-report/record/time_zone.h"

namespace vigrel::report {

// Gives the lines of one station's logs their moments, in the order in which they stand: the hour that a
// clock shows twice is told apart by it, and a clock that was set back shows.
class cLogTime {
  public:
    explicit cLogTime(const cTimeZone& zone) : m_Zone(zone) {}

    // The lines that follow are those of a day, by the wall clock.
    void BeginDay(WallTime midnight);

    struct cStamp {
        Moment time = 0;   // by the station's clock
        Moment order = 0;  // never less than that of a line before; differences are at most the true ones
    };
    cStamp At(Seconds secondOfDay);
    // The order of something that no line tells of.
    Moment OrderOf(Moment time) const;

    struct cSetBack {
        Moment to = 0;     // what the clock showed then
        Seconds by = 0;    // at least
        Moment order = 0;  // from there on
    };
    const std::vector<cSetBack>& SetBacks() const { return m_SetBacks; }

  private:
    Moment MomentOf(WallTime wall) const;

    const cTimeZone& m_Zone;
    WallTime m_Midnight = 0;
    std::optional<Seconds> m_Ahead;  // when it is the same all day
    Seconds m_LastSecond = 0;
    std::optional<cStamp> m_Last;
    Seconds m_Shift = 0;  // by which the clock was set back so far
    std::vector<cSetBack> m_SetBacks;
};

}  // namespace vigrel::report
