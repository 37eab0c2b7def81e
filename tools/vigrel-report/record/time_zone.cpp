#include "vigrel-report/record/time_zone.h"

#include <cmath>

#include "common/dates.h"

namespace vigrel::report {
namespace {

constexpr double kFirstDay = 25569;  // 1970-01-01 as a date-time

WallTime FloorToDay(WallTime wall) {
    return wall - ((wall % kDay) + kDay) % kDay;
}

}  // namespace

Seconds cTimeZone::AheadAt(Moment moment) const {
    const auto behind = std::upper_bound(m_Changes.begin(), m_Changes.end(), moment,
                                         [](Moment m, const cChange& change) { return m < change.at; });
    return behind == m_Changes.begin() ? m_Ahead : std::prev(behind)->ahead;
}

cTimeZone::cMoments cTimeZone::ToMoments(WallTime wall) const {
    // No place is further than a day from the world's time, so these two lie around any change that matters.
    const Seconds before = AheadAt(wall - kDay), after = AheadAt(wall + kDay);
    const Moment early = wall - before, late = wall - after;
    const bool isEarly = AheadAt(early) == before, isLate = AheadAt(late) == after;
    if (isEarly && isLate) return {std::min(early, late), std::max(early, late)};
    return isLate ? cMoments{late, late} : cMoments{early, early};
}

Moment cTimeZone::Midnight(Moment moment, int days) const {
    return ToMoments(FloorToDay(ToWall(moment)) + days * kDay).first;
}

WallTime WallTimeOf(DateTime value) {
    return std::llround((value - kFirstDay) * static_cast<double>(kDay));
}

DateTime DateTimeOf(WallTime wall) {
    return kFirstDay + static_cast<double>(wall) / static_cast<double>(kDay);
}

cWallParts SplitWallTime(WallTime wall) {
    const cDateParts parts = SplitDateTime(DateTimeOf(wall));
    return {
        parts.year, parts.month, parts.day, parts.hour, parts.minute, parts.second, (parts.weekday + 5) % 7};
}

WallTime WallTimeFromParts(int year, int month, int day) {
    return WallTimeOf(DateSerial(year, month, day));
}

}  // namespace vigrel::report
