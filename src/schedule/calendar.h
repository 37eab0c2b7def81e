#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "common/binary.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "schedule/calendar_days.h"
#include "schedule/containers.h"
#include "schedule/holidays.h"
#include "schedule/paint_object.h"
#include "schedule/time_schedule.h"

namespace vigrel {

// What a calendar needs around it; all of it outlives the calendar.
struct cCalendarSurroundings {
    cFiles& m_Files;
    const cClock& m_Clock;
    const cLocaleForms& m_Forms;
    const cHolidays& m_Holidays;
    // The language's texts by number: TextMonday to TextSunday are the headings.
    std::function<std::string(std::int32_t)> GetText;
};

// A day type for each date from 2000 to 2039, with the month grid in which the operator paints them.
//
// Values of the table: 0 is no special type, the weekday rules; k from 1 to 23 is day type k - 1 of a
// schedule. An index outside the table throws cFailure (OutOfBounds).
class cCalendar {
  public:
    explicit cCalendar(cCalendarSurroundings surroundings);

    std::int32_t m_SelectedMonth = 1;  // 1 to 12
    std::int32_t m_SelectedYear = kFirstCalendarYear;
    // Worked out by RecalculateAndPrepareToPaint:
    std::int32_t m_ActualMonthOffset = 0;          // index of the shown month's first day
    std::int32_t m_FirstWeekDayInActualMonth = 0;  // 0 for Monday
    std::int32_t m_DaysInActualMonth = 0;
    std::int32_t m_TodaysDayOffset = 0;

    Boolean16 m_ShowTimeAxis = False16;  // whether each day's box shows the day's periods
    const cTimeSchedule* m_AssociatedTimeSchedule = nullptr;

    void notused_CalcIfDayTypeIsUsed() const;
    // Nothing sets it yet. A day type outside 0 to 22 throws cFailure (OutOfBounds).
    bool IsDayTypeUsed(std::int16_t dayType) const;

    // --- the file of docs/formats/calendar.md. Failures of the disk are thrown.
    // False, with the table as it was, when there is no such file. What a short file lacks is 0.
    bool ReadFromDisk(std::string_view fileName);
    // Replaces the file as a whole. Always true.
    bool SaveToDisk(std::string_view fileName) const;
    // Whether the file exists and holds this table.
    bool CompareToDisk(std::string_view fileName) const;
    bool CompareToOtherCalendar(const cCalendar& other) const;

    // --- editing. Positions are those of the surface.
    void MouseDown(cCalendarContainer& parent, cPaintObject* paintObject, std::int16_t button,
                   std::int16_t shift, float x, float y);
    void MouseUp(cCalendarContainer& parent, cPaintObject* paintObject, std::int16_t button,
                 std::int16_t shift, float x, float y);
    // Never fails.
    void MouseMove(cCalendarContainer& parent, cPaintObject* paintObject, std::int16_t button,
                   std::int16_t shift, float x, float y);
    void SetDayType(std::int32_t index, std::int16_t value);
    std::int16_t GetDayType(std::int32_t index) const;

    // --- painting
    // To be called after a change of the selected month or year.
    void RecalculateAndPrepareToPaint(cCalendarContainer& parent, cPaintObject* paintObject);
    // The box of a day, counted from 0.
    void PaintDateBox(cCalendarContainer& parent, cPaintObject* paintObject, std::int32_t day) const;
    void Paint(cCalendarContainer& parent, cPaintObject* paintObject) const;

    // The day type by which a schedule treats a date: the date's own when the schedule has it active, else
    // that of its weekday. A value that is none of the table's counts as 0.
    std::int16_t ResolveDayType(std::int32_t index, const cTimeSchedule& schedule) const;

  private:
    std::int16_t DayFromPosition(float x, float y) const;
    void PaintDay(cCalendarContainer& parent, cPaintObject* paintObject, std::int32_t day);
    std::string ToolTipOf(const cCalendarContainer& parent, std::int32_t index) const;

    void PaintFrame(cPaintObject& paintObject) const;
    void PaintHeadings(cPaintObject& paintObject) const;
    void PaintWeekNumbers(cPaintObject& paintObject) const;
    void PaintBands(cPaintObject& paintObject, std::int32_t day, double x, double y) const;
    void PaintDayType(cCalendarContainer& parent, cPaintObject& paintObject, std::int16_t value, double x,
                      double y) const;
    void PaintTimeAxis(cPaintObject& paintObject, std::int32_t day, double x, double y) const;
    int BandHeight() const;

    cCalendarSurroundings m_Surroundings;
    std::vector<std::int16_t> m_DayTypes;
    std::array<bool, kDayTypes> m_DayTypeUsed{};
    std::int16_t m_MouseButton = 0;
    std::int16_t m_PaintDayType = -1;  // the value being painted, -1 for none
    std::int16_t m_LastDay = 0;        // the day last seen under the pointer
};

}  // namespace vigrel
