#include "vigrel-report/figures/figures.h"

namespace vigrel::report {

cFigures Measure(const cPlant& plant, const cAlarmNames& names, const cSettings& settings,
                 const cSpan& period, const cTimeZone& zone) {
    cFigures figures;
    figures.period = period;
    figures.operators = settings.operators;
    figures.load = MeasureLoad(plant, period, zone, settings.operators);
    figures.sources = RankSources(plant, names, period);
    figures.nuisance = FindNuisance(plant, names, period, zone);
    figures.answers = MeasureAnswers(plant, names, settings, period, figures.nuisance);
    figures.hours = MeasureHours(plant, settings, period, zone);
    for (const cStationRecord& station : plant.stations) {
        figures.stations.push_back(MeasureStation(station, period));
    }
    figures.repeats = static_cast<std::size_t>(std::count_if(
        plant.repeats.begin(), plant.repeats.end(), [&](Moment moment) { return period.Holds(moment); }));
    figures.unlogged = TotalLength(Within(plant.unlogged, period));
    return figures;
}

}  // namespace vigrel::report
