#pragma once

#include "common/dates.h"
#include "platform/clock.h"

namespace vigrel::testing {

// Stands still until a test moves it. Starts at 2026-03-15 12:30:15, a Sunday.
class cFakeClock : public cClock {
  public:
    DateTime Now() const override { return m_Now; }
    double Steady() const override { return m_Steady; }
    // The wall clock is set; the steady clock runs on.
    void Set(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
        m_Now = DateSerial(year, month, day) + TimeSerial(hour, minute, second);
    }
    // Time goes by.
    void AddSeconds(double seconds) {
        m_Now += seconds / 86400;
        m_Steady += seconds / 86400;
    }

    DateTime m_Now = DateSerial(2026, 3, 15) + TimeSerial(12, 30, 15);
    double m_Steady = 1000;
};

}  // namespace vigrel::testing
