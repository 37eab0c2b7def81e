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
    return NameText(station.name.empty() ? station.folder : station.name);
}

eWord FigureWord(eFigure figure) {
    constexpr auto first = static_cast<std::size_t>(eWord::FigureRateTenMinutes);
    return static_cast<eWord>(first + static_cast<std::size_t>(figure));
}

eWord WeekdayWord(std::size_t weekday) {
    return static_cast<eWord>(static_cast<std::size_t>(eWord::Monday) + weekday);
}

cDocument MakeDocument(const cReport& report, const cForms& forms) {
    cDocument document;
    for (const cStationFigures& station : report.figures.stations) {
        document.plant += (document.plant.empty() ? "" : " · ") + StationText(station);
    }
    const cSpan& period = report.figures.period;
    document.period = forms.Say(eWord::FromTo, {forms.Day(period.begin), forms.Day(period.end - 1)});
    document.madeAt = forms.Say(eWord::MadeAt, {forms.Time(report.madeAt)});
    document.sentences = MakeSentences(report, forms);
    document.recommendations = MakeRecommendations(report, forms);
    document.notes = MakeNotes(report, forms);
    document.tables = MakeTables(report, forms);
    return document;
}

}  // namespace vigrel::report
