#pragma once

#include "common/dates.h"
#include "platform/clock.h"

namespace vigrel::testing {

// Stands still until a test moves it. Starts at 2026-03-15 12:30:15, a Sunday.
class cFakeClock : public cClock {
  public:
    DateTime Now() const override { return m_Now; }
    void Set(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
        m_Now = DateSerial(year, month, day) + TimeSerial(hour, minute, second);
    }
    void AddSeconds(double seconds) { m_Now += seconds / 86400; }

    DateTime m_Now = DateSerial(2026, 3, 15) + TimeSerial(12, 30, 15);
};

}  // namespace vigrel::testing
