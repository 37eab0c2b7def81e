#pragma once

#include "platform/timer.h"

namespace vigrel::testing {

class cFakeTimer : public cTimer {
  public:
    explicit cFakeTimer(int interval = 500) : m_Interval(interval) {}
    int Interval() const override { return m_Interval; }
    void SetInterval(int milliseconds) override { m_Interval = milliseconds; }
    bool Enabled() const override { return m_Enabled; }
    void SetEnabled(bool enabled) override { m_Enabled = enabled; }
    // One tick, when the timer is enabled and somebody listens.
    void Tick() {
        if (m_Enabled && OnTick) OnTick();
    }

  private:
    int m_Interval;
    bool m_Enabled = true;
};

}  // namespace vigrel::testing
