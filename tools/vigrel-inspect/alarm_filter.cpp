#include "vigrel-inspect/alarm_filter.h"

#include <algorithm>

#include "common/dates.h"
#include "common/text.h"

namespace vigrel {
namespace {

constexpr double kTrace = 1e-4 / 86400;  // days

bool IsOneOf(const std::vector<std::string>& wanted, std::string_view text) {
    return wanted.empty() || std::any_of(wanted.begin(), wanted.end(),
                                         [&](const std::string& name) { return EqualsNoCase(name, text); });
}

bool IsOneOf(const std::vector<std::int16_t>& wanted, std::int16_t state) {
    return wanted.empty() || std::find(wanted.begin(), wanted.end(), state) != wanted.end();
}

}  // namespace

bool cAlarmFilter::Wants(const cVigrelRecieverAlarm& alarm) const {
    // A second that a sum of day and time left a trace below itself is shown as that second, and counts as
    // it.
    const DateTime created = alarm.m_CreatedTime + kTrace;
    if (from && Earlier(created, *from)) return false;
    if (before && !Earlier(created, *before)) return false;
    if (observed && (alarm.m_Observed != 0) != *observed) return false;
    return IsOneOf(categories, alarm.m_Alarm.GetCondition(ConditionCategory)) &&
           IsOneOf(senders, alarm.m_Sender) && IsOneOf(states, alarm.m_Alarm.m_Status);
}

}  // namespace vigrel
