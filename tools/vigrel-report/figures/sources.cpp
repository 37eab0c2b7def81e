#include "vigrel-report/figures/sources.h"

#include <tuple>

#include "vigrel-report/figures/periods.h"

namespace vigrel::report {

cSourceFigures RankSources(const cPlant& plant, const cAlarmNames& names, const cSpan& period) {
    std::vector<std::size_t> counts(names.SourceCount());
    std::size_t all = 0;
    for (const cActivation* activation : Activations(plant, period)) {
        ++counts[activation->source];
        ++all;
    }
    cSourceFigures figures;
    for (std::uint32_t source = 0; source < counts.size(); ++source) {
        if (counts[source] > 0) figures.ranking.push_back({source, counts[source]});
    }
    const auto name = [&](std::uint32_t number) {
        const cSource& source = names.Source(number);
        return std::tie(source.alarm, source.place, names.SenderName(source.sender), source.category);
    };
    std::sort(figures.ranking.begin(), figures.ranking.end(),
              [&](const cSourceCount& a, const cSourceCount& b) {
                  if (a.activations != b.activations) return a.activations > b.activations;
                  return name(a.source) < name(b.source);
              });
    std::size_t sum = 0;
    for (std::size_t i = 0; i < figures.ranking.size(); ++i) {
        // In whole numbers: four fifths of a count are not exact as a fraction.
        if (5 * sum < 4 * all) figures.makeEighty = i + 1;
        sum += figures.ranking[i].activations;
        if (i < kTop) figures.topTenShare = static_cast<double>(sum) / static_cast<double>(all);
    }
    return figures;
}

}  // namespace vigrel::report
