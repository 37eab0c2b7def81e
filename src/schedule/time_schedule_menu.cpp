#include <algorithm>
#include <array>

#include "schedule/time_schedule.h"

namespace vigrel {

void cTimeSchedule::Copy() {
    m_CopiedDayType = m_SelectedDayType;
}

void cTimeSchedule::Paste(cTimeScheduleContainer& parent, cPaintObject* paintObject) {
    if (m_SelectedDayType < 0 || m_CopiedDayType < 0 || m_SelectedDayType == m_CopiedDayType) return;
    TakePeriods(m_SelectedDayType, m_CopiedDayType);
    m_Grouped[DayTypeIndex(m_SelectedDayType)] = m_Grouped[DayTypeIndex(m_CopiedDayType)];
    MergePeriods(m_SelectedDayType);
    RepaintRow(parent, paintObject, m_SelectedDayType);
}

// The day leaves its group: the others keep their periods.
void cTimeSchedule::SetTimeFrom00to24(cTimeScheduleContainer& parent, cPaintObject* paintObject) {
    if (m_SelectedDayType < 0) return;
    Periods(m_SelectedDayType).clear();
    m_Grouped[DayTypeIndex(m_SelectedDayType)] = false;
    MergePeriods(m_SelectedDayType);
    AddPeriod(m_SelectedDayType, 0, kMinutesOfDay);
    RepaintRow(parent, paintObject, m_SelectedDayType);
    m_SelectedDayType = -1;
}

// A day that had a period deleted leaves its group too.
void cTimeSchedule::Delete(cTimeScheduleContainer& parent, cPaintObject* paintObject) {
    if (m_SelectedDayType < 0) return;
    PeriodList& periods = Periods(m_SelectedDayType);
    const auto selected = std::find(periods.begin(), periods.end(), m_SelectedPeriod);
    if (selected != periods.end()) {
        m_SelectedPeriod = nullptr;
        parent.Set_Text_Schedule_Period_Start("");
        parent.Set_Text_Schedule_Period_Stop("");
        periods.erase(selected);
    }
    m_Grouped[DayTypeIndex(m_SelectedDayType)] = false;
    MergePeriods(m_SelectedDayType);
    RepaintRow(parent, paintObject, m_SelectedDayType);
    m_SelectedDayType = -1;
}

// Minute 1440 is never covered, so behind each covered minute there is a free one, and a day covered to 24:00
// inverts to an empty period at its end. A period
// from a damaged file that reaches out of the day covers what it covers of the day.
void cTimeSchedule::InvertTimeSchedule(cTimeScheduleContainer& parent, cPaintObject* paintObject) {
    if (m_SelectedDayType < 0) return;
    std::array<bool, kMinutesOfDay + 1> covered{};
    for (const PeriodPtr& period : Periods(m_SelectedDayType)) {
        const int stop = std::min(period->m_StopMinute, kMinutesOfDay);
        for (int m = std::max<int>(period->m_StartMinute, 0); m < stop; ++m) {
            covered[static_cast<std::size_t>(m)] = true;
        }
    }
    Periods(m_SelectedDayType).clear();
    for (auto from = covered.begin(); from != covered.end();) {
        from = std::find(from, covered.end(), false);
        const auto to = std::min(std::find(from, covered.end(), true), covered.end() - 1);
        AddPeriod(m_SelectedDayType, static_cast<std::int16_t>(from - covered.begin()),
                  static_cast<std::int16_t>(to - covered.begin()));
        from = to + 1;
    }
    MergePeriods(m_SelectedDayType);
    RepaintRow(parent, paintObject, m_SelectedDayType);
    CopyToGroup(parent, paintObject, m_SelectedDayType);
}

// A day that joins takes over the periods of the first day that is grouped already.
void cTimeSchedule::Group(cTimeScheduleContainer& parent, cPaintObject* paintObject) {
    if (m_SelectedDayType < 0) return;
    const std::size_t selected = DayTypeIndex(m_SelectedDayType);
    const bool joins = !m_Grouped[selected];
    const auto first = std::find(m_Grouped.begin(), m_Grouped.end(), true);
    if (joins && first != m_Grouped.end()) {
        TakePeriods(m_SelectedDayType, static_cast<std::int32_t>(first - m_Grouped.begin()));
        MergePeriods(m_SelectedDayType);
    }
    m_Grouped[selected] = joins;
    RepaintRow(parent, paintObject, m_SelectedDayType);
}

void cTimeSchedule::GroupMonFri(cTimeScheduleContainer& parent, cPaintObject* paintObject) {
    const bool group = !parent.Get_Menu_TimeSchedulePopup_Grouped_MonFri_Checked();
    for (std::int32_t dayType = 0; dayType < kDayTypes; ++dayType) {
        m_Grouped[DayTypeIndex(dayType)] = group && dayType < 5;
        if (dayType < 5) RepaintRow(parent, paintObject, dayType);
    }
    CopyToGroup(parent, paintObject, 0);
    Paint(parent, paintObject);
}

void cTimeSchedule::PreparePopupMenu(cTimeScheduleContainer& parent) const {
    parent.Set_Menu_TimeSchedulePopup_Grouped_MonFri_Checked(IsMondayToFridayGrouped());
    parent.Set_Menu_TimeSchedulePopup_Grouped_Checked(m_SelectedDayType >= 0 &&
                                                      m_Grouped[DayTypeIndex(m_SelectedDayType)]);
    parent.Set_Menu_TimeSchedulePopup_Paste_Enabled(m_CopiedDayType >= 0);
    parent.Set_Menu_TimeSchedulePopup_Delete_Enabled(m_SelectedDayType >= 0);
}

}  // namespace vigrel
