#pragma once

#include <ctime>

#include "platform/clock.h"

namespace vigrel {

// The date-time of an instant (time since 1970, UTC) in the time zone that holds at the call.
DateTime LocalDateTime(const timespec& now);

// The machine's wall clock in the user's time zone. At the change to winter time an hour is read twice.
class cSystemClock : public cClock {
  public:
    DateTime Now() const override;
    double Steady() const override;
};

}  // namespace vigrel
