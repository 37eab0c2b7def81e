#include <algorithm>

#include "common/dates.h"
#include "common/setting_keys.h"
#include "common/text.h"
#include "events/alarm_list_view.h"
#include "receiver-check/checks.h"
#include "receiver-check/names.h"

namespace vigrel {
namespace {

bool IsKeyword(std::string_view name) {
    return std::any_of(kColumnKeywords.begin(), kColumnKeywords.end(),
                       [&](std::string_view keyword) { return EqualsNoCase(keyword, name); });
}

// The keywords that the list takes: up to the first empty one.
std::vector<std::string> Columns(const cInstallation& installation) {
    std::vector<std::string> columns = SplitAt(installation.Value("General", "Columns"), ',');
    columns.erase(std::find(columns.begin(), columns.end(), ""), columns.end());
    return columns;
}

void CheckKeyword(const std::string& keyword, const cPlace& place, cFindings& findings) {
    if (IsKeyword(keyword)) return;
    if (IsKeyword(Trim(keyword))) {
        findings.Warning("column-blank", place,
                         "\"" + keyword + "\" has blanks around it and so acts as StateIcon");
        return;
    }
    const std::vector<std::string> known(kColumnKeywords.begin(), kColumnKeywords.end());
    findings.Warning("unknown-column", place,
                     "the column \"" + keyword + "\" is not known and acts as StateIcon" +
                         MeantPerhaps(Trim(keyword), known));
}

void CheckColumns(const cInstallation& installation, cFindings& findings) {
    const cPlace place = installation.PlaceOf("General", "Columns");
    const std::vector<std::string> columns = Columns(installation);
    if (columns.empty()) {
        findings.Error("no-columns", place, "names no column: the list shows nothing");
        return;
    }
    if (columns.size() > kMostColumns) {
        findings.Error("too-many-columns", place,
                       "names " + std::to_string(columns.size()) + " columns; with more than " +
                           std::to_string(kMostColumns) + " the start ends with a message");
    }
    if (columns.size() == 1) {
        findings.Warning("one-column", place, "the first column shows its picture alone: add others");
    } else if (IsKeyword(columns[0]) && !EqualsNoCase(columns[0], "StateIcon") &&
               !EqualsNoCase(columns[0], "Observed")) {
        findings.Warning("first-column-blank", place,
                         "the first column shows its picture alone, and " + columns[0] +
                             " has none: begin with StateIcon");
    }
    if (columns.size() < SplitAt(place.value, ',').size()) {
        findings.Warning("column-list-cut", place,
                         "a \",\" without a column ends the list behind " + columns.back());
    }
    for (std::size_t i = 0; i < columns.size(); ++i) {
        CheckKeyword(columns[i], place, findings);
        const auto same = [&](const std::string& other) { return EqualsNoCase(other, columns[i]); };
        const auto here = columns.begin() + static_cast<std::ptrdiff_t>(i);
        if (std::any_of(columns.begin(), here, same)) {
            findings.Remark("column-repeated", place, "the column " + columns[i] + " stands twice");
        }
    }
}

// Two moments that differ in one part, and what the part is called.
struct cPart {
    std::string name;
    DateTime moment;
};

// Says which parts of a moment the form doesn't show.
void CheckForm(const cInstallation& installation, const std::string& key, const std::vector<cPart>& parts,
               cFindings& findings) {
    const cLocaleForms forms;
    const cPlace place = installation.PlaceOf("General", key);
    const std::string form = installation.Value("General", key);
    const DateTime moment = DateSerial(2021, 3, 4) + TimeSerial(5, 6, 7);
    std::string missing;
    for (const cPart& part : parts) {
        if (FormatDateTime(moment, form, forms) != FormatDateTime(part.moment, form, forms)) continue;
        missing += (missing.empty() ? "" : " nor ") + part.name;
    }
    if (missing.empty()) return;
    findings.Warning("form-without-part", place,
                     "shows no " + missing + ": " + FormatDateTime(moment, form, forms));
}

void CheckForms(const cInstallation& installation, cFindings& findings) {
    const DateTime time = TimeSerial(5, 6, 7), day = DateSerial(2021, 3, 4);
    CheckForm(installation, "DateFormat",
              {{"day", DateSerial(2021, 3, 25) + time}, {"month", DateSerial(2021, 11, 4) + time}}, findings);
    CheckForm(installation, "TimeFormat",
              {{"hour", day + TimeSerial(17, 6, 7)}, {"minute", day + TimeSerial(5, 48, 7)}}, findings);
}

}  // namespace

void CheckList(const cInstallation& installation, cFindings& findings) {
    if (!installation.IsConfigured()) return;
    CheckColumns(installation, findings);
    CheckForms(installation, findings);
}

}  // namespace vigrel
