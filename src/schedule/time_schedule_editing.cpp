#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "common/numbers.h"
#include "common/text.h"
#include "schedule/schedule_geometry.h"
#include "schedule/time_schedule.h"

namespace vigrel {
namespace {

constexpr std::int16_t kLeftButton = 1;
constexpr std::int16_t kRightButton = 2;
constexpr std::int32_t kGrabMinutes = 15;         // nearer than this to a period's end grabs the end
constexpr std::int32_t kSmallestDragMinutes = 5;  // only a longer drag makes a new period

std::string TimeText(std::int32_t minute) {
    return Digits(minute / 60, 2) + ":" + Digits(minute % 60, 2);
}

void ShowTimes(cTimeScheduleContainer& parent, std::int32_t start, std::int32_t stop) {
    parent.Set_Text_Schedule_Period_Start(TimeText(start));
    parent.Set_Text_Schedule_Period_Stop(TimeText(stop));
}

void ClearTimes(cTimeScheduleContainer& parent) {
    parent.Set_Text_Schedule_Period_Start("");
    parent.Set_Text_Schedule_Period_Stop("");
}

void SetPointer(cPaintObject* paintObject, eMousePointer pointer) {
    if (paintObject != nullptr) paintObject->SetMousePointer(pointer);
}

}  // namespace

std::optional<cTimeSchedule::cPosition> cTimeSchedule::PositionAt(float x, float y) const {
    if (!(y < static_cast<float>(m_NumberOfAxisToPaint) * kRowHeight) || y <= kBarTop) return std::nullopt;
    if (x < kAxisLeft || !(x < kAxisWidth / m_Scale + kAxisLeft + m_Scale)) return std::nullopt;
    const auto minute =
        std::min<std::int32_t>(ToInt32((x - kAxisLeft) * kMinutesPerUnit / m_Scale), kMinutesOfDay);
    // Rounded: a row takes in what lies up to half a row above its bar.
    return cPosition{minute, ToInt32((y - kBarTop) / kRowHeight)};
}

std::optional<cTimeSchedule::cPosition> cTimeSchedule::PositionToMinute(cTimeScheduleContainer& parent,
                                                                        float x, float y) const {
    const auto position = PositionAt(x, y);
    if (position) parent.Set_Text_Schedule_Time(TimeText(position->minute));
    return position;
}

std::optional<std::int32_t> cTimeSchedule::DayTypeOfRow(std::int32_t row) const {
    for (std::int32_t dayType = 0; dayType < kDayTypes; ++dayType) {
        if (m_Active[DayTypeIndex(dayType)] && row-- == 0) return dayType;
    }
    return std::nullopt;
}

void cTimeSchedule::MouseDown(cTimeScheduleContainer& parent, cPaintObject* paintObject, std::int16_t button,
                              std::int16_t, float x, float y) {
    const auto position = PositionToMinute(parent, x, y);
    if (!position) return;
    const auto dayType = DayTypeOfRow(position->row);
    if (!dayType) return;
    const std::int32_t previous = std::exchange(m_SelectedDayType, *dayType);
    if (button == kRightButton) return PreparePopupMenu(parent);
    if (button != kLeftButton) return;

    m_SelectedPeriod = nullptr;
    if (previous >= 0) RepaintRow(parent, paintObject, previous);
    SelectPeriodAt(position->minute);
    BeginDrag(paintObject, position->minute);
    if (m_SelectedPeriod) {
        ShowTimes(parent, m_EditStart, m_EditStop);
    } else {
        ClearTimes(parent);
    }
}

void cTimeSchedule::ClearSelection(cTimeScheduleContainer& parent) {
    m_SelectedDayType = -1;
    m_SelectedPeriod = nullptr;
    ClearTimes(parent);
}

void cTimeSchedule::Select(cTimeScheduleContainer& parent, std::int32_t dayType, const PeriodPtr& period) {
    const PeriodList& periods = Periods(dayType);
    const bool known = period && std::find(periods.begin(), periods.end(), period) != periods.end();
    m_SelectedDayType = dayType;
    m_SelectedPeriod = known ? period : nullptr;
    if (!known) return ClearTimes(parent);
    m_EditStart = period->m_StartMinute;
    m_EditStop = period->m_StopMinute;
    ShowTimes(parent, m_EditStart, m_EditStop);
}

// Both ends of a period belong to it here. In free space the edit times become those of the gap, as far as
// the list was searched.
void cTimeSchedule::SelectPeriodAt(std::int32_t minute) {
    m_EditStart = 0;
    m_EditStop = kMinutesOfDay;
    for (const PeriodPtr& period : Periods(m_SelectedDayType)) {
        const std::int32_t start = period->m_StartMinute, stop = period->m_StopMinute;
        if (start <= minute && minute <= stop) {
            m_SelectedPeriod = period;
            m_EditStart = start;
            m_EditStop = stop;
            return;
        }
        if (start >= minute && start < m_EditStop) m_EditStop = start;
        if (stop <= minute && stop > m_EditStart) m_EditStart = stop;
    }
}

void cTimeSchedule::BeginDrag(cPaintObject* paintObject, std::int32_t minute) {
    m_DragAnchor = minute;
    m_DragPeriod = nullptr;
    m_DragMode = eDragMode::New;
    m_DragDayType = m_SelectedDayType;
    for (const PeriodPtr& period : Periods(m_DragDayType)) {
        if (!GrabPeriod(period, minute)) continue;
        SetPointer(paintObject, eMousePointer::SizeHorizontal);
        return;
    }
}

bool cTimeSchedule::GrabPeriod(const PeriodPtr& period, std::int32_t minute) {
    if (std::abs(period->m_StartMinute - minute) < kGrabMinutes) {
        m_DragAnchor = period->m_StartMinute;
        m_DragMode = eDragMode::Start;
    } else if (std::abs(period->m_StopMinute - minute) < kGrabMinutes) {
        m_DragAnchor = period->m_StopMinute;
        m_DragMode = eDragMode::Stop;
    } else {
        return false;
    }
    m_DragPeriod = period;
    return true;
}

void cTimeSchedule::MouseMove(cTimeScheduleContainer& parent, cPaintObject* paintObject, std::int16_t,
                              std::int16_t, float x, float y) {
    const auto position = PositionToMinute(parent, x, y);
    if (!position) return;
    if (m_DragMode == eDragMode::New && !m_DragPeriod &&
        std::abs(position->minute - m_DragAnchor) > kSmallestDragMinutes) {
        BeginNewPeriod(paintObject);
    }
    if (!m_DragPeriod) return;
    FollowPointer(static_cast<std::int16_t>(position->minute));
    RepaintRow(parent, paintObject, m_DragDayType);
    ShowTimes(parent, m_DragPeriod->m_StartMinute, m_DragPeriod->m_StopMinute);
}

void cTimeSchedule::BeginNewPeriod(cPaintObject* paintObject) {
    SetPointer(paintObject, eMousePointer::SizeHorizontal);
    AddPeriod(m_DragDayType, 0, 0);
    m_DragPeriod = Periods(m_DragDayType).back();
    m_SelectedPeriod = m_DragPeriod;
}

// An end that passes the other becomes the other end, so that it keeps following the pointer.
void cTimeSchedule::FollowPointer(std::int16_t minute) {
    if (m_DragMode == eDragMode::New) m_DragPeriod->m_StartMinute = static_cast<std::int16_t>(m_DragAnchor);
    (m_DragMode == eDragMode::Start ? m_DragPeriod->m_StartMinute : m_DragPeriod->m_StopMinute) = minute;
    if (m_DragPeriod->m_StopMinute >= m_DragPeriod->m_StartMinute) return;
    std::swap(m_DragPeriod->m_StartMinute, m_DragPeriod->m_StopMinute);
    if (m_DragMode == eDragMode::Start) {
        m_DragMode = eDragMode::Stop;
    } else if (m_DragMode == eDragMode::Stop) {
        m_DragMode = eDragMode::Start;
    }
}

// The group takes its copy before the day itself is merged; its days merge by themselves.
void cTimeSchedule::MouseUp(cTimeScheduleContainer& parent, cPaintObject* paintObject, std::int16_t,
                            std::int16_t, float, float) {
    if (m_DragMode == eDragMode::None) return;
    SetPointer(paintObject, eMousePointer::Normal);
    m_DragMode = eDragMode::None;
    m_DragPeriod = nullptr;
    if (m_SelectedDayType >= 0) CopyToGroup(parent, paintObject, m_SelectedDayType);
    MergePeriods(m_DragDayType);
    RepaintRow(parent, paintObject, m_DragDayType);
}

void cTimeSchedule::ExtractTimeFromTextboxes(cTimeScheduleContainer& parent, cPaintObject* paintObject) {
    if (!m_SelectedPeriod) return;
    m_EditStart = TimeTextToMinutes(parent.Get_Text_Schedule_Period_Start());
    m_EditStop = TimeTextToMinutes(parent.Get_Text_Schedule_Period_Stop());
    if (m_EditStart > m_EditStop) std::swap(m_EditStart, m_EditStop);
    m_SelectedPeriod->m_StartMinute = static_cast<std::int16_t>(m_EditStart);
    m_SelectedPeriod->m_StopMinute = static_cast<std::int16_t>(m_EditStop);
    ShowTimes(parent, m_EditStart, m_EditStop);
    // The whole-day and delete entries leave a selected period without a selected day.
    if (m_SelectedDayType < 0) return;
    MergePeriods(m_SelectedDayType);
    RepaintRow(parent, paintObject, m_SelectedDayType);
    CopyToGroup(parent, paintObject, m_SelectedDayType);
}

}  // namespace vigrel
