#pragma once

#include <functional>

namespace vigrel {

// A repeating timer of the event loop. A tick never interrupts a running handler; a timer that is disabled
// and enabled again starts a full interval. Ticks that came due while the loop was busy arrive as one.
class cTimer {
  public:
    virtual ~cTimer() = default;
    // Interval in milliseconds, above 0.
    virtual int Interval() const = 0;
    virtual void SetInterval(int milliseconds) = 0;
    virtual bool Enabled() const = 0;
    virtual void SetEnabled(bool enabled) = 0;

    // Called at each tick.
    std::function<void()> OnTick;
};

}  // namespace vigrel
