#include <algorithm>

#include "common/date_text.h"
#include "common/numbers.h"
#include "tool_support/csv.h"
#include "tool_support/json.h"
#include "vigrel-report/page/writers.h"

namespace vigrel::report {
namespace {

std::string ExactTime(Moment moment, const cTimeZone& zone) {
    return DateTimeText(DateTimeOf(zone.ToWall(moment)));
}

// A JSON value, or the text of a cell of a table.
struct cPlain {
    std::string text;
    bool quoted = true;
};
cPlain PlainOf(const Cell& cell, const cTimeZone& zone) {
    struct cVisitor {
        const cTimeZone& zone;
        cPlain operator()(std::monostate) const { return {"", false}; }
        cPlain operator()(const std::string& text) const { return {text}; }
        cPlain operator()(eWord word) const {
            if (word == eWord::Yes) return {"true", false};
            if (word == eWord::No) return {"false", false};
            return {std::string(Word(eLanguage::English, word))};
        }
        cPlain operator()(cNumber number) const { return {NumberText(number.value), false}; }
        cPlain operator()(cPercent percent) const { return {NumberText(percent.share), false}; }
        cPlain operator()(cDuration duration) const { return {NumberText(duration.seconds), false}; }
        cPlain operator()(cTimeCell time) const { return {ExactTime(time.moment, zone)}; }
        cPlain operator()(cDayCell day) const { return {DayText(zone.ToWall(day.moment))}; }
        cPlain operator()(eVerdict verdict) const {
            const cForms english(eLanguage::English, zone);
            return {english.Text(verdict)};
        }
    };
    return std::visit(cVisitor{zone}, cell);
}

std::string JsonValue(const Cell& cell, const cTimeZone& zone) {
    if (std::holds_alternative<std::monostate>(cell)) return "null";
    const cPlain plain = PlainOf(cell, zone);
    return plain.quoted ? JsonStringOfUtf8(plain.text) : plain.text;
}

std::string JsonRow(const cTable& table, const std::vector<Cell>& row, const cTimeZone& zone) {
    std::string json = "{";
    for (std::size_t i = 0; i < row.size(); ++i) {
        json +=
            (i == 0 ? "" : ", ") + JsonStringOfUtf8(table.columns[i].key) + ": " + JsonValue(row[i], zone);
    }
    return json + "}";
}

std::string JsonTexts(const std::vector<std::string>& texts) {
    return JsonList(texts, JsonStringOfUtf8);
}

std::string CsvTable(const cTable& table, const cTimeZone& zone) {
    cCsvLine header;
    for (const cColumn& column : table.columns) header.CellOfUtf8(column.key);
    std::string csv = header.Line();
    for (const std::vector<Cell>& row : table.rows) {
        cCsvLine line;
        for (const Cell& cell : row) line.CellOfUtf8(PlainText(cell, zone));
        csv += line.Line();
    }
    return csv;
}

// Characters, not bytes, of UTF-8.
std::size_t Width(const std::string& utf8) {
    return static_cast<std::size_t>(std::count_if(
        utf8.begin(), utf8.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string Padded(std::string text, std::size_t width) {
    const std::size_t shown = Width(text);
    if (shown < width) text.append(width - shown, ' ');
    return text;
}

std::string TextTable(const cTable& table, const cForms& forms) {
    std::vector<std::vector<std::string>> lines(1);
    for (const cColumn& column : table.columns) lines[0].push_back(forms.Say(column.title));
    for (const std::vector<Cell>& row : table.rows) {
        lines.emplace_back();
        for (const Cell& cell : row) lines.back().push_back(forms.Text(cell));
    }
    std::vector<std::size_t> widths(table.columns.size());
    for (const auto& line : lines) {
        for (std::size_t i = 0; i < line.size(); ++i) widths[i] = std::max(widths[i], Width(line[i]));
    }
    std::string text;
    for (const auto& line : lines) {
        std::string row;
        for (std::size_t i = 0; i < line.size(); ++i) row += Padded(line[i], widths[i] + 2);
        text += "  " + row.substr(0, row.find_last_not_of(' ') + 1) + "\n";
    }
    return text;
}

}  // namespace

std::string PlainText(const Cell& cell, const cTimeZone& zone) {
    return PlainOf(cell, zone).text;
}

std::string JsonReport(const cDocument& document, const cReport& report, const cTimeZone& zone) {
    const cSpan& period = report.figures.period;
    std::string json = "{\n  \"plant\": " + JsonStringOfUtf8(document.plant) +
                       ",\n  \"from\": " + JsonStringOfUtf8(ExactTime(period.begin, zone)) +
                       ",\n  \"to\": " + JsonStringOfUtf8(ExactTime(period.end, zone)) +
                       ",\n  \"made_at\": " + JsonStringOfUtf8(ExactTime(report.madeAt, zone)) +
                       ",\n  \"operators\": " + std::to_string(report.settings.operators) +
                       ",\n  \"alarms\": " + std::to_string(report.figures.load.activations) +
                       ",\n  \"observed\": " + std::to_string(report.figures.load.observed) +
                       ",\n  \"sentences\": " + JsonTexts(document.sentences) +
                       ",\n  \"recommendations\": " + JsonTexts(document.recommendations) +
                       ",\n  \"notes\": " + JsonTexts(document.notes);
    for (const cTable& table : document.tables) {
        json += ",\n  " + JsonStringOfUtf8(table.key) + ": " +
                JsonList(table.rows, [&](const std::vector<Cell>& row) { return JsonRow(table, row, zone); });
    }
    return json + "\n}\n";
}

std::map<std::string, std::string> CsvFiles(const cDocument& document, const cForms& forms) {
    std::map<std::string, std::string> files;
    for (const cTable& table : document.tables)
        files[std::string(table.key) + ".csv"] = CsvTable(table, forms.Zone());
    cTable texts{"texts", eWord::Text, {{"kind", eWord::Kind}, {"text", eWord::Text}}, {}};
    for (const std::string& text : document.sentences) texts.rows.push_back({std::string("sentence"), text});
    for (const std::string& text : document.recommendations)
        texts.rows.push_back({std::string("recommendation"), text});
    for (const std::string& text : document.notes) texts.rows.push_back({std::string("note"), text});
    files["texts.csv"] = CsvTable(texts, forms.Zone());
    return files;
}

std::string ShortText(const cDocument& document, const cForms& forms) {
    std::string text = forms.Say(eWord::Title) + ": " + document.plant + ", " + document.period + "\n\n";
    for (const std::string& sentence : document.sentences) text += sentence + "\n";
    text += "\n" + TextTable(document.Table("summary"), forms) + "\n";
    if (!document.recommendations.empty()) text += forms.Say(eWord::Recommendations) + "\n";
    for (const std::string& recommendation : document.recommendations) text += "  - " + recommendation + "\n";
    return text;
}

}  // namespace vigrel::report
