#include "vigrel-report/page/document.h"

namespace vigrel::report {
namespace {

// "2026-03".
std::string MonthText(Moment midnight, const cTimeZone& zone) {
    return DayText(zone.ToWall(midnight)).substr(0, 7);
}

struct cMonthLoad {
    std::size_t alarms = 0, peak = 0;
    Seconds flooded = 0, observed = 0;

    void Add(const cDayLoad& day) {
        alarms += day.alarms;
        peak = std::max(peak, day.peak);
        flooded += day.flooded;
        observed += day.observed;
    }
};

}  // namespace

cTable MonthsTable(const cFigures& figures, const cTimeZone& zone) {
    std::map<std::string, cMonthLoad> months;
    for (const cDayLoad& day : figures.load.days) months[MonthText(day.midnight, zone)].Add(day);
    cTable table{"months",
                 eWord::Months,
                 {{"month", eWord::Month},
                  {"alarms", eWord::Alarms},
                  {"most_in_10_minutes", eWord::LargestTen},
                  {"in_flood", eWord::InFlood},
                  {"record", eWord::Observed}},
                 {}};
    for (const auto& [month, load] : months) {
        table.rows.push_back({month, CountCell(load.alarms), CountCell(load.peak), DurationCell(load.flooded),
                              DurationCell(load.observed)});
    }
    return table;
}

cTable StaleMonthsTable(const cFigures& figures, const cTimeZone& zone) {
    std::map<std::string, std::size_t> months;
    for (const cStaleDay& day : figures.nuisance.staleDays) {
        std::size_t& most = months[MonthText(day.midnight, zone)];
        most = std::max(most, day.alarms);
    }
    cTable table{"stale_months",
                 eWord::StaleMonths,
                 {{"month", eWord::Month}, {"most_on_a_day", eWord::MostOnADay}},
                 {}};
    for (const auto& [month, most] : months) table.rows.push_back({month, CountCell(most)});
    return table;
}

}  // namespace vigrel::report
