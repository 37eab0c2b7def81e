#include "vigrel-inspect/alarm_export.h"

#include <algorithm>
#include <initializer_list>
#include <vector>

#include "common/date_text.h"
#include "common/dates.h"
#include "tool_support/csv.h"
#include "tool_support/stored_alarms.h"

namespace vigrel {
namespace {

constexpr std::string_view kHeader =
    "\"file\",\"created\",\"sender\",\"status\",\"observed\",\"time_at_source\",\"time_at_pc\",\"event_id\","
    "\"t0\",\"t1\",\"category\",\"t3\",\"t4\",\"t5\",\"problem\"\r\n";

struct cRow {
    DateTime created = 0;
    std::string line;
};

std::string DateCell(DateTime value) {
    return value == 0 ? std::string() : DateTimeText(value);
}

std::string RowLine(const std::string& file, const cVigrelRecieverAlarm& alarm, const std::string& problem,
                    const cExportWish& wish) {
    cCsvLine row(wish.exact, wish.terminal);
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

}  // namespace

cExportResult ExportAlarms(const cFileReader& files, const cAlarmFolder& folder, const cExportWish& wish,
                           const std::function<void(std::size_t, std::size_t)>& onProgress) {
    cExportResult result;
    std::vector<cRow> rows;
    rows.reserve(folder.names.size());
    ReadStoredAlarms(files, folder.path, folder.names,
                     [&](const std::string& name, const cStoredAlarm& stored) {
                         const auto& [alarm, problem] = stored;
                         result.damaged += problem.empty() ? 0 : 1;
                         if (!problem.empty() || wish.filter.Wants(alarm)) {
                             rows.push_back({alarm.m_CreatedTime, RowLine(name, alarm, problem, wish)});
                         }
                         onProgress(++result.files, folder.names.size());
                     });
    std::stable_sort(rows.begin(), rows.end(),
                     [](const cRow& a, const cRow& b) { return Earlier(a.created, b.created); });
    result.alarms = rows.size();
    result.table = kHeader;
    for (const cRow& row : rows) result.table += row.line;
    return result;
}

}  // namespace vigrel
