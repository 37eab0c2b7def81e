#include "vigrel-report/figures/hours.h"

#include "vigrel-report/figures/periods.h"

namespace vigrel::report {
namespace {

void Add(cHourCell& sum, const cHourCell& cell) {
    sum.alarms += cell.alarms;
    sum.observed += cell.observed;
}

}  // namespace

cHourCell cHours::OfWeekday(std::size_t weekday) const {
    cHourCell sum;
    for (const cHourCell& cell : cells[weekday]) Add(sum, cell);
    return sum;
}

cHourCell cHours::OfHour(std::size_t hour) const {
    cHourCell sum;
    for (const auto& day : cells) Add(sum, day[hour]);
    return sum;
}

cHours MeasureHours(const cPlant& plant, const cSettings& settings, const cSpan& period,
                    const cTimeZone& zone) {
    cHours hours;
    const auto cell = [&](Moment moment) -> cHourCell& {
        const cWallParts parts = SplitWallTime(zone.ToWall(moment));
        return hours.cells[static_cast<std::size_t>(parts.weekday)][static_cast<std::size_t>(parts.hour)];
    };
    for (const cActivation* activation : Activations(plant, period)) {
        ++cell(activation->start).alarms;
        ++hours.all;
    }
    for (const cSpan& span : Within(plant.known, period)) {
        for (Moment from = span.begin; from < span.end;) {
            const WallTime wall = zone.ToWall(from);
            const Moment to = std::min(from + kHour - wall % kHour, span.end);
            cell(from).observed += to - from;
            from = to;
        }
    }
    for (std::size_t day = 0; day < 7; ++day) {
        for (std::size_t hour = 0; hour < 24; ++hour) {
            const auto clock = static_cast<int>(hour);
            const bool works =
                settings.workDays[day] && clock >= settings.workBegins && clock < settings.workEnds;
            hours.outside += works ? 0 : hours.cells[day][hour].alarms;
        }
    }
    return hours;
}

}  // namespace vigrel::report
