#pragma once

namespace vigrel {

// A date-time: days since 1899-12-30, the fraction being the time of day, in the machine's local time.
using DateTime = double;

// The one source of time. Nothing else in the system asks the machine what time it is.
class cClock {
  public:
    virtual ~cClock() = default;
    // Local date and time now, with sub-second resolution; the last 0.2 ms of a second read as one moment, so
    // that none is taken for the second to come (SplitDateTime). Does not fail.
    virtual DateTime Now() const = 0;
    // Days on a clock that nobody sets and that runs on while the machine sleeps; only differences mean
    // anything.
    virtual double Steady() const = 0;
};

}  // namespace vigrel
