#include "vigrel-report/page/pictures.h"

#include <cmath>

#include "common/numbers.h"
#include "vigrel-report/page/html_text.h"

namespace vigrel::report {
namespace {

constexpr double kWidth = 960;

std::string N(double value) {
    return NumberText(std::round(value * 10) / 10);
}

class cSvg {
  public:
    cSvg(double height, const std::string& title)
        : m_Svg("<svg viewBox=\"0 0 " + N(kWidth) + " " + N(height) + "\" role=\"img\" aria-label=\"" +
                Escaped(title) + "\"><title>" + Escaped(title) + "</title>\n") {}
    void Rect(double x, double y, double width, double height, const std::string& look,
              const std::string& tip = "") {
        m_Svg += "<rect x=\"" + N(x) + "\" y=\"" + N(y) + "\" width=\"" + N(width) + "\" height=\"" +
                 N(height) + "\" " + look +
                 (tip.empty() ? "/>" : "><title>" + Escaped(tip) + "</title></rect>") + "\n";
    }
    void Line(double x1, double y1, double x2, double y2, const std::string& look) {
        m_Svg += "<line x1=\"" + N(x1) + "\" y1=\"" + N(y1) + "\" x2=\"" + N(x2) + "\" y2=\"" + N(y2) +
                 "\" " + look + "/>\n";
    }
    void Text(double x, double y, const std::string& look, const std::string& text) {
        m_Svg += "<text x=\"" + N(x) + "\" y=\"" + N(y) + "\" " + look + ">" + Escaped(text) + "</text>\n";
    }
    void Path(const std::string& path, const std::string& look) {
        m_Svg += "<path d=\"" + path + "\" " + look + "/>\n";
    }
    std::string Done() const { return m_Svg + "</svg>\n"; }

  private:
    std::string m_Svg;
};

// Text that fits a width, about: an ellipsis for the rest. Whole characters of UTF-8.
std::string Shortened(const std::string& text, std::size_t most) {
    std::size_t characters = 0, at = 0;
    while (at < text.size() && characters < most) {
        ++at;
        while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80) ++at;
        ++characters;
    }
    return at == text.size() ? text : text.substr(0, at) + "\xE2\x80\xA6";
}

// A round number at or above a value, to end a scale with.
double ScaleEnd(double value) {
    double step = 1;
    while (true) {
        for (const double factor : {1.0, 2.0, 5.0}) {
            const double end = factor * step * 4;
            if (end >= value) return end;
        }
        step *= 10;
    }
}

struct cPlot {
    double left = 44, top = 12, right = kWidth - 8, bottom = 200;
    double most = 1;  // of the scale
    cSpan period;
    double X(Moment moment) const {
        const double share =
            static_cast<double>(moment - period.begin) / static_cast<double>(period.Length());
        return left + (right - left) * std::clamp(share, 0.0, 1.0);
    }
    double Y(double value) const { return bottom - (bottom - top) * std::min(value / most, 1.0); }
};

void DrawScale(cSvg& svg, const cPlot& plot, const cForms& forms) {
    for (int i = 0; i <= 4; ++i) {
        const double value = plot.most * i / 4;
        svg.Line(plot.left, plot.Y(value), plot.right, plot.Y(value), "class=\"grid\"");
        svg.Text(plot.left - 6, plot.Y(value) + 4, "class=\"axis end\"",
                 forms.Number(value, value < 3 && value > 0 && std::fmod(value, 1) > 0 ? 1 : 0));
    }
}

// A label that has no room before the picture's edge is left out; its tick stays.
void DrawTick(cSvg& svg, const cPlot& plot, Moment moment, const std::string& label) {
    if (!plot.period.Holds(moment)) return;
    constexpr double kCharacter = 7;
    const double x = plot.X(moment);
    svg.Line(x, plot.bottom, x, plot.bottom + 5, "class=\"tick\"");
    if (x + 3 + kCharacter * static_cast<double>(label.size()) > kWidth) return;
    svg.Text(x + 3, plot.bottom + 16, "class=\"axis\"", label);
}

void DrawTimes(cSvg& svg, const cPlot& plot, const cTimeZone& zone) {
    constexpr Seconds kSteps[] = {kMinute, 5 * kMinute, kBin, 30 * kMinute, kHour, 3 * kHour, 6 * kHour};
    Seconds step = kSteps[0];
    for (const Seconds next : kSteps) {
        if (plot.period.Length() / step > 12) step = next;
    }
    const WallTime first = zone.ToWall(plot.period.begin) / step * step, last = zone.ToWall(plot.period.end);
    for (WallTime wall = first; wall < last; wall += step) {
        const bool midnight = wall % kDay == 0;
        DrawTick(svg, plot, zone.ToMoments(wall).first, TimeText(wall).substr(midnight ? 5 : 11, 5));
    }
}

void DrawMonths(cSvg& svg, const cPlot& plot, const cTimeZone& zone, int days) {
    const cWallParts begin = SplitWallTime(zone.ToWall(plot.period.begin));
    const int step = (days + 370) / 372;
    for (int month = 0; month * 28 <= days + 31; month += step) {
        const WallTime wall = WallTimeFromParts(begin.year, begin.month + month, 1);
        DrawTick(svg, plot, zone.ToMoments(wall).first, DayText(wall).substr(0, 7));
    }
}

void DrawDays(cSvg& svg, const cPlot& plot, const cForms& forms, int days) {
    const int step = days <= 8 ? 1 : days <= 16 ? 2 : 7;
    const cTimeZone& zone = forms.Zone();
    for (Moment day = zone.Midnight(plot.period.begin); day < plot.period.end;
         day = zone.Midnight(day, step)) {
        const WallTime wall = zone.ToWall(day);
        const std::string weekday =
            days <= 16 ? forms.Say(WeekdayWord(static_cast<std::size_t>(SplitWallTime(wall).weekday))) + " "
                       : "";
        DrawTick(svg, plot, day, weekday + DayText(wall).substr(5));
    }
}

// Times, days or months below the plot, as many as there is room for.
void DrawTimeAxis(cSvg& svg, const cPlot& plot, const cForms& forms) {
    const auto days = static_cast<int>(plot.period.Length() / kDay) + 1;
    if (days <= 2) {
        DrawTimes(svg, plot, forms.Zone());
    } else if (days <= 70) {
        DrawDays(svg, plot, forms, days);
    } else {
        DrawMonths(svg, plot, forms.Zone(), days);
    }
}

Seconds BucketOf(const cSpan& period) {
    constexpr Seconds kBuckets[] = {kBin, 30 * kMinute, kHour, 3 * kHour, 6 * kHour, 12 * kHour, kDay};
    for (const Seconds bucket : kBuckets) {
        if (period.Length() / bucket <= 1100) return bucket;
    }
    return 7 * kDay;
}

void DrawBars(cSvg& svg, const cPlot& plot, const cBins& bins, Seconds bucket) {
    const auto together = static_cast<std::size_t>(bucket / bins.length);
    std::string bars;
    for (std::size_t bin = 0; bin < bins.counts.size(); bin += together) {
        std::uint32_t most = 0;
        for (std::size_t i = bin; i < std::min(bin + together, bins.counts.size()); ++i)
            most = std::max(most, bins.counts[i]);
        if (most == 0) continue;
        const double left = plot.X(bins.BeginOf(bin)), right = plot.X(bins.BeginOf(bin) + bucket);
        const double width = std::max(right - left - (right - left > 3 ? 0.6 : 0), 0.6);
        bars += "M" + N(left) + " " + N(plot.bottom) + "V" + N(plot.Y(most)) + "h" +
                NumberText(std::round(width * 100) / 100) + "V" + N(plot.bottom) + "z";
    }
    if (!bars.empty()) svg.Path(bars, "class=\"bar\"");
}

void DrawUnobserved(cSvg& svg, const cPlot& plot, const cBins& bins) {
    for (std::size_t bin = 0; bin < bins.counts.size();) {
        const std::size_t begin = bin;
        while (bin < bins.counts.size() && !bins.observed[bin]) ++bin;
        if (bin > begin) {
            const double left = plot.X(bins.BeginOf(begin));
            svg.Rect(left, plot.top, std::max(plot.X(bins.BeginOf(bin)) - left, 0.5), plot.bottom - plot.top,
                     "class=\"unknown\"");
        } else {
            ++bin;
        }
    }
}

}  // namespace

cTimePicture TimePicture(const cFigures& figures, const cForms& forms) {
    cPlot plot;
    plot.period = figures.period;
    const double limit = LimitOf(figures, eFigure::Peak).value;
    plot.most = ScaleEnd(std::max(static_cast<double>(figures.load.peak), limit * 1.2));
    cTimePicture picture;
    picture.bucket = BucketOf(figures.period);
    cSvg svg(224, forms.Say(eWord::TimeLine));
    DrawUnobserved(svg, plot, figures.load.bins);
    for (const cFlood& flood : figures.load.floods) {
        const double left = plot.X(flood.span.begin);
        svg.Rect(left, plot.top, std::max(plot.X(flood.span.end) - left, 1.5), plot.bottom - plot.top,
                 "class=\"flood\"",
                 forms.Time(flood.span.begin) + " \xE2\x80\x93 " + forms.Time(flood.span.end));
    }
    DrawScale(svg, plot, forms);
    DrawBars(svg, plot, figures.load.bins, picture.bucket);
    svg.Line(plot.left, plot.Y(limit), plot.right, plot.Y(limit), "class=\"limit\"");
    svg.Text(plot.right - 2, plot.Y(limit) - 5, "class=\"axis end strong halo\"",
             forms.Say(eWord::LimitLine, {forms.Number(limit)}));
    DrawTimeAxis(svg, plot, forms);
    picture.svg = svg.Done();
    return picture;
}

std::string SourcesPicture(const cFigures& figures, const cAlarmNames& names, const cForms& forms) {
    const auto& ranking = figures.sources.ranking;
    const std::size_t count = std::min(ranking.size(), kTop);
    constexpr double kRow = 34, kLeft = 28, kRight = kWidth - 190;
    cSvg svg(kRow * static_cast<double>(count) + 8, forms.Say(eWord::Sources));
    const auto all = static_cast<double>(figures.load.activations);
    double sum = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const double y = kRow * static_cast<double>(i), alarms = static_cast<double>(ranking[i].activations);
        sum += alarms;
        const double width = (kRight - kLeft) * alarms / static_cast<double>(ranking[0].activations);
        svg.Text(kLeft - 8, y + 16, "class=\"axis end\"", std::to_string(i + 1));
        svg.Text(kLeft, y + 16, "class=\"label\"", Shortened(SourceText(names, ranking[i].source), 100));
        svg.Rect(kLeft, y + 21, std::max(width, 1.0), 8, "class=\"bar\" rx=\"2\"");
        svg.Text(kRight + 70, y + 29, "class=\"label end\"", forms.Number(alarms));
        svg.Text(kRight + 122, y + 29, "class=\"axis end\"", forms.Percent(alarms / all));
        svg.Text(kRight + 182, y + 29, "class=\"axis end\"", "\xCE\xA3 " + forms.Percent(sum / all));
    }
    return svg.Done();
}

std::string AnswersPicture(const cFigures& figures, const cForms& forms) {
    struct cBar {
        std::string name;
        const cAnswerTimes* times;
    };
    std::vector<cBar> bars;
    Seconds most = 1;
    for (const cGroupAnswers& group : figures.answers.categories) {
        if (group.times.count == 0 || bars.size() == 12) continue;
        bars.push_back({NameText(group.category), &group.times});
        most = std::max(most, group.times.ninetieth);
    }
    if (bars.empty()) return "";
    constexpr double kRow = 28, kLeft = 190, kRight = kWidth - 180;
    cSvg svg(kRow * static_cast<double>(bars.size()) + 8, forms.Say(eWord::Acknowledgement));
    const auto width = [&](double seconds) {
        return std::max((kRight - kLeft) * seconds / static_cast<double>(most), 1.0);
    };
    for (std::size_t i = 0; i < bars.size(); ++i) {
        const double y = kRow * static_cast<double>(i);
        const cAnswerTimes& times = *bars[i].times;
        svg.Text(kLeft - 8, y + 19, "class=\"label end\"", Shortened(bars[i].name, 24));
        svg.Rect(kLeft, y + 6, width(static_cast<double>(times.ninetieth)), 18, "class=\"soft\" rx=\"2\"");
        svg.Rect(kLeft, y + 10, width(times.median), 10, "class=\"bar\" rx=\"2\"");
        svg.Text(kLeft + width(static_cast<double>(times.ninetieth)) + 8, y + 19, "class=\"axis\"",
                 forms.Duration(times.median) + " / " + forms.Duration(static_cast<double>(times.ninetieth)));
    }
    return svg.Done();
}

std::string HoursPicture(const cFigures& figures, const cSettings& settings, const cForms& forms) {
    constexpr double kLeft = 44, kTopEdge = 20, kCell = 37.5, kHeight = 24;
    double most = 0;
    for (const auto& day : figures.hours.cells) {
        for (const cHourCell& cell : day) most = std::max(most, cell.Mean());
    }
    cSvg svg(kTopEdge + 7 * kHeight + 8, forms.Say(eWord::HourGrid));
    for (std::size_t hour = 0; hour < 24; ++hour) {
        svg.Text(kLeft + kCell * static_cast<double>(hour) + kCell / 2, 13, "class=\"axis middle\"",
                 std::to_string(hour));
    }
    for (std::size_t day = 0; day < 7; ++day) {
        const double y = kTopEdge + kHeight * static_cast<double>(day);
        svg.Text(kLeft - 8, y + 16, "class=\"axis end\"", forms.Say(WeekdayWord(day)));
        for (std::size_t hour = 0; hour < 24; ++hour) {
            const cHourCell& cell = figures.hours.cells[day][hour];
            const double x = kLeft + kCell * static_cast<double>(hour);
            // Roots: a single busy hour must not make all others look the same.
            const double depth = most > 0 ? std::sqrt(cell.Mean() / most) : 0;
            const std::string look =
                cell.observed == 0
                    ? "class=\"unknown\""
                    : "class=\"heat\" fill-opacity=\"" + NumberText(std::round(depth * 100) / 100) + "\"";
            svg.Rect(x + 1, y + 1, kCell - 2, kHeight - 2, "class=\"cell\" rx=\"2\"");
            svg.Rect(x + 1, y + 1, kCell - 2, kHeight - 2, look + " rx=\"2\"",
                     forms.Say(WeekdayWord(day)) + " " + std::to_string(hour) + ": " +
                         forms.Number(cell.Mean(), 2));
        }
        if (!settings.workDays[day] || settings.workEnds <= settings.workBegins) continue;
        svg.Rect(kLeft + kCell * settings.workBegins, y, kCell * (settings.workEnds - settings.workBegins),
                 kHeight, "class=\"frame\"");
    }
    return svg.Done();
}

std::string StalePicture(const cFigures& figures, const cForms& forms) {
    cPlot plot;
    plot.bottom = 110;
    plot.period = figures.period;
    plot.most = ScaleEnd(std::max(static_cast<double>(figures.nuisance.mostStale), 6.0));
    cSvg svg(134, forms.Say(eWord::StaleDays));
    DrawScale(svg, plot, forms);
    const auto& days = figures.nuisance.staleDays;
    std::string bars;
    for (std::size_t i = 0; i < days.size(); ++i) {
        if (days[i].alarms == 0) continue;
        const double left = plot.X(days[i].midnight);
        const double right = i + 1 < days.size() ? plot.X(days[i + 1].midnight) : plot.right;
        const double gap = std::min((right - left) / 4, 8.0);
        bars += "M" + N(left + gap) + " " + N(plot.bottom) + "V" +
                N(plot.Y(static_cast<double>(days[i].alarms))) + "H" +
                N(std::max(right - gap, left + gap + 0.6)) + "V" + N(plot.bottom) + "z";
    }
    if (!bars.empty()) svg.Path(bars, "class=\"bar\"");
    svg.Line(plot.left, plot.Y(5), plot.right, plot.Y(5), "class=\"limit\"");
    DrawTimeAxis(svg, plot, forms);
    return svg.Done();
}

}  // namespace vigrel::report
