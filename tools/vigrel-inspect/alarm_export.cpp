#include "vigrel-inspect/alarm_export.h"

#include <algorithm>
#include <initializer_list>
#include <vector>

#include "common/code_page.h"
#include "common/date_text.h"
#include "common/dates.h"
#include "common/failure.h"
#include "common/ini.h"
#include "common/numbers.h"
#include "common/path_text.h"
#include "common/printable.h"

namespace vigrel {
namespace {

constexpr std::string_view kMask = "A???????.alm";
// Well above the longest texts that an alarm can hold; nothing larger is taken into memory.
constexpr std::int64_t kLargestAlarm = 4 << 20;
constexpr std::string_view kHeader =
    "\"file\",\"created\",\"sender\",\"status\",\"observed\",\"time_at_source\",\"time_at_pc\",\"event_id\","
    "\"t0\",\"t1\",\"category\",\"t3\",\"t4\",\"t5\",\"problem\"\r\n";

// An alarm that is read has no moment of its own.
class cNoClock : public cClock {
  public:
    DateTime Now() const override { return 0; }
    double Steady() const override { return 0; }
};

struct cRow {
    DateTime created = 0;
    std::string line;
};

// Whether a spreadsheet would take a cell for a formula, which a sender must not be able to bring in.
bool LooksLikeFormula(std::string_view text) {
    return !text.empty() && std::string_view("=+-@\t\r").find(text[0]) != std::string_view::npos &&
           !IsNumeric(text);
}

class cRowWriter {
  public:
    explicit cRowWriter(const cExportWish& wish) : m_Wish(wish) {}
    void Cell(std::string_view text) {
        m_Line += m_Line.empty() ? "\"" : ",\"";
        if (!m_Wish.exact && LooksLikeFormula(text)) m_Line += '\'';
        const std::string shown = m_Wish.terminal ? Printable(text) : CodePageToUtf8(text);
        for (const char c : shown) m_Line.append(c == '"' ? 2 : 1, c);
        m_Line += '"';
    }
    std::string Line() const { return m_Line + "\r\n"; }

  private:
    const cExportWish& m_Wish;
    std::string m_Line;
};

std::string DateCell(DateTime value) {
    return value == 0 ? std::string() : DateTimeText(value);
}

std::string RowLine(const std::string& file, const cVigrelRecieverAlarm& alarm, const std::string& problem,
                    const cExportWish& wish) {
    cRowWriter row(wish);
    const std::string state = StateName(alarm.m_Alarm.m_Status);
    for (const std::string& text :
         {file, DateCell(alarm.m_CreatedTime), alarm.m_Sender,
          state.empty() ? std::to_string(alarm.m_Alarm.m_Status) : state,
          std::string(alarm.m_Observed != 0 ? "yes" : "no"), DateCell(alarm.m_Alarm.m_TimeStampFromSCADA),
          DateCell(alarm.m_Alarm.m_TimeStampFromPC), std::to_string(alarm.m_Alarm.m_EventId)}) {
        row.Cell(text);
    }
    for (int i = 0; i < 6; ++i) row.Cell(alarm.m_Alarm.GetCondition(i));
    row.Cell(problem);
    return row.Line();
}

// Reads what can be read of an alarm file; the result names what is wrong with it.
std::string ReadAlarm(const cFileReader& files, const std::string& path, cVigrelRecieverAlarm& alarm) {
    std::string problem;
    const auto failure = CatchFailure([&] {
        if (files.Stamp(path).size > kLargestAlarm) {
            problem = "the file is too large for an alarm";
            return;
        }
        const std::string content = files.ReadFile(path);
        cBinaryReader file(content);
        alarm.ReadFromDisk(file);
        if (!file.Complete()) {
            problem = "the file ends too early, at its byte " + std::to_string(content.size());
        } else if (file.Position() < content.size()) {
            problem = std::to_string(content.size() - file.Position()) + " bytes lie behind the alarm";
        } else if (StateName(alarm.m_Alarm.m_Status).empty()) {
            problem = "the status is not in 0 to 3";
        } else if (CatchFailure([&] { SplitDateTime(alarm.m_CreatedTime); })) {
            problem = "the time of arrival is no date of the years 100 to 9999";
        }
    });
    return failure ? WithPathsInCodePage(failure->what()) : problem;
}

bool IsStoredName(const std::string& name) {
    return std::all_of(name.begin() + 1, name.begin() + 8, [](char c) { return c >= '0' && c <= '9'; });
}

std::vector<std::string> AlarmFiles(const cFileReader& files, const std::string& folder) {
    std::vector<std::string> names = files.ListFiles(folder, kMask);
    std::erase_if(names, [](const std::string& name) { return !IsStoredName(name); });
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace

std::string FindAlarmFolder(const cFileReader& files, const std::string& folder) {
    const bool separated = folder.ends_with('/') || folder.ends_with('\\');
    const std::string given = separated ? folder : folder + "/";
    for (const std::string& candidate : {given + "Alarms/", given}) {
        if (!AlarmFiles(files, candidate).empty()) return candidate;
    }
    // A station that has no alarms is no mistake.
    if (files.FileExists(given + std::string(kIniFile))) return given + "Alarms/";
    throw cFailure(eFailure::FileNotFound,
                   folder + ": there is no alarm file here, nor in its folder Alarms");
}

cExportResult ExportAlarms(const cFileReader& files, const std::string& alarmFolder, const cExportWish& wish,
                           const std::function<void(std::size_t, std::size_t)>& onProgress) {
    const std::vector<std::string> names = AlarmFiles(files, alarmFolder);
    const cNoClock clock;
    cExportResult result;
    std::vector<cRow> rows;
    for (const std::string& name : names) {
        cVigrelRecieverAlarm alarm(clock);
        const std::string problem = ReadAlarm(files, alarmFolder + name, alarm);
        result.damaged += problem.empty() ? 0 : 1;
        if (!problem.empty() || wish.filter.Wants(alarm)) {
            rows.push_back({alarm.m_CreatedTime, RowLine(name, alarm, problem, wish)});
        }
        onProgress(++result.files, names.size());
    }
    std::stable_sort(rows.begin(), rows.end(),
                     [](const cRow& a, const cRow& b) { return Earlier(a.created, b.created); });
    result.alarms = rows.size();
    result.table = kHeader;
    for (const cRow& row : rows) result.table += row.line;
    return result;
}

}  // namespace vigrel
