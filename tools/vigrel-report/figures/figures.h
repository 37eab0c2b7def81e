#pragma once

#include <optional>
#include <vector>

#include "vigrel-report/figures/answers.h"
#include "vigrel-report/figures/hours.h"
#include "vigrel-report/figures/load.h"
#include "vigrel-report/figures/settings.h"
#include "vigrel-report/figures/sources.h"
#include "vigrel-report/figures/station_figures.h"

namespace vigrel::report {

// All figures of one period.
struct cFigures {
    cSpan period;
    int operators = 1;
    cLoad load;
    cSourceFigures sources;
    cNuisance nuisance;
    cAnswers answers;
    cHours hours;
    std::vector<cStationFigures> stations;
    std::size_t repeats = 0;
    Seconds unlogged = 0;  // only stored alarms tell of this part of the period
};
cFigures Measure(const cPlant& plant, const cAlarmNames& names, const cSettings& settings,
                 const cSpan& period, const cTimeZone& zone);

// --- limits, as they are quoted

enum class eVerdict { Within, Over, Below, NotJudged };  // below: of what must be reached

enum class eFigure {
    RateTenMinutes,
    RateHour,
    RateDay,
    Peak,
    MeanDailyPeak,
    BusyBins,
    BusyHours,
    Floods,
    FloodShare,
    TopTen,
    MakeEighty,
    Chattering,
    Fleeting,
    Stale,
    Standing,
    HighShare,
    MediumShare,
    LowShare,
    Answers,
    AnswerMedian,
    AnswerNinetieth,
    Unanswered,
    Outside,
};

enum class eUnit { Count, Number, Share, Duration };

// What is quoted of a figure: it is within its limit when it is at most, below, or at least the value, a
// share as a part of 1.
struct cLimit {
    enum eKind { None, AtMost, Below, AtLeast } kind = None;
    double value = 0;
};
cLimit LimitOf(const cFigures& figures, eFigure figure);

struct cJudged {
    eFigure figure = eFigure::Peak;
    eUnit unit = eUnit::Count;
    std::optional<double> value;   // nothing: not known
    std::optional<double> before;  // of the period before
    eVerdict verdict = eVerdict::NotJudged;
};
// Every figure that has a line in the summary, in the order of the summary.
std::vector<cJudged> Judge(const cFigures& figures, const cFigures* before);

}  // namespace vigrel::report
