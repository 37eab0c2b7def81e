#pragma once

#include "platform/clock.h"

namespace vigrel {

// The machine's wall clock in the user's time zone. At the change to winter time an hour is read twice.
class cSystemClock : public cClock {
  public:
    DateTime Now() const override;
    double Steady() const override;
};

}  // namespace vigrel
