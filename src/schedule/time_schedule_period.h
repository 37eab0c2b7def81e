#pragma once

#include <cstdint>
#include <memory>
#include <vector>

namespace vigrel {

// One period of a day, in minutes after midnight, 0 to 1440. It covers the minutes from its start up to, not
// including, its stop.
class cTimeSchedulePeriod {
  public:
    std::int16_t m_StartMinute = 0;
    std::int16_t m_StopMinute = 0;
};

// Periods are told apart by identity, and a period that has left its list can still be the selected one, or
// the one that a walk stands at: shared ownership keeps such a period from being mistaken for a new one.
using PeriodPtr = std::shared_ptr<cTimeSchedulePeriod>;
using PeriodList = std::vector<PeriodPtr>;

}  // namespace vigrel
