#include "schedule/calendar_year.h"

#include <gtest/gtest.h>

#include "schedule/calendar_bench.h"
#include "schedule/own_holidays.h"
#include "schedule/public_holidays.h"

namespace vigrel::testing {
namespace {

class CalendarYear : public ::testing::Test, protected cCalendarBench {};

TEST_F(CalendarYear, IsCopiedByDateInPlaceOfWhatTheNextHas) {
    SetValue(2026, 1, 1, 8);
    SetValue(2026, 12, 31, 9);
    SetValue(2027, 7, 1, 10);
    CopyToNextYear(m_Calendar, m_Holidays, 2026);
    EXPECT_EQ(Value(2027, 1, 1), 8);
    EXPECT_EQ(Value(2027, 12, 31), 9);
    EXPECT_EQ(Value(2027, 7, 1), 0);
    EXPECT_EQ(Value(2026, 1, 1), 8);
    EXPECT_EQ(Value(2028, 1, 1), 0);
}

TEST_F(CalendarYear, TakesHolidaysWhereTheyFallInTheNext) {
    m_Holidays = PublicHolidays("DE");
    // Good Friday of 2026 and 2027.
    SetValue(2026, 4, 3, 8);
    SetValue(2026, 4, 4, 9);
    SetValue(2026, 3, 26, 10);
    CopyToNextYear(m_Calendar, m_Holidays, 2026);
    EXPECT_EQ(Value(2027, 3, 26), 8);
    EXPECT_EQ(Value(2027, 4, 3), 0);
    EXPECT_EQ(Value(2027, 4, 4), 9);
}

TEST_F(CalendarYear, OfALeapYearLosesItsDay) {
    SetValue(2028, 2, 29, 8);
    CopyToNextYear(m_Calendar, m_Holidays, 2028);
    EXPECT_EQ(Value(2029, 2, 28), 0);
    EXPECT_EQ(Value(2029, 3, 1), 0);
    SetValue(2027, 2, 28, 8);
    CopyToNextYear(m_Calendar, m_Holidays, 2027);
    EXPECT_EQ(Value(2028, 2, 28), 8);
    EXPECT_EQ(Value(2028, 2, 29), 0);
}

TEST_F(CalendarYear, TakesEachOfSeveralDaysThatShareAName) {
    cOwnHolidays own;
    own.Parse("12-24..12-28 | Winter break\n2026-07-06..2026-07-07 | Works holiday\n");
    own.AddTo(m_Holidays);
    for (int day = 24; day <= 28; ++day) SetValue(2026, 12, day, static_cast<std::int16_t>(day - 16));
    SetValue(2026, 7, 6, 8);
    CopyToNextYear(m_Calendar, m_Holidays, 2026);
    for (int day = 24; day <= 28; ++day) EXPECT_EQ(Value(2027, 12, day), day - 16) << day;
    // Once only.
    EXPECT_EQ(Value(2027, 7, 6), 0);
}

TEST_F(CalendarYear, ItsLastDayMayBeAHoliday) {
    cOwnHolidays own;
    own.Parse("12-31 | Eve\n");
    own.AddTo(m_Holidays);
    SetValue(2026, 12, 31, 8);
    CopyToNextYear(m_Calendar, m_Holidays, 2026);
    EXPECT_EQ(Value(2027, 12, 31), 8);
}

TEST_F(CalendarYear, TheNextsHolidaysArePutWhereItHasThemOnce) {
    cOwnHolidays own;
    own.Parse("2026-01-01 | Ours\n2027-01-01..2027-01-02 | Ours\n");
    own.AddTo(m_Holidays);
    SetValue(2026, 1, 1, 8);
    SetValue(2026, 1, 2, 9);
    CopyToNextYear(m_Calendar, m_Holidays, 2026);
    EXPECT_EQ(Value(2027, 1, 1), 8);
    EXPECT_EQ(Value(2027, 1, 2), 9);
}

TEST_F(CalendarYear, TheLastHasNoNext) {
    SetValue(2039, 5, 1, 8);
    CopyToNextYear(m_Calendar, m_Holidays, 2039);
    EXPECT_EQ(Value(2039, 5, 1), 8);
    CopyToNextYear(m_Calendar, m_Holidays, 2038);
    EXPECT_EQ(Value(2039, 5, 1), 0);
}

TEST_F(CalendarYear, OneInFrontOfTheSpanIsNotCopied) {
    SetValue(2000, 5, 1, 8);
    CopyToNextYear(m_Calendar, m_Holidays, 1999);
    EXPECT_EQ(Value(2000, 5, 1), 8);
    CopyToNextYear(m_Calendar, m_Holidays, 2000);
    EXPECT_EQ(Value(2001, 5, 1), 8);
}

}  // namespace
}  // namespace vigrel::testing
