#pragma once

#include <array>
#include <string>
#include <vector>

#include "vigrel-report/page/cells.h"

namespace vigrel::report {

struct cColumn {
    const char* key = "";  // of files for programs: the same in every language and later version
    eWord title = eWord::Text;
};

struct cTable {
    const char* key = "";
    eWord title = eWord::Text;
    std::vector<cColumn> columns;
    std::vector<std::vector<Cell>> rows;
};

// What a report says, before it is written in one form or another.
struct cDocument {
    std::string plant;   // names of the stations
    std::string period;  // "2026-03-09 to 2026-03-15"
    std::string madeAt;
    std::vector<std::string> sentences;  // the three most important ones
    std::vector<std::string> recommendations;
    std::vector<std::string> notes;  // what can't be told
    std::vector<cTable> tables;

    const cTable& Table(std::string_view key) const;
};

// All that a document is made of.
struct cReport {
    const cFigures& figures;
    const cFigures* before;  // of the period before; null: none
    const cPlant& plant;
    const cAlarmNames& names;
    const cSettings& settings;
    Moment madeAt;
};
cDocument MakeDocument(const cReport& report, const cForms& forms);

// The parts of it.
std::vector<std::string> MakeSentences(const cReport& report, const cForms& forms);
std::vector<std::string> MakeRecommendations(const cReport& report, const cForms& forms);
std::vector<std::string> MakeNotes(const cReport& report, const cForms& forms);
std::vector<cTable> MakeTables(const cReport& report, const cForms& forms);
// What the tables of days tell, by month: sums, of the peaks and of the stale alarms the most.
cTable MonthsTable(const cFigures& figures, const cTimeZone& zone);
cTable StaleMonthsTable(const cFigures& figures, const cTimeZone& zone);

// A text of the code page as it can be shown: UTF-8, control characters as escapes.
std::string NameText(std::string_view text);
// "Fan 3 tripped, Boiler room".
std::string SourceText(const cAlarmNames& names, std::uint32_t source);
std::string StationText(const cStationFigures& station);
eWord FigureWord(eFigure figure);
eWord WeekdayWord(std::size_t weekday);

}  // namespace vigrel::report
