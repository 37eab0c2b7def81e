#pragma once

#include <QTimer>

#include "platform/timer.h"

namespace vigrel {

// A timer of the toolkit's event loop. It runs from the start unless told otherwise.
class cQtTimer : public cTimer {
  public:
    explicit cQtTimer(int intervalMilliseconds, bool enabled = true);
    int Interval() const override { return m_Timer.interval(); }
    void SetInterval(int milliseconds) override { m_Timer.setInterval(milliseconds); }
    bool Enabled() const override { return m_Timer.isActive(); }
    void SetEnabled(bool enabled) override;

  private:
    QTimer m_Timer;
};

}  // namespace vigrel
