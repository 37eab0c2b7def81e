#pragma once

#include <optional>
#include <string>
#include <vector>

#include "events/vigrel_reciever_alarm.h"

namespace vigrel {

// Which alarms are wanted. What isn't set doesn't count; of several categories, senders or states one is
// enough. Names are compared without regard to case.
struct cAlarmFilter {
    std::optional<DateTime> from;    // created at this moment or later
    std::optional<DateTime> before;  // created before this moment
    std::vector<std::string> categories, senders;
    std::vector<std::int16_t> states;
    std::optional<bool> observed;

    bool Wants(const cVigrelRecieverAlarm& alarm) const;
};

}  // namespace vigrel
