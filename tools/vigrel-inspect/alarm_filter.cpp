#include "vigrel-inspect/alarm_filter.h"

#include <algorithm>
#include <array>

#include "common/text.h"

namespace vigrel {
namespace {

constexpr double kTrace = 1e-4 / 86400;  // days
constexpr std::array kStates = {"inactive", "active", "acked", "message"};

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
    if (from && !(created >= *from)) return false;
    if (before && !(created < *before)) return false;
    if (observed && (alarm.m_Observed != 0) != *observed) return false;
    return IsOneOf(categories, alarm.m_Alarm.GetCondition(2)) && IsOneOf(senders, alarm.m_Sender) &&
           IsOneOf(states, alarm.m_Alarm.m_Status);
}

std::string StateName(std::int16_t status) {
    if (status < 0 || status >= static_cast<std::int16_t>(kStates.size())) return "";
    return kStates[static_cast<std::size_t>(status)];
}

std::optional<std::int16_t> StateFromName(std::string_view name) {
    for (std::size_t i = 0; i < kStates.size(); ++i) {
        if (EqualsNoCase(kStates[i], name)) return static_cast<std::int16_t>(i);
    }
    return std::nullopt;
}

}  // namespace vigrel
