#include "schedule/calendar.h"

#include <utility>

#include "common/dates.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/numbers.h"
#include "schedule/active_day.h"
#include "schedule/calendar_geometry.h"

namespace vigrel {

cCalendar::cCalendar(cCalendarSurroundings surroundings)
    : m_Surroundings(std::move(surroundings)), m_DayTypes(kCalendarDays, 0) {}

// Kept for the callers that still name it.
void cCalendar::notused_CalcIfDayTypeIsUsed() const {}

bool cCalendar::IsDayTypeUsed(std::int16_t dayType) const {
    return m_DayTypeUsed[DayTypeIndex(dayType)];
}

bool cCalendar::ReadFromDisk(std::string_view fileName) {
    if (!FileExists(m_Surroundings.m_Files, fileName)) return false;
    const std::string content = m_Surroundings.m_Files.ReadFile(fileName);
    cBinaryReader file(content);
    for (std::int16_t& value : m_DayTypes) value = file.Int16();
    return true;
}

bool cCalendar::SaveToDisk(std::string_view fileName) const {
    cBinaryWriter file;
    for (const std::int16_t value : m_DayTypes) file.Int16(value);
    ReplaceFile(m_Surroundings.m_Files, fileName, file.Bytes());
    return true;
}

bool cCalendar::CompareToDisk(std::string_view fileName) const {
    if (!FileExists(m_Surroundings.m_Files, fileName)) return false;
    const std::string content = m_Surroundings.m_Files.ReadFile(fileName);
    cBinaryReader file(content);
    for (const std::int16_t value : m_DayTypes) {
        if (file.Int16() != value) return false;
    }
    return true;
}

bool cCalendar::CompareToOtherCalendar(const cCalendar& other) const {
    for (std::int32_t index = 0; index < kCalendarDays; ++index) {
        if (other.GetDayType(index) != GetDayType(index)) return false;
    }
    return true;
}

void cCalendar::SetDayType(std::int32_t index, std::int16_t value) {
    GetDayType(index);
    m_DayTypes[static_cast<std::size_t>(index)] = value;
}

std::int16_t cCalendar::GetDayType(std::int32_t index) const {
    if (index < 0 || index >= kCalendarDays) {
        throw cFailure(eFailure::OutOfBounds,
                       Pattern("Reasons", "a date lies outside the calendar's years 2000 to 2039"));
    }
    return m_DayTypes[static_cast<std::size_t>(index)];
}

std::int16_t cCalendar::ResolveDayType(std::int32_t index, const cTimeSchedule& schedule) const {
    return vigrel::ResolveDayType(GetDayType(index), WeekDayOfIndex(index), schedule);
}

void cCalendar::RecalculateAndPrepareToPaint(cCalendarContainer&, cPaintObject*) {
    const DateTime first = DateSerial(m_SelectedYear, m_SelectedMonth, 1);
    m_ActualMonthOffset = CalendarIndex(first);
    // Weekdays of a date count from Sunday, here from Monday.
    m_FirstWeekDayInActualMonth = (SplitDateTime(first).weekday + 5) % 7;
    m_DaysInActualMonth =
        static_cast<std::int32_t>(DateSerial(m_SelectedYear, m_SelectedMonth + 1, 1) - first);
    m_TodaysDayOffset = CalendarIndex(DateOf(m_Surroundings.m_Clock.Now()));
    m_PaintDayType = -1;
}

// A position outside the grid is the first day; only the grid's own blank cells are refused, by -1.
std::int16_t cCalendar::DayFromPosition(float x, float y) const {
    if (x <= kGridLeft || x >= kGridRight || y <= kGridTop || y >= kGridBottom) return 0;
    const std::int32_t row = ToInt32(y - kGridTop) / kCellHeight;
    const std::int32_t column = ToInt32(x - kGridLeft) / kCellWidth;
    const std::int32_t day = row * 7 - m_FirstWeekDayInActualMonth + column;
    return static_cast<std::int16_t>(day >= 0 && day < m_DaysInActualMonth ? day : -1);
}

void cCalendar::MouseDown(cCalendarContainer& parent, cPaintObject* paintObject, std::int16_t button,
                          std::int16_t, float x, float y) {
    m_MouseButton = button;
    m_PaintDayType = -1;
    if (!parent.Get_Combo_Calendar_DayType_SelectedItem()) return;
    m_PaintDayType = parent.Get_Combo_Calendar_DayType_SelectedItem_Index();
    if (m_PaintDayType > 0) --m_PaintDayType;
    const std::int16_t day = DayFromPosition(x, y);
    if (day >= 0) PaintDay(parent, paintObject, day);
}

void cCalendar::PaintDay(cCalendarContainer& parent, cPaintObject* paintObject, std::int32_t day) {
    if (GetDayType(m_ActualMonthOffset + day) == m_PaintDayType) return;
    SetDayType(m_ActualMonthOffset + day, m_PaintDayType);
    PaintDateBox(parent, paintObject, day);
}

void cCalendar::MouseUp(cCalendarContainer&, cPaintObject*, std::int16_t, std::int16_t, float, float) {
    m_MouseButton = 0;
    m_PaintDayType = -1;
}

void cCalendar::MouseMove(cCalendarContainer& parent, cPaintObject* paintObject, std::int16_t, std::int16_t,
                          float x, float y) {
    const std::int16_t day = DayFromPosition(x, y);
    if (day == m_LastDay) return;
    std::string toolTip;
    if (day >= 0) {
        if (m_MouseButton != 0 && m_PaintDayType != -1) {
            SkipFailure([&] { PaintDay(parent, paintObject, day); });
        }
        SkipFailure([&] { toolTip = ToolTipOf(parent, m_ActualMonthOffset + day); });
    }
    if (paintObject != nullptr) paintObject->SetToolTipText(toolTip);
    m_LastDay = day;
}

std::string cCalendar::ToolTipOf(const cCalendarContainer& parent, std::int32_t index) const {
    std::string text;
    const std::int16_t value = GetDayType(index);
    if (value != 0) {
        SkipFailure([&] {
            text = parent.Get_Combo_Calendar_DayType_ComboItems(static_cast<std::int16_t>(value + 1));
        });
    }
    const cHolidayLabel* label = m_Surroundings.m_Holidays.LabelOf(index);
    return label == nullptr ? text : text + " (" + label->m_Label + ")";
}

}  // namespace vigrel
