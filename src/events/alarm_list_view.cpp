#include "events/alarm_list_view.h"

#include <algorithm>

#include "common/dates.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

constexpr int kKeyA = 65;
constexpr int kKeyC = 67;
constexpr int kControlAlone = 2;
constexpr int kTwipsPerInch = 1440;
constexpr int kPointsPerInch = 72;
constexpr int kRowMargin = 5;  // pixels

// A keyword that no kind has acts as the first kind.
eColumnKind KindOf(std::string_view keyword) {
    const auto found = std::find_if(kColumnKeywords.begin(), kColumnKeywords.end(),
                                    [&](std::string_view known) { return EqualsNoCase(known, keyword); });
    return found == kColumnKeywords.end() ? eColumnKind::StateIcon
                                          : static_cast<eColumnKind>(found - kColumnKeywords.begin());
}

bool IsCentred(std::string_view keyword) {
    return EqualsNoCase(keyword, "t2") || EqualsNoCase(keyword, "Category") ||
           EqualsNoCase(keyword, "StateText");
}

}  // namespace

void cAlarmListView::SetUpColumns(cSettings& settings) {
    const cSettingReader general(m_Services.ini, "General");
    settings.m_ColumnResizable = general.Flag("ColumnResizable");
    settings.m_ColumnSortable = general.Flag("ColumnSortable");
    settings.m_ColumnWidthStore = general.Flag("ColumnWidthStore");
    const std::string columns = general.Text("Columns");
    for (std::int16_t i = 0;; ++i) {
        const std::string keyword = GetField(columns, i, ",");
        if (keyword.empty()) break;
        AddColumn(keyword);
    }
    const int hidden = m_Services.list.AddColumn(kHiddenColumn, 0);
    m_Services.list.SetColumnTag(hidden, kHiddenColumn);
    m_Services.list.SetColumnWidth(hidden, 0);
}

void cAlarmListView::AddColumn(const std::string& keyword) {
    const auto position = static_cast<std::size_t>(m_Services.list.ColumnCount());
    const int column =
        m_Services.list.AddColumn(m_Services.ini.GetIniString(keyword, "ColumnText", keyword), 10);
    m_Services.list.SetColumnTag(column, keyword);
    const std::string width = m_Services.ini.GetIniString(keyword, "ColumnWidth", "100");
    m_Services.list.SetColumnWidth(column, m_Services.ini.Int32(keyword, "ColumnWidth", width));
    const int placement = IsCentred(keyword) ? 1 : 0;
    m_Services.list.SetColumnPlacement(column, placement, placement);
    m_Services.list.SetColumnResizable(column, m_Services.settings.m_ColumnResizable);
    m_Services.list.SetColumnSortable(column, m_Services.settings.m_ColumnSortable);
    if (position >= m_ColumnMap.size()) {
        throw cFailure(eFailure::OutOfBounds, std::string(kIniFile) +
                                                  ": key Columns of section General names more than " +
                                                  std::to_string(m_ColumnMap.size()) +
                                                  " columns; the first too many is \"" + keyword + "\"");
    }
    m_ColumnMap[position] = KindOf(keyword);
}

void cAlarmListView::SetSortOrder() {
    m_Services.list.ClearSortOrder();
    m_Services.list.AddSortColumn(m_Services.list.ColumnCount() - 1, !m_Services.settings.m_SortDescending);
}

void cAlarmListView::AddAlarmRow(const AlarmPtr& alarm) {
    alarm->m_CategorySpecificSetting = &m_Services.categories.Find(alarm->m_Alarm.GetCondition(2));
    const RecordId record = m_Services.list.AddRecord(alarm);
    const int columns = m_Services.list.ColumnCount();
    for (int i = 0; i < columns; ++i) m_Services.list.AddItem(record);
    m_Services.list.SetItemValue(record, columns - 1, alarm->m_CreatedTime);
    alarm->m_Record = record;
    UpdateAlarmRow(*alarm);
    m_Services.state.m_ListChanged = true;
}

std::string cAlarmListView::StateText(std::int16_t status) const {
    if (status < StatusInactive || status > StatusAcked) return {};
    return Trim(m_Services.texts.GetText(837 + status));
}

std::string cAlarmListView::Format(DateTime value, const std::string& pattern) const {
    return FormatDateTime(value, pattern, m_Services.forms);
}

std::string cAlarmListView::DateAndTime(DateTime value) const {
    return Format(value, m_Services.settings.m_DateFormat) + " " +
           Format(value, m_Services.settings.m_TimeFormat);
}

std::string cAlarmListView::CellText(const cVigrelRecieverAlarm& alarm, eColumnKind kind) const {
    const cAlarm& event = alarm.m_Alarm;
    const cSettings& settings = m_Services.settings;
    switch (kind) {
        case eColumnKind::StateIcon:
            return std::to_string(event.m_Status);
        case eColumnKind::StateText:
            return StateText(event.m_Status);
        case eColumnKind::AlarmDate:
            return Format(event.m_TimeStampFromSCADA, settings.m_DateFormat);
        case eColumnKind::AlarmTime:
            return Format(event.m_TimeStampFromSCADA, settings.m_TimeFormat);
        case eColumnKind::AlarmDateTime:
            return DateAndTime(event.m_TimeStampFromSCADA);
        case eColumnKind::Date:
            return Format(alarm.m_CreatedTime, settings.m_DateFormat);
        case eColumnKind::Time:
            return Format(alarm.m_CreatedTime, settings.m_TimeFormat);
        case eColumnKind::DateAndTime:
            return DateAndTime(alarm.m_CreatedTime);
        case eColumnKind::t2:
            return m_Services.ini.GetIniString("CategoryTranslations", event.GetCondition(2),
                                               event.GetCondition(2));
        case eColumnKind::ExtraText:
            return alarm.m_CategorySpecificSetting->m_ExtraText;
        case eColumnKind::Observed:
            return {};
        default:
            return event.GetCondition(static_cast<int>(kind) - static_cast<int>(eColumnKind::t0));
    }
}

void cAlarmListView::SetCellIcon(const cVigrelRecieverAlarm& alarm, int column, eColumnKind kind) {
    const bool observed = alarm.m_Observed != False16;
    if (kind == eColumnKind::StateIcon) {
        m_Services.list.SetItemIcon(
            alarm.m_Record, column,
            alarm.m_CategorySpecificSetting->GetIcon(alarm.m_Alarm.m_Status, observed));
    } else if (kind == eColumnKind::Observed) {
        m_Services.list.SetItemIcon(alarm.m_Record, column, observed ? kIconObserved : kIconNotObserved);
    }
}

void cAlarmListView::UpdateAlarmRow(const cVigrelRecieverAlarm& alarm) {
    cReportList& list = m_Services.list;
    const int visible = list.ColumnCount() - 1;
    for (int column = 0; column < visible; ++column) {
        const eColumnKind kind = m_ColumnMap[static_cast<std::size_t>(column)];
        std::string text;
        SkipFailure([&] { text = CellText(alarm, kind); });
        SkipFailure([&] { SetCellIcon(alarm, column, kind); });
        SkipFailure([&] { list.SetItemValue(alarm.m_Record, column, text); });
        // The first column is meant for the icon: it keeps the list's own colours and shows no text.
        if (column == 0) continue;
        SkipFailure([&] {
            list.SetItemColours(alarm.m_Record, column,
                                alarm.m_CategorySpecificSetting->GetForeColor(alarm.m_Alarm.m_Status),
                                alarm.m_CategorySpecificSetting->GetBackColor(alarm.m_Alarm.m_Status));
        });
        SkipFailure([&] { list.SetItemCaption(alarm.m_Record, column, text); });
    }
}

void cAlarmListView::ShowNewAlarm(const cVigrelRecieverAlarm& alarm) {
    m_Services.list.TakeOverRecords();
    if (alarm.m_Record != 0) SkipFailure([&] { m_Services.list.SelectAndShow(alarm.m_Record); });
    // The operator's selection goes too: what is selected is what he looked at before this alarm came.
    m_Services.list.ClearSelection();
}

AlarmPtr cAlarmListView::AlarmOf(RecordId row) const {
    if (row == 0) return nullptr;
    return std::static_pointer_cast<cVigrelRecieverAlarm>(m_Services.list.RecordTag(row));
}

void cAlarmListView::BeforeDrawRow(RecordId row, cReportList::cFontStyle& style) const {
    SkipFailure([&] {
        const AlarmPtr alarm = AlarmOf(row);
        style.bold = alarm->m_CategorySpecificSetting->GetFontBold(alarm->m_Alarm.m_Status) != 0;
        style.italic = alarm->m_CategorySpecificSetting->GetFontItalic(alarm->m_Alarm.m_Status) != 0;
    });
}

int cAlarmListView::RowHeight() const {
    int height = 0;
    SkipFailure([&] {
        const double twips = m_Services.list.FontPoints() * kTwipsPerInch / kPointsPerInch;
        height = ToInt32(twips / m_Services.screen.TwipsPerPixelY() + kRowMargin);
    });
    return height;
}

void cAlarmListView::ColumnWidthChanged(int column) {
    if (!m_Services.settings.m_ColumnWidthStore) return;
    m_Services.ini.PutIniString(m_Services.list.ColumnTag(column), "ColumnWidth",
                                std::to_string(m_Services.list.ColumnWidth(column)));
}

void cAlarmListView::HandleListShortcut(int keyCode, int shift) {
    if (shift != kControlAlone) return;
    if (keyCode == kKeyA) m_Services.list.SelectAllRows();
    if (keyCode == kKeyC) CopyRowsToClipboard();
}

std::string cAlarmListView::CopyText(const ItemValue& value) const {
    if (const auto* text = std::get_if<std::string>(&value)) return *text;
    return Format(std::get<double>(value), "General Date");
}

void cAlarmListView::CopyRowsToClipboard() {
    std::string text;
    for (const RecordId row : m_Services.list.SelectedRows()) {
        std::string line;
        const int items = m_Services.list.ItemCount(row);
        for (int i = 0; i < items; ++i) {
            SkipFailure([&] { line += CopyText(m_Services.list.GetItemValue(row, i)); });
            line += '\t';
        }
        text += line;
        if (!text.empty()) text += "\r\n";
    }
    m_Services.clipboard.Clear();
    m_Services.clipboard.SetText(text);
}

}  // namespace vigrel
