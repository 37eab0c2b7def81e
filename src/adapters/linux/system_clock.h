#pragma once

#include <ctime>

#include "platform/clock.h"

namespace vigrel {

// The date-time of an instant (time since 1970, UTC) in the time zone that holds at the call.
DateTime LocalDateTime(const timespec& now);

// The machine's wall clock in the user's time zone; a zone that is changed counts from the next second on. At
// the change to winter time an hour is read twice.
class cSystemClock : public cClock {
  public:
    DateTime Now() const override;
    double Steady() const override;

  private:
    // What a second is in the user's time zone is asked for once: to see whether the zone was changed means
    // to look at a file.
    mutable std::time_t m_Second = -1;
    mutable DateTime m_LocalSecond = 0;
};

}  // namespace vigrel
