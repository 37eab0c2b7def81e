#pragma once

#include <array>

#include "vigrel-report/figures/plant.h"
#include "vigrel-report/figures/settings.h"

namespace vigrel::report {

struct cHourCell {
    std::size_t alarms = 0;
    Seconds observed = 0;
    // Alarms in an observed hour; nothing is known of a cell without one.
    double Mean() const {
        return observed == 0 ? 0 : static_cast<double>(alarms) * kHour / static_cast<double>(observed);
    }
};

struct cHours {
    std::array<std::array<cHourCell, 24>, 7> cells;  // weekday, Monday first; hour of the wall clock
    std::size_t outside = 0, all = 0;                // alarms outside working hours
    double OutsideShare() const {
        return all == 0 ? 0 : static_cast<double>(outside) / static_cast<double>(all);
    }
    cHourCell OfWeekday(std::size_t weekday) const;
    cHourCell OfHour(std::size_t hour) const;
};
cHours MeasureHours(const cPlant& plant, const cSettings& settings, const cSpan& period,
                    const cTimeZone& zone);

}  // namespace vigrel::report
