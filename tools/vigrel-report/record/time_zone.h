#pragma once

#include <vector>

#include "platform/clock.h"
#include "vigrel-report/record/moments.h"

namespace vigrel::report {

// How far the wall clocks of a place are ahead of the world's time, and when that changes. Logs and alarm
// files hold wall clock times only; without this an hour of the year would hold twice the alarms, and another
// none.
class cTimeZone {
  public:
    struct cChange {
        Moment at = 0;
        Seconds ahead = 0;  // from that moment on
    };
    // Before the first change the clock is "ahead" seconds ahead; changes are in order.
    explicit cTimeZone(Seconds ahead = 0, std::vector<cChange> changes = {})
        : m_Ahead(ahead), m_Changes(std::move(changes)) {}

    Seconds AheadAt(Moment moment) const;
    WallTime ToWall(Moment moment) const { return moment + AheadAt(moment); }
    // The moments at which a clock shows a time: two different ones in the hour that is shown twice. A time
    // that is never shown counts as if the clock had not been set forward.
    struct cMoments {
        Moment first = 0, second = 0;
    };
    cMoments ToMoments(WallTime wall) const;
    // Midnight of the day that lies so many days behind the day of a moment.
    Moment Midnight(Moment moment, int days = 0) const;

  private:
    Seconds m_Ahead;
    std::vector<cChange> m_Changes;
};

// Stored date-times are local: days since 1899-12-30. To the nearest second.
WallTime WallTimeOf(DateTime value);
DateTime DateTimeOf(WallTime wall);

// What a wall clock and a calendar show.
struct cWallParts {
    int year = 1970, month = 1, day = 1, hour = 0, minute = 0, second = 0;
    int weekday = 3;  // 0 Monday to 6 Sunday
};
cWallParts SplitWallTime(WallTime wall);
WallTime WallTimeFromParts(int year, int month, int day);

}  // namespace vigrel::report
