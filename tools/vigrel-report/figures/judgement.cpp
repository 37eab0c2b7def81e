#include <algorithm>
#include <iterator>

#include "vigrel-report/figures/figures.h"

namespace vigrel::report {
namespace {

using Value = std::optional<double>;

double Count(std::size_t count) {
    return static_cast<double>(count);
}

// A share of the activations of one priority; nothing without a mapping of all categories that occurred.
Value PriorityShare(const cFigures& figures, ePriority priority) {
    std::size_t wanted = 0, all = 0;
    for (const cGroupAnswers& group : figures.answers.priorities) {
        if (!group.priority && group.activations > 0) return std::nullopt;
        wanted += group.priority == priority ? group.activations : 0;
        all += group.activations;
    }
    return all == 0 ? Value() : Value(Count(wanted) / Count(all));
}

Value ValueOf(const cFigures& figures, eFigure figure) {
    const cLoad& load = figures.load;
    const cNuisance& nuisance = figures.nuisance;
    const cAnswerTimes& times = figures.answers.all;
    if (load.observed == 0) return std::nullopt;
    switch (figure) {
        case eFigure::RateTenMinutes:
            return load.perTenMinutes;
        case eFigure::RateHour:
            return load.perHour;
        case eFigure::RateDay:
            return load.perDay;
        case eFigure::Peak:
            return Count(load.peak);
        case eFigure::MeanDailyPeak:
            return load.meanDailyPeak;
        case eFigure::BusyBins:
            return load.busyBins;
        case eFigure::BusyHours:
            return load.busyHours;
        case eFigure::Floods:
            return Count(load.floods.size());
        case eFigure::FloodShare:
            return load.floodShare;
        case eFigure::TopTen:
            return load.activations == 0 ? Value() : Value(figures.sources.topTenShare);
        case eFigure::MakeEighty:
            return Count(figures.sources.makeEighty);
        case eFigure::Chattering:
            return Count(nuisance.chattering.size());
        case eFigure::Fleeting:
            return Count(nuisance.fleetingActivations);
        case eFigure::Stale:
            return Count(nuisance.mostStale);
        case eFigure::Standing:
            return Count(nuisance.standing.size());
        case eFigure::HighShare:
            return PriorityShare(figures, ePriority::High);
        case eFigure::MediumShare:
            return PriorityShare(figures, ePriority::Medium);
        case eFigure::LowShare:
            return PriorityShare(figures, ePriority::Low);
        case eFigure::Answers:
            return Count(times.count);
        case eFigure::AnswerMedian:
            return times.count == 0 ? Value() : Value(times.median);
        case eFigure::AnswerNinetieth:
            return times.count == 0 ? Value() : Value(static_cast<double>(times.ninetieth));
        case eFigure::Unanswered:
            return Count(times.never);
        case eFigure::Outside:
            return load.activations == 0 ? Value() : Value(figures.hours.OutsideShare());
    }
    return std::nullopt;
}

struct cLine {
    eFigure figure;
    eUnit unit;
    cLimit limit = {};
};

constexpr cLine kLines[] = {
    {eFigure::RateTenMinutes, eUnit::Number, {cLimit::AtMost, 1}},
    {eFigure::RateHour, eUnit::Number, {cLimit::AtMost, 6}},
    {eFigure::RateDay, eUnit::Number, {cLimit::AtMost, 150}},
    {eFigure::Peak, eUnit::Count, {cLimit::AtMost, kFloodBegins}},  // for each operator
    {eFigure::MeanDailyPeak, eUnit::Number},
    {eFigure::BusyBins, eUnit::Share, {cLimit::Below, 0.01}},
    {eFigure::BusyHours, eUnit::Share, {cLimit::Below, 0.01}},
    {eFigure::Floods, eUnit::Count},
    {eFigure::FloodShare, eUnit::Share, {cLimit::Below, 0.01}},
    {eFigure::TopTen, eUnit::Share, {cLimit::AtMost, 0.05}},
    {eFigure::MakeEighty, eUnit::Count},
    {eFigure::Chattering, eUnit::Count, {cLimit::AtMost, 0}},
    {eFigure::Fleeting, eUnit::Count, {cLimit::AtMost, 0}},
    {eFigure::Stale, eUnit::Count, {cLimit::Below, 5}},
    {eFigure::Standing, eUnit::Count, {cLimit::Below, 10}},
    {eFigure::HighShare, eUnit::Share, {cLimit::AtMost, 0.05}},
    {eFigure::MediumShare, eUnit::Share, {cLimit::AtMost, 0.15}},
    {eFigure::LowShare, eUnit::Share, {cLimit::AtLeast, 0.80}},
    {eFigure::Answers, eUnit::Count},
    {eFigure::AnswerMedian, eUnit::Duration},
    {eFigure::AnswerNinetieth, eUnit::Duration},
    {eFigure::Unanswered, eUnit::Count},
    {eFigure::Outside, eUnit::Share},
};

eVerdict VerdictOf(const cLimit& limit, double value) {
    bool within = true;
    if (limit.kind == cLimit::None) return eVerdict::NotJudged;
    if (limit.kind == cLimit::AtMost) within = value <= limit.value;
    if (limit.kind == cLimit::Below) within = value < limit.value;
    if (limit.kind == cLimit::AtLeast) return value >= limit.value ? eVerdict::Within : eVerdict::Below;
    return within ? eVerdict::Within : eVerdict::Over;
}

// The ten most frequent of ten sources are all of them.
bool IsJudged(const cFigures& figures, eFigure figure) {
    return figure != eFigure::TopTen || figures.sources.ranking.size() > kTop;
}

}  // namespace

cLimit LimitOf(const cFigures& figures, eFigure figure) {
    const auto* line = std::find_if(std::begin(kLines), std::end(kLines),
                                    [figure](const cLine& other) { return other.figure == figure; });
    cLimit limit = line->limit;
    if (figure == eFigure::Peak) limit.value *= figures.operators;
    return limit;
}

std::vector<cJudged> Judge(const cFigures& figures, const cFigures* before) {
    // What little is known of a period says nothing beside all of another one.
    const bool comparable = before != nullptr && 2 * before->load.observed >= before->period.Length();
    std::vector<cJudged> judged;
    for (const cLine& known : kLines) {
        cJudged line{known.figure, known.unit, ValueOf(figures, known.figure), {}, eVerdict::NotJudged};
        if (comparable) line.before = ValueOf(*before, known.figure);
        if (line.value && IsJudged(figures, known.figure))
            line.verdict = VerdictOf(LimitOf(figures, known.figure), *line.value);
        judged.push_back(line);
    }
    return judged;
}

}  // namespace vigrel::report
