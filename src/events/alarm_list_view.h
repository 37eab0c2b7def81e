#pragma once

#include <array>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>

#include "common/ini.h"
#include "common/receiver_state.h"
#include "common/setting_keys.h"
#include "common/settings.h"
#include "common/texts.h"
#include "events/vigrel_reciever_alarm.h"
#include "platform/locale.h"
#include "platform/report_list.h"
#include "platform/windows.h"

namespace vigrel {

// What a column shows, by the index of its keyword in kColumnKeywords.
enum class eColumnKind : std::int16_t {
    StateIcon,
    StateText,
    AlarmDate,
    AlarmTime,
    AlarmDateTime,
    Date,
    Time,
    DateAndTime,
    t0,
    t1,
    t2,
    t3,
    t4,
    t5,
    ExtraText,
    Observed
};

// The most columns that can be configured.
inline constexpr std::size_t kMostColumns = 32;

// The caption and tag of the last column, which nobody sees: it sorts the list by arrival.
inline constexpr std::string_view kHiddenColumn = "CreatedTimeStamp";

// Icons of column "Observed".
inline constexpr int kIconNotObserved = 26;
inline constexpr int kIconObserved = 27;

// The alarm list: one row per alarm, with columns, texts, colours and icons by configuration, category and
// state. It shows; it decides nothing.
class cAlarmListView {
  public:
    struct cServices {
        cReportList& list;
        cIni& ini;
        const cTexts& texts;
        const cSettings& settings;
        cReceiverState& state;
        const cLocaleForms& forms;
        const cScreen& screen;
        cClipboard& clipboard;
    };
    explicit cAlarmListView(const cServices& services) : m_Services(services) {}

    // Reads the column settings and builds the columns. More than 32 configured columns throw cFailure
    // (OutOfBounds).
    void SetUpColumns(cSettings& settings);
    // By arrival, the oldest or the newest first.
    void SetSortOrder();

    // Adds the alarm's record; the list takes it over when told to.
    void AddAlarmRow(const AlarmPtr& alarm);
    // Removes it, when the alarm has one.
    void RemoveAlarmRow(cVigrelRecieverAlarm& alarm);
    // Makes the row show the alarm as it is now. A step that fails is skipped.
    void UpdateAlarmRow(cVigrelRecieverAlarm& alarm);
    // Takes over the records, brings the alarm's row into view and leaves no selection.
    void ShowNewAlarm(const cVigrelRecieverAlarm& alarm);
    // The alarm of a row; none for a record that is gone.
    AlarmPtr AlarmOf(RecordId row) const;

    // --- the list's events
    void BeforeDrawRow(RecordId row, cReportList::cFontStyle& style) const;
    int RowHeight() const;  // pixels
    void ColumnWidthChanged(int column);
    void FocusChange() { m_Services.list.ClearSelection(); }
    // Ctrl+A and Ctrl+C, by key code and shift state.
    void HandleListShortcut(int keyCode, int shift);
    // A cell whose value has no text, such as a date out of range, is copied empty.
    void CopyRowsToClipboard();

  private:
    void AddColumn(const std::string& keyword);
    // The cell of a column. A step that fails is skipped.
    cReportItem Item(const cVigrelRecieverAlarm& alarm, int column) const;
    std::string CellText(const cVigrelRecieverAlarm& alarm, eColumnKind kind) const;
    int CellIcon(const cVigrelRecieverAlarm& alarm, eColumnKind kind) const;
    const std::string* Translation(const std::string& category);
    std::string Format(DateTime value, const std::string& pattern) const;
    std::string DateAndTime(DateTime value) const;
    std::string CopyText(const ItemValue& value) const;

    cServices m_Services;
    // The kind of the column at each position.
    std::array<eColumnKind, kMostColumns> m_ColumnMap{};
    bool m_ShowsCategory = false;
    // The translations of category names that rows show, each once.
    std::set<std::string, std::less<>> m_Translations;
};

}  // namespace vigrel
