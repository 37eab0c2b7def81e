#include "vigrel-report/page/document.h"

#include "common/failure.h"
#include "common/printable.h"
#include "tool_support/print.h"

namespace vigrel::report {

const cTable& cDocument::Table(std::string_view key) const {
    for (const cTable& table : tables) {
        if (key == table.key) return table;
    }
    throw cFailure(eFailure::InvalidCall, "no table " + std::string(key));
}

std::string NameText(std::string_view text) {
    return Printable(text);
}

std::string SourceText(const cAlarmNames& names, std::uint32_t number) {
    const cSource& source = names.Source(number);
    const std::string text = source.alarm.empty() ? source.category : source.alarm;
    return NameText(text) + (source.place.empty() ? "" : ", " + NameText(source.place));
}

std::string StationText(const cStationFigures& station) {
    return station.name.empty() ? PrintablePath(station.folder) : NameText(station.name);
}

eWord FigureWord(eFigure figure) {
    constexpr auto first = static_cast<std::size_t>(eWord::FigureRateTenMinutes);
    return static_cast<eWord>(first + static_cast<std::size_t>(figure));
}

eWord WeekdayWord(std::size_t weekday) {
    return static_cast<eWord>(static_cast<std::size_t>(eWord::Monday) + weekday);
}

namespace {

// Whole days by their names, anything else to the minute.
std::string PeriodText(const cSpan& period, const cForms& forms) {
    const auto isMidnight = [&](Moment moment) { return forms.Zone().Midnight(moment) == moment; };
    if (isMidnight(period.begin) && isMidnight(period.end))
        return forms.Say(eWord::FromTo, {forms.Day(period.begin), forms.Day(period.end - 1)});
    return forms.Say(eWord::FromTo, {forms.Time(period.begin), forms.Time(period.end)});
}

}  // namespace

cDocument MakeDocument(const cReport& report, const cForms& forms) {
    cDocument document;
    for (const cStationFigures& station : report.figures.stations) {
        document.plant += (document.plant.empty() ? "" : " · ") + StationText(station);
    }
    document.period = PeriodText(report.figures.period, forms);
    document.madeAt = forms.Say(eWord::MadeAt, {forms.Time(report.madeAt)});
    document.sentences = MakeSentences(report, forms);
    document.recommendations = MakeRecommendations(report, forms);
    document.notes = MakeNotes(report, forms);
    document.tables = MakeTables(report, forms);
    return document;
}

}  // namespace vigrel::report
