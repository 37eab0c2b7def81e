#pragma once

#include <QTimer>

#include "adapters/linux/system_clock.h"
#include "platform/timer.h"

namespace vigrel {

// A timer of the toolkit's event loop. It runs from the start unless told otherwise.
//
// A program that stood still, with its machine or alone, has what came meanwhile still before it: senders
// would seem silent. The tick that comes so late is left out, so that all of it has an interval's time.
class cQtTimer : public cTimer {
  public:
    explicit cQtTimer(int intervalMilliseconds, bool enabled = true);
    int Interval() const override { return m_Timer.interval(); }
    void SetInterval(int milliseconds) override { m_Timer.setInterval(milliseconds); }
    bool Enabled() const override { return m_Timer.isActive(); }
    void SetEnabled(bool enabled) override;

  private:
    bool StoodStill();

    QTimer m_Timer;
    cSystemClock m_Clock;
    double m_LastTick = 0;  // or when it was enabled
    bool m_LeftOut = false;
};

}  // namespace vigrel
