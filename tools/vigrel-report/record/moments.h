#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace vigrel::report {

// Whole seconds since 1970-01-01 00:00: of the world's time, and of what a wall clock shows.
using Moment = std::int64_t;
using WallTime = std::int64_t;
// Seconds from one moment to another.
using Seconds = std::int64_t;

inline constexpr Seconds kMinute = 60, kHour = 3600, kDay = 86400;

// From a moment, up to but without another.
struct cSpan {
    Moment begin = 0, end = 0;
    bool operator==(const cSpan&) const = default;
    Seconds Length() const { return end - begin; }
    bool Holds(Moment moment) const { return moment >= begin && moment < end; }
};
using Spans = std::vector<cSpan>;

// In order, without overlaps, without empty ones.
Spans Joined(Spans spans);
// What lies within a span; in one and not in the other; in both. All are joined ones.
Spans Within(const Spans& spans, const cSpan& limits);
Spans Without(const Spans& spans, const Spans& taken);
inline Spans InBoth(const Spans& spans, const Spans& others) {
    return Without(spans, Without(spans, others));
}
Seconds TotalLength(const Spans& spans);
bool HoldsMoment(const Spans& spans, Moment moment);

}  // namespace vigrel::report
