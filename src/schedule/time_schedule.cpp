#include "schedule/time_schedule.h"

#include <algorithm>

namespace vigrel {

cTimeSchedule::cTimeSchedule() {
    std::fill_n(m_Active.begin(), kWeekDays, true);
}

const PeriodList& cTimeSchedule::Periods(std::int32_t dayType) const {
    return m_Periods[DayTypeIndex(dayType)];
}
PeriodList& cTimeSchedule::Periods(std::int32_t dayType) {
    return m_Periods[DayTypeIndex(dayType)];
}

void cTimeSchedule::AddPeriod(std::int32_t dayType, std::int16_t start, std::int16_t stop) {
    Periods(dayType).push_back(std::make_shared<cTimeSchedulePeriod>(cTimeSchedulePeriod{start, stop}));
}

// New objects take the place of the list, so that no period is shared between two days.
void cTimeSchedule::TakePeriods(std::int32_t dayType, std::int32_t source) {
    Periods(dayType).clear();
    for (const PeriodPtr& period : Periods(source)) {
        AddPeriod(dayType, period->m_StartMinute, period->m_StopMinute);
    }
}

PeriodPtr cTimeSchedule::GetNextTimePeriod(std::int16_t dayType, std::int16_t& start, std::int16_t& stop,
                                           const PeriodPtr& previous) const {
    if (!GetActive(dayType)) return nullptr;
    const PeriodList& periods = Periods(dayType);
    auto next = periods.begin();
    if (previous) {
        next = std::find(periods.begin(), periods.end(), previous);
        if (next != periods.end()) ++next;
    }
    if (next == periods.end()) return nullptr;
    start = (*next)->m_StartMinute;
    stop = (*next)->m_StopMinute;
    return *next;
}

// Kept for the callers that still name it.
void cTimeSchedule::notused_ActivateUsedPeriods(const cCalendar&) {}

void cTimeSchedule::SetDefaultPeriod() {
    for (std::int16_t dayType = 0; dayType < 5; ++dayType) {
        m_Active[DayTypeIndex(dayType)] = true;
        m_Grouped[DayTypeIndex(dayType)] = true;
        AddPeriod(dayType, 7 * 60, 16 * 60);
    }
}

void cTimeSchedule::SetActive(std::int16_t dayType, Boolean16 status) {
    m_Active[DayTypeIndex(dayType)] = status != False16;
}

bool cTimeSchedule::GetActive(std::int16_t dayType) const {
    return m_Active[DayTypeIndex(dayType)];
}

// Joins each period with those that begin inside it or at its end. The list is not sorted.
void cTimeSchedule::MergePeriods(std::int32_t dayType) {
    while (MergePass(Periods(dayType))) {
    }
}

bool cTimeSchedule::MergePass(PeriodList& periods) {
    bool changed = false;
    for (std::size_t i = 0; i < periods.size(); ++i) {
        const PeriodPtr p = periods[i];
        const auto q = std::find_if(periods.begin(), periods.end(), [&p](const PeriodPtr& other) {
            return other != p && p->m_StartMinute <= other->m_StartMinute &&
                   p->m_StopMinute >= other->m_StartMinute;
        });
        if (q == periods.end()) continue;
        p->m_StopMinute = std::max(p->m_StopMinute, (*q)->m_StopMinute);
        if (*q == m_SelectedPeriod) m_SelectedPeriod = p;
        if (q < periods.begin() + static_cast<std::ptrdiff_t>(i)) --i;
        periods.erase(q);
        changed = true;
    }
    return changed;
}

void cTimeSchedule::CopyToGroup(cTimeScheduleContainer& parent, cPaintObject* paintObject,
                                std::int32_t dayType) {
    if (!m_Grouped[DayTypeIndex(dayType)]) return;
    for (std::int32_t i = 0; i < kDayTypes; ++i) {
        if (i == dayType || !m_Grouped[DayTypeIndex(i)]) continue;
        TakePeriods(i, dayType);
        MergePeriods(i);
        RepaintRow(parent, paintObject, i);
    }
}

bool cTimeSchedule::IsMondayToFridayGrouped() const {
    for (std::size_t i = 0; i < m_Grouped.size(); ++i) {
        if (m_Grouped[i] != (i < 5)) return false;
    }
    return true;
}

}  // namespace vigrel
