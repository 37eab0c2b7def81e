#include "events/alarm_list_view.h"

#include <algorithm>
#include <utility>

#include "common/dates.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"
#include "events/status_text.h"

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
    m_Services.list.OnItem = [this](const RecordTag& tag, int column) {
        return Item(*static_cast<const cVigrelRecieverAlarm*>(tag.get()), column);
    };
}

void cAlarmListView::AddColumn(const std::string& keyword) {
    const auto position = static_cast<std::size_t>(m_Services.list.ColumnCount());
    const int column =
        m_Services.list.AddColumn(m_Services.ini.GetIniString(keyword, "ColumnText", keyword), 10);
    m_Services.list.SetColumnTag(column, keyword);
    const std::string width = m_Services.ini.GetIniString(keyword, "ColumnWidth", kDefaultColumnWidth);
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
    m_ShowsCategory = m_ShowsCategory || m_ColumnMap[position] == eColumnKind::t2;
}

void cAlarmListView::SetSortOrder() {
    m_Services.list.ClearSortOrder();
    m_Services.list.AddSortColumn(m_Services.list.ColumnCount() - 1, !m_Services.settings.m_SortDescending);
}

void cAlarmListView::AddAlarmRow(const AlarmPtr& alarm) {
    alarm->m_Record = m_Services.list.AddRecord(alarm);
    UpdateAlarmRow(*alarm);
    m_Services.state.m_ListChanged = true;
}

void cAlarmListView::RemoveAlarmRow(cVigrelRecieverAlarm& alarm) {
    if (alarm.m_Record != 0) m_Services.list.RemoveRecord(std::exchange(alarm.m_Record, 0));
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
            return Trim(StatusText(m_Services.texts, event.m_Status));
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
            if (alarm.m_CategoryText != nullptr) return *alarm.m_CategoryText;
            return event.GetCondition(ConditionCategory).substr(0, kMostValueCharacters);
        case eColumnKind::ExtraText:
            return alarm.m_CategorySpecificSetting.get().m_ExtraText;
        case eColumnKind::Observed:
            return {};
        default:
            return event.GetCondition(static_cast<int>(kind) - static_cast<int>(eColumnKind::t0));
    }
}

int cAlarmListView::CellIcon(const cVigrelRecieverAlarm& alarm, eColumnKind kind) const {
    const bool observed = alarm.m_Observed != False16;
    if (kind == eColumnKind::Observed) return observed ? kIconObserved : kIconNotObserved;
    if (kind != eColumnKind::StateIcon) return -1;
    return alarm.m_CategorySpecificSetting.get().GetIcon(alarm.m_Alarm.m_Status, observed);
}

cReportItem cAlarmListView::Item(const cVigrelRecieverAlarm& alarm, int column) const {
    cReportItem item;
    if (column >= m_Services.list.ColumnCount() - 1) {
        item.value = alarm.m_CreatedTime;
        return item;
    }
    const eColumnKind kind = m_ColumnMap[static_cast<std::size_t>(column)];
    SkipFailure([&] { item.value = CellText(alarm, kind); });
    SkipFailure([&] { item.icon = CellIcon(alarm, kind); });
    // The first column is meant for the icon: it keeps the list's own colours and shows no text.
    item.hasCaption = column > 0;
    if (column == 0) return item;
    SkipFailure([&] {
        item.textColour = alarm.m_CategorySpecificSetting.get().GetForeColor(alarm.m_Alarm.m_Status);
        item.backColour = alarm.m_CategorySpecificSetting.get().GetBackColor(alarm.m_Alarm.m_Status);
        item.hasColours = true;
    });
    return item;
}

// The text that the configuration has for a category name now; nothing when it has none.
const std::string* cAlarmListView::Translation(const std::string& category) {
    const std::string text = m_Services.ini.GetIniString("CategoryTranslations", category, category);
    return text == category.substr(0, kMostValueCharacters) ? nullptr : &*m_Translations.insert(text).first;
}

// All that a row shows is made when it is shown, but for what the configuration says at this moment.
void cAlarmListView::UpdateAlarmRow(cVigrelRecieverAlarm& alarm) {
    if (m_ShowsCategory) {
        SkipFailure(
            [&] { alarm.m_CategoryText = Translation(alarm.m_Alarm.GetCondition(ConditionCategory)); });
    }
    SkipFailure([&] { m_Services.list.RecordChanged(alarm.m_Record); });
}

void cAlarmListView::ShowNewAlarm(const cVigrelRecieverAlarm& alarm) {
    m_Services.list.TakeOverRecords();
    SkipFailure([&] { m_Services.list.SelectAndShow(alarm.m_Record); });
    // The operator's selection goes too: what is selected is what he looked at before this alarm came.
    m_Services.list.ClearSelection();
}

AlarmPtr cAlarmListView::AlarmOf(RecordId row) const {
    if (row == 0) return nullptr;
    return std::static_pointer_cast<cVigrelRecieverAlarm>(m_Services.list.RecordTagOf(row));
}

void cAlarmListView::BeforeDrawRow(RecordId row, cReportList::cFontStyle& style) const {
    SkipFailure([&] {
        const AlarmPtr alarm = AlarmOf(row);
        style.bold = alarm->m_CategorySpecificSetting.get().GetFontBold(alarm->m_Alarm.m_Status) != 0;
        style.italic = alarm->m_CategorySpecificSetting.get().GetFontItalic(alarm->m_Alarm.m_Status) != 0;
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
    const int columns = m_Services.list.ColumnCount();
    for (const RecordId row : m_Services.list.SelectedRows()) {
        std::string line;
        for (int i = 0; i < columns; ++i) {
            SkipFailure([&] { line += CopyText(m_Services.list.GetItemValue(row, i)); });
            line += '\t';
        }
        text += line + "\r\n";
    }
    m_Services.clipboard.Clear();
    m_Services.clipboard.SetText(text);
}

}  // namespace vigrel
