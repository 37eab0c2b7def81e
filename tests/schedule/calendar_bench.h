#pragma once

#include <string>

#include "common/dates.h"
#include "schedule/calendar.h"
#include "schedule/fakes.h"
#include "schedule/schedule_builder.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"

namespace vigrel::testing {

// A calendar in a fake container on a fake surface, on 2026-03-15.
class cCalendarBench {
  public:
    void Show(int year, int month) {
        m_Calendar.m_SelectedYear = year;
        m_Calendar.m_SelectedMonth = month;
        m_Calendar.RecalculateAndPrepareToPaint(m_Container, &m_Paint);
        m_Transcript.Take();
    }
    // Positions: the middle of a cell of the grid.
    static float X(int column) { return static_cast<float>(30 + 40 * column + 20); }
    static float Y(int row) { return static_cast<float>(20 + 25 * row + 12); }
    void Down(float x, float y) { m_Calendar.MouseDown(m_Container, &m_Paint, 1, 0, x, y); }
    void Move(float x, float y) { m_Calendar.MouseMove(m_Container, &m_Paint, 1, 0, x, y); }
    void Up() { m_Calendar.MouseUp(m_Container, &m_Paint, 1, 0, 0, 0); }

    static std::int32_t Index(int year, int month, int day) {
        return CalendarIndex(DateSerial(year, month, day));
    }
    std::int16_t Value(int year, int month, int day) const {
        return m_Calendar.GetDayType(Index(year, month, day));
    }
    void SetValue(int year, int month, int day, std::int16_t value) {
        m_Calendar.SetDayType(Index(year, month, day), value);
    }
    std::string DateBox(int day) {
        m_Transcript.Take();
        m_Calendar.PaintDateBox(m_Container, &m_Paint, day - 1);
        return m_Transcript.Take();
    }
    cCalendarSurroundings Surroundings() {
        return {m_Files, m_Clock, m_Forms, m_Holidays,
                [](std::int32_t id) { return "h" + std::to_string(id); }};
    }

    cTranscript m_Transcript;
    cFakePaintObject m_Paint{m_Transcript};
    cFakeCalendarContainer m_Container{m_Transcript};
    cFakeFiles m_Files;
    cFakeClock m_Clock;
    cLocaleForms m_Forms;
    cHolidays m_Holidays;
    cCalendar m_Calendar{Surroundings()};
};

}  // namespace vigrel::testing
