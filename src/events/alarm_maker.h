#pragma once

#include <functional>

#include "categories/category_specific_setting.h"
#include "events/vigrel_reciever_alarm.h"
#include "platform/clock.h"

namespace vigrel {

// Where the station's alarms come from: those of the link, its own, and those of the folder. Each leaves with
// the settings of its category, so that nobody behind asks whether it has any.
class cAlarmMaker {
  public:
    cAlarmMaker(const cClock& clock, const cCategorySettings& categories)
        : m_Clock(clock), m_Categories(categories) {}

    // A new alarm with what fill puts into it; condition 2 is its category.
    AlarmPtr Make(const std::function<void(cVigrelRecieverAlarm&)>& fill) const;

  private:
    const cClock& m_Clock;
    const cCategorySettings& m_Categories;
};

}  // namespace vigrel
