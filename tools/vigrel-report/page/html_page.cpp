#include <algorithm>

#include "vigrel-report/page/html_text.h"
#include "vigrel-report/page/pictures.h"
#include "vigrel-report/page/writers.h"

namespace vigrel::report {
namespace {

// A page prints in light colours: its dark ones are for screens only.
constexpr std::string_view kStyle = R"(
:root{color-scheme:light dark;--paper:#fbfaf8;--card:#fff;--ink:#1d2327;--soft-ink:#565f66;--line:#dcdad5;
--bar:#2f6690;--light-bar:#a9c5da;--flood:#f3c9bd;--limit:#b3261e;--good:#1b6e46;--bad:#b3261e;--calm:#5b646b;--unknown:#d9d7d2}
@media screen and (prefers-color-scheme:dark){:root{--paper:#14181b;--card:#1c2226;--ink:#e6e8e9;--soft-ink:#a5aeb4;
--line:#363e44;--bar:#6fb1dd;--light-bar:#33566f;--flood:#5b2f29;--limit:#ff8a7a;--good:#6fce9c;--bad:#ff9486;--calm:#a5aeb4;--unknown:#333a3f}}
*{box-sizing:border-box}
body{margin:0;background:var(--paper);color:var(--ink);font:16px/1.5 system-ui,"Segoe UI",Roboto,"Noto Sans","DejaVu Sans",sans-serif}
main{max-width:1020px;margin:0 auto;padding:40px 24px 64px}
h1{font-size:1.9rem;font-weight:650;letter-spacing:-.01em;margin:0}
h2{font-size:1.2rem;font-weight:650;margin:0 0 12px}
h3{font-size:1rem;font-weight:600;margin:24px 0 8px}
header p{margin:4px 0 0;color:var(--soft-ink)}
section{background:var(--card);border:1px solid var(--line);border-radius:10px;padding:22px 24px;margin-top:20px}
.lead{list-style:none;margin:24px 0 0;padding:0;display:grid;gap:12px}
.lead li{font-size:1.22rem;line-height:1.4;padding:2px 0 2px 18px;border-left:4px solid var(--bar)}
.begin{margin:0;padding-left:20px}.begin li{margin:4px 0}
.caption{color:var(--soft-ink);font-size:.9rem;margin:8px 0 0}
.scroll{overflow-x:auto}
table{border-collapse:collapse;width:100%;font-size:.92rem;font-variant-numeric:tabular-nums}
th{text-align:left;font-weight:600;color:var(--soft-ink);border-bottom:1px solid var(--line);padding:6px 10px 6px 0;vertical-align:bottom}
td{border-bottom:1px solid var(--line);padding:6px 10px 6px 0;vertical-align:top}
.long{overflow-wrap:anywhere}.time{white-space:nowrap}
tr:last-child td,tbody tr:last-child th{border-bottom:0}
.turned{width:auto}.turned th.number{white-space:normal;overflow-wrap:anywhere}
.number{text-align:right;white-space:nowrap}.number:not(:last-child){padding-right:20px}.number:last-child,th:last-child{padding-right:0}
.verdict{white-space:nowrap;font-weight:600}
.within{color:var(--good)}.over{color:var(--bad)}.open{color:var(--calm);font-weight:400}
svg{display:block;width:100%;height:auto;font-family:inherit}
.axis{font-size:12px;fill:var(--soft-ink)}.label{font-size:13px;fill:var(--ink)}.end{text-anchor:end}.middle{text-anchor:middle}
.strong{fill:var(--limit);font-weight:600}.halo{paint-order:stroke;stroke:var(--card);stroke-width:4px}
.bar{fill:var(--bar)}.soft{fill:var(--light-bar);stroke:var(--bar)}
.flood{fill:var(--flood);stroke:var(--limit);stroke-width:.7}.unknown{fill:var(--unknown)}
.grid{stroke:var(--line);stroke-width:1}.tick{stroke:var(--soft-ink);stroke-width:1}
.limit{stroke:var(--limit);stroke-width:1.5;stroke-dasharray:6 4}
.cell{fill:none;stroke:var(--line);stroke-width:1}.heat{fill:var(--bar)}.frame{fill:none;stroke:var(--soft-ink);stroke-width:1.2}
.behind{margin-top:18px}
.notes li{margin:6px 0}.notes,.quoted{color:var(--soft-ink);font-size:.92rem}
@page{size:A4;margin:14mm}
@media print{:root{color-scheme:light;--paper:#fff;--unknown:#e4e2dd}*{-webkit-print-color-adjust:exact;print-color-adjust:exact}
html,body{font-size:9.5pt}main{max-width:none;padding:0}section{border:0;border-top:1px solid var(--line);border-radius:0;padding:12px 0 0;margin-top:14px}
.lead li{font-size:12pt}.picture,.lead,.begin,header,tr,h2+.scroll thead{break-inside:avoid}h2,h3{break-after:avoid}.scroll{overflow:visible}
thead{display:table-header-group}table{font-size:8pt}th,td{padding:3px 8px 3px 0}}
)";

// Rows of a list on the page; the rest is in the files for spreadsheets. More days than these are told by
// month: nobody reads through a year of days, nor prints them.
constexpr std::size_t kMostRows = 25, kMostDays = 62;

bool IsTime(const Cell& cell) {
    return std::holds_alternative<cDayCell>(cell) || std::holds_alternative<cTimeCell>(cell);
}

bool IsNumericCell(const Cell& cell) {
    return !std::holds_alternative<std::string>(cell) && !std::holds_alternative<eWord>(cell) &&
           !std::holds_alternative<eVerdict>(cell) && !std::holds_alternative<std::monostate>(cell) &&
           !IsTime(cell);
}

// One that would make its column too wide: it may break anywhere, others between words only.
bool HasLongWord(const std::string& text) {
    constexpr std::size_t kLong = 24;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find(' ', begin), text.size());
        if (end - begin > kLong) return true;
        begin = end + 1;
    }
    return false;
}

// Whether a column holds numbers, wherever it holds anything. Nothing stands where numbers would.
bool HoldsNumbers(const cTable& table, std::size_t column) {
    return std::all_of(table.rows.begin(), table.rows.end(), [column](const std::vector<Cell>& row) {
        return IsNumericCell(row[column]) || std::holds_alternative<std::monostate>(row[column]);
    });
}

class cPage {
  public:
    cPage(const cDocument& document, const cReport& report, const cForms& forms)
        : m_Document(document), m_Report(report), m_Forms(forms) {}

    std::string Write() {
        Head();
        Lead();
        Summary();
        Begin();
        Time();
        Sources();
        Nuisance();
        Answers();
        Hours();
        Section("senders", eWord::Senders);
        Station();
        Notes();
        m_Html += "</main>\n</body>\n</html>\n";
        return std::move(m_Html);
    }

  private:
    std::string Say(eWord word, const std::vector<std::string>& values = {}) const {
        return Escaped(m_Forms.Say(word, values));
    }
    void Head() {
        const std::string title =
            Say(eWord::Title) +
            (m_Document.plant.empty() ? "" : " \xE2\x80\x93 " + Escaped(m_Document.plant));
        m_Html +=
            "<!DOCTYPE html>\n<html lang=\"" + CodeOf(m_Forms.Language()) +
            "\">\n<head>\n<meta charset=\"utf-8\">\n<meta name=\"viewport\" content=\"width=device-width, "
            "initial-scale=1\">\n<meta name=\"color-scheme\" content=\"light dark\">\n<title>" +
            title + ", " + Escaped(m_Document.period) + "</title>\n<style>" + std::string(kStyle) +
            "</style>\n</head>\n<body>\n<main>\n<header>\n<h1>" + title + "</h1>\n<p>" +
            Escaped(m_Document.period) + " &nbsp;\xC2\xB7&nbsp; " + Escaped(m_Document.madeAt) +
            "</p>\n</header>\n";
    }
    void Lead() {
        m_Html += "<ul class=\"lead\">\n";
        for (const std::string& sentence : m_Document.sentences)
            m_Html += "<li>" + Escaped(sentence) + "</li>\n";
        m_Html += "</ul>\n";
    }
    void Open(eWord title) { m_Html += "<section>\n<h2>" + Say(title) + "</h2>\n"; }
    void Close() { m_Html += "</section>\n"; }
    void Caption(const std::string& escaped) { m_Html += "<p class=\"caption\">" + escaped + "</p>\n"; }
    void Picture(const std::string& svg) { m_Html += "<div class=\"picture\">" + svg + "</div>\n"; }

    std::string CellHtml(const Cell& cell, bool numeric) const {
        const std::string text = Escaped(m_Forms.Text(cell));
        if (const auto* verdict = std::get_if<eVerdict>(&cell)) {
            // A shape beside the word: meaning is never in the colour alone.
            const char* look = *verdict == eVerdict::Within  ? "within\">\xE2\x97\x8F "
                               : *verdict == eVerdict::Over  ? "over\">\xE2\x96\xB2 "
                               : *verdict == eVerdict::Below ? "over\">\xE2\x96\xBC "
                                                             : "open\">\xE2\x97\x8B ";
            return "<td class=\"verdict " + std::string(look) + text + "</td>";
        }
        const char* look = numeric             ? " class=\"number\""
                           : IsTime(cell)      ? " class=\"time\""
                           : HasLongWord(text) ? " class=\"long\""
                                               : "";
        return "<td" + std::string(look) + ">" + text + "</td>";
    }
    void Table(const cTable& table, std::size_t most) {
        if (table.rows.empty()) {
            m_Html += "<p class=\"caption\">" + Say(eWord::None) + "</p>\n";
            return;
        }
        m_Html += "<div class=\"scroll\"><table>\n<thead><tr>";
        std::vector<bool> numericColumns;
        for (std::size_t i = 0; i < table.columns.size(); ++i) {
            const bool numeric = HoldsNumbers(table, i);
            numericColumns.push_back(numeric);
            m_Html += std::string("<th scope=\"col\"") + (numeric ? " class=\"number\">" : ">") +
                      Say(table.columns[i].title) + "</th>";
        }
        m_Html += "</tr></thead>\n<tbody>\n";
        for (std::size_t i = 0; i < std::min(most, table.rows.size()); ++i) {
            m_Html += "<tr>";
            for (std::size_t j = 0; j < table.columns.size(); ++j)
                m_Html += CellHtml(table.rows[i][j], numericColumns[j]);
            m_Html += "</tr>\n";
        }
        m_Html += "</tbody>\n</table></div>\n";
        if (table.rows.size() > most)
            Caption(Say(eWord::MoreRows, {m_Forms.Count(table.rows.size() - most)}));
    }
    // A column for each row: for tables with more columns than a sheet of paper has room for.
    void TurnedTable(const cTable& table) {
        m_Html += "<div class=\"scroll\"><table class=\"turned\">\n<thead><tr><th scope=\"col\">" +
                  Say(table.columns[0].title) + "</th>";
        for (const std::vector<Cell>& row : table.rows) {
            m_Html += "<th scope=\"col\" class=\"number\">" + Escaped(m_Forms.Text(row[0])) + "</th>";
        }
        m_Html += "</tr></thead>\n<tbody>\n";
        for (std::size_t i = 1; i < table.columns.size(); ++i) {
            m_Html += "<tr><th scope=\"row\">" + Say(table.columns[i].title) + "</th>";
            for (const std::vector<Cell>& row : table.rows) m_Html += CellHtml(row[i], true);
            m_Html += "</tr>\n";
        }
        m_Html += "</tbody>\n</table></div>\n";
    }
    void TableOf(const char* key, std::size_t most = kMostRows) { Table(m_Document.Table(key), most); }
    void Behind(const char* key, std::size_t most = kMostRows) {
        m_Html += "<h3 class=\"behind\">" + Say(eWord::TableBehind) + "</h3>\n";
        TableOf(key, most);
    }
    void Part(eWord title, const char* key) {
        m_Html += "<h3>" + Say(title) + "</h3>\n";
        TableOf(key);
    }
    void Section(const char* key, eWord title) {
        Open(title);
        TableOf(key, 100);
        Close();
    }

    void Summary() {
        Open(eWord::Summary);
        TableOf("summary");
        m_Html += "<p class=\"quoted\">" + Say(eWord::Quoted) + "</p>\n";
        Close();
    }
    void Begin() {
        if (m_Document.recommendations.empty()) return;
        Open(eWord::Recommendations);
        m_Html += "<ol class=\"begin\">\n";
        for (const std::string& text : m_Document.recommendations)
            m_Html += "<li>" + Escaped(text) + "</li>\n";
        m_Html += "</ol>\n";
        Close();
    }
    void Time() {
        Open(eWord::TimeLine);
        const cTimePicture picture = TimePicture(m_Report.figures, m_Forms);
        Picture(picture.svg);
        Caption(TimeCaption(picture.bucket));
        Behind(ByMonth() ? "months" : "days", kMostDays);
        Part(eWord::Floods, "floods");
        Close();
    }
    bool ByMonth() const { return m_Report.figures.load.days.size() > kMostDays; }
    std::string TimeCaption(Seconds bucket) const {
        const std::string bars =
            bucket == kBin ? Say(eWord::CaptionBins)
                           : Say(eWord::CaptionBuckets, {m_Forms.Duration(static_cast<double>(bucket))});
        return bars + " " +
               Say(eWord::CaptionTime, {m_Forms.Number(LimitOf(m_Report.figures, eFigure::Peak).value)});
    }
    void Sources() {
        Open(eWord::Sources);
        if (!m_Report.figures.sources.ranking.empty()) {
            Picture(SourcesPicture(m_Report.figures, m_Report.names, m_Forms));
            Behind("sources");
        } else {
            TableOf("sources");
        }
        Close();
    }
    void Nuisance() {
        Open(eWord::Chattering);
        TableOf("chattering");
        Part(eWord::Fleeting, "fleeting");
        Close();
        Open(eWord::Stale);
        TableOf("stale");
        m_Html += "<h3>" + Say(eWord::StaleDays) + "</h3>\n";
        Picture(StalePicture(m_Report.figures, m_Forms));
        Behind(ByMonth() ? "stale_months" : "stale_days", kMostDays);
        Part(eWord::Standing, "standing");
        Close();
    }
    void Answers() {
        Open(eWord::Acknowledgement);
        const std::string picture = AnswersPicture(m_Report.figures, m_Forms);
        if (!picture.empty()) {
            Picture(picture);
            Caption(Say(eWord::CaptionAnswers));
            Behind("acknowledgement");
        } else {
            TableOf("acknowledgement");
        }
        Part(eWord::Priorities, "priorities");
        Close();
    }
    void Hours() {
        Open(eWord::HourGrid);
        Picture(HoursPicture(m_Report.figures, m_Report.settings, m_Forms));
        Caption(Say(eWord::CaptionHours, {m_Forms.Say(eWord::WorkingHours)}));
        Behind("hours");
        Close();
    }
    void Station() {
        Open(eWord::StationLife);
        TurnedTable(m_Document.Table("stations"));
        Part(eWord::Outages, "outages");
        Close();
    }
    void Notes() {
        if (m_Document.notes.empty()) return;
        Open(eWord::Notes);
        m_Html += "<ul class=\"notes\">\n";
        for (const std::string& note : m_Document.notes) m_Html += "<li>" + Escaped(note) + "</li>\n";
        m_Html += "</ul>\n";
        Close();
    }

    const cDocument& m_Document;
    const cReport& m_Report;
    const cForms& m_Forms;
    std::string m_Html;
};

}  // namespace

std::string HtmlPage(const cDocument& document, const cReport& report, const cForms& forms) {
    return cPage(document, report, forms).Write();
}

}  // namespace vigrel::report
