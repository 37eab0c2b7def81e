#include "campaigns/damaged_alarms/damaged_station.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "common/failure.h"

namespace vigrel::campaign {
namespace {

constexpr std::string_view kConfiguration =
    "[General]\r\nLanguage=046\r\n"
    "Columns=StateIcon,StateText,AlarmDate,AlarmTime,AlarmDateTime,Date,Time,DateTime,t0,t1,t2,t3,t4,t5,"
    "ExtraText,"
    "Observed\r\nBackColor_Active=255,0,0\r\nForeColor_Active=255,255,255\r\n"
    "[CategorySpecificSetting_Fire]\r\nIcon_Active=2,3\r\nFontBold_Active=1\r\nExtraText=Leave\r\n"
    "[CategoryTranslations]\r\nGas=Lukt\r\n";

void Expect(bool holds, const std::string& what) {
    if (!holds) throw std::runtime_error(what);
}

std::string Bytes(const cVigrelRecieverAlarm& alarm) {
    cBinaryWriter file;
    alarm.WriteToDisk(file);
    return file.Bytes();
}

// The order of times once more, by other means than the station's.
std::pair<bool, double> Rank(double time) {
    return std::isfinite(time) ? std::pair(true, time) : std::pair(false, 0.0);
}

}  // namespace

cDamagedStation::cDamagedStation(const std::string& folder) : path(folder) {
    files.WriteFile(path + "VigrelReceiver.INI", kConfiguration, false);
    files.WriteFile(path + "Vigrel_Texts.046",
                    "837=Over\r\n838=Active\r\n839=Acked\r\n10036=gone\r\n10041=loaded\r\n", false);
    random.Seed(1);
    texts.LoadTexts();
    categories.ReadDefault(ini);
    categories.ReadCategories(files, ini);
    view.SetUpColumns(settings);
    view.SetSortOrder();
    list.OnBeforeDrawRow = [this](RecordId row, cReportList::cFontStyle& style) {
        view.BeforeDrawRow(row, style);
    };
    list.View().resize(1600, 400);
}

void cDamagedStation::Take(const AlarmPtr& alarm) {
    listed.TakeIn(alarm);
    view.ShowNewAlarm(*alarm);
}

void cDamagedStation::SortBy(int column, bool ascending, bool alone) {
    if (alone) list.ClearSortOrder();
    list.AddSortColumn(column, ascending);
    list.TakeOverRecords();
}

void cDamagedStation::Copy() {
    constexpr int kKeyC = 67, kControl = 2;
    view.HandleListShortcut(kKeyC, kControl);
    Expect(clipboard.m_Text.empty() == list.SelectedRows().empty(),
           "the clipboard does not hold what is selected");
}

void cDamagedStation::Check() {
    CheckStore();
    CheckRows();
}

void cDamagedStation::CheckStore() const {
    const bool sorted = std::is_sorted(
        store.m_Alarms.begin(), store.m_Alarms.end(),
        [](const AlarmPtr& a, const AlarmPtr& b) { return Rank(a->m_CreatedTime) < Rank(b->m_CreatedTime); });
    Expect(sorted, "the store is out of order");
}

void cDamagedStation::CheckRows() {
    std::vector<RecordId> rows = list.Rows();
    std::vector<RecordId> records;
    for (const AlarmPtr& alarm : store.m_Alarms) records.push_back(alarm->m_Record);
    for (const RecordId row : rows) Expect(view.AlarmOf(row) != nullptr, "a row has no alarm");
    std::sort(rows.begin(), rows.end());
    std::sort(records.begin(), records.end());
    Expect(rows == records, "the rows are not those of the alarms");
}

void cDamagedStation::CheckFiles() const {
    const auto names = files.ListFiles(path + "Alarms\\", "*");
    Expect(names.size() == store.m_Alarms.size(),
           std::to_string(names.size()) + " files for " + std::to_string(store.m_Alarms.size()) + " alarms");
    for (const AlarmPtr& alarm : store.m_Alarms) {
        const std::string content = files.ReadFile(store.FileName(alarm->m_FileId));
        cBinaryReader file(content);
        cVigrelRecieverAlarm stored(clock, kNoCategorySetting);
        stored.ReadFromDisk(file);
        stored.m_FileId = alarm->m_FileId;  // the name decides
        Expect(Bytes(stored) == Bytes(*alarm), "a file does not hold its alarm");
    }
}

}  // namespace vigrel::campaign
