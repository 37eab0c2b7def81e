#pragma once

#include <map>
#include <string>

#include "vigrel-report/page/document.h"

namespace vigrel::report {

// The forms that a report is handed out in, all UTF-8.

// One page that needs nothing else: pictures inside, light and dark, for A4 too, without scripts.
std::string HtmlPage(const cDocument& document, const cReport& report, const cForms& forms);

// One object: sentences, recommendations, notes, tables with an object for each row. Words are English
// whatever the report's language; shares are 0 to 1, durations seconds, times local.
std::string JsonReport(const cDocument& document, const cReport& report, const cTimeZone& zone);

// Files by name, one for each table, and the sentences. Values as in the JSON form; cells that a spreadsheet
// would take for formulas get an apostrophe in front.
std::map<std::string, std::string> CsvFiles(const cDocument& document, const cForms& forms);

// For the terminal: sentences, summary, where to begin.
std::string ShortText(const cDocument& document, const cForms& forms);

// A value for programs: of a text the text, of all else a form that is the same in every language.
std::string PlainText(const Cell& cell, const cTimeZone& zone);

}  // namespace vigrel::report
