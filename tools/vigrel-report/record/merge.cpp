#include "vigrel-report/record/merge.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace vigrel::report {
namespace {

using Key = std::tuple<std::uint32_t, std::uint32_t, std::int8_t>;

Key KeyOf(const cAlarmEvent& event) {
    return {event.sender, event.body, event.state};
}

bool ComesBefore(const cAlarmEvent& a, const cAlarmEvent& b) {
    return a.order < b.order;
}

void TakeOver(cAlarmEvent& event, const cAlarmEvent& other) {
    event.observed = event.observed || other.observed;
    event.unobserved = event.unobserved || other.unobserved;
    if (other.acknowledgedAfter < 0) return;
    const bool first = event.acknowledgedAfter < 0 || other.acknowledgedAfter < event.acknowledgedAfter;
    if (first) event.acknowledgedAfter = other.acknowledgedAfter;
}

}  // namespace

std::size_t MergeAlarms(std::vector<cAlarmEvent>& events, std::vector<cAlarmEvent> others,
                        cTolerance tolerance) {
    if (others.empty()) return 0;
    const auto byTime = [](const cAlarmEvent& a, const cAlarmEvent& b) { return a.time < b.time; };
    std::stable_sort(others.begin(), others.end(), byTime);
    struct cCandidates {
        std::vector<std::size_t> events;  // by time
        std::size_t next = 0;
    };
    std::map<Key, cCandidates> candidates;
    for (const cAlarmEvent& other : others) candidates[KeyOf(other)];
    for (std::size_t i = 0; i < events.size(); ++i) {
        const auto found = candidates.find(KeyOf(events[i]));
        if (found != candidates.end()) found->second.events.push_back(i);
    }
    for (auto& [key, list] : candidates) {
        std::stable_sort(list.events.begin(), list.events.end(),
                         [&](std::size_t a, std::size_t b) { return events[a].time < events[b].time; });
    }
    std::vector<cAlarmEvent> added;
    for (const cAlarmEvent& other : others) {
        cCandidates& list = candidates[KeyOf(other)];
        while (list.next < list.events.size() &&
               events[list.events[list.next]].time < other.time - tolerance.earlier) {
            ++list.next;
        }
        const bool told = list.next < list.events.size() &&
                          events[list.events[list.next]].time <= other.time + tolerance.later;
        if (told) {
            TakeOver(events[list.events[list.next++]], other);
        } else {
            added.push_back(other);
        }
    }
    const std::size_t joined = others.size() - added.size();
    events.insert(events.end(), added.begin(), added.end());
    std::stable_sort(events.begin(), events.end(), ComesBefore);
    return joined;
}

}  // namespace vigrel::report
