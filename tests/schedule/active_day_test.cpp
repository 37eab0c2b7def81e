#include "schedule/active_day.h"

#include <gtest/gtest.h>

#include "common/dates.h"
#include "schedule/schedule_builder.h"

namespace vigrel::testing {
namespace {

using eReason = cActiveDay::eReason;
using Minutes = std::vector<std::pair<int, int>>;

class ActiveDays : public ::testing::Test {
  protected:
    ActiveDays() {
        testing::Load(m_Schedule, cContent()
                                      .Day(0, {{960, 1200}, {420, 700}})
                                      .Day(1, {{960, 1200}, {420, 700}})
                                      .Day(5, {})
                                      .Day(7, {{0, 1440}})
                                      .Grouped({0, 1}));
    }
    cTimeSchedule m_Schedule;
};

TEST_F(ActiveDays, WithoutACalendarTheWeekdayCounts) {
    const cActiveDay day = ActiveDay(m_Schedule, 0, 0);
    EXPECT_EQ(day.dayType, 0);
    EXPECT_EQ(day.reason, eReason::Weekday);
    EXPECT_TRUE(day.used);
    EXPECT_EQ(day.periods, (Minutes{{420, 700}, {960, 1200}}));
    EXPECT_EQ(day.group, std::vector<std::int16_t>{1});
}

TEST_F(ActiveDays, ADayTypeOfTheCalendarTakesItsPlaceWhenTheScheduleUsesIt) {
    const cActiveDay special = ActiveDay(m_Schedule, 8, 0);
    EXPECT_EQ(special.dayType, 7);
    EXPECT_EQ(special.reason, eReason::Calendar);
    EXPECT_EQ(special.periods, (Minutes{{0, 1440}}));
    EXPECT_TRUE(special.group.empty());
    const cActiveDay unused = ActiveDay(m_Schedule, 9, 0);
    EXPECT_EQ(unused.dayType, 0);
    EXPECT_EQ(unused.reason, eReason::NotInSchedule);
    EXPECT_EQ(unused.calendarValue, 9);
    EXPECT_EQ(ActiveDay(m_Schedule, 6, 0).dayType, 5);
    EXPECT_EQ(ActiveDay(m_Schedule, 24, 0).reason, eReason::Weekday);
    EXPECT_EQ(ActiveDay(m_Schedule, -1, 0).dayType, 0);
}

TEST_F(ActiveDays, AWeekdayThatTheScheduleDoesNotUseHasNoPeriods) {
    m_Schedule.SetActive(0, 0);
    const cActiveDay day = ActiveDay(m_Schedule, 1, 0);
    EXPECT_FALSE(day.used);
    EXPECT_EQ(day.reason, eReason::NotInSchedule);
    EXPECT_TRUE(day.periods.empty());
}

TEST_F(ActiveDays, APeriodCoversItsStartAndNotItsStop) {
    const cActiveDay day = ActiveDay(m_Schedule, 0, 0);
    EXPECT_FALSE(day.IsActiveAt(419));
    EXPECT_TRUE(day.IsActiveAt(420));
    EXPECT_TRUE(day.IsActiveAt(699));
    EXPECT_FALSE(day.IsActiveAt(700));
    EXPECT_EQ(day.NextChange(0), 420);
    EXPECT_EQ(day.NextChange(420), 700);
    EXPECT_EQ(day.NextChange(1199), 1200);
    EXPECT_EQ(day.NextChange(1200), 1440);
}

TEST_F(ActiveDays, WeekdaysAreThoseOfTheCalendarOfTheWorld) {
    EXPECT_EQ(WeekDayOf(DateSerial(2026, 12, 24)), 3);
    EXPECT_EQ(WeekDayOf(DateSerial(2000, 1, 1)), 5);
    EXPECT_EQ(WeekDayOf(DateSerial(1999, 12, 31)), 4);
    EXPECT_EQ(WeekDayOf(DateSerial(2040, 1, 1)), 6);
    for (std::int32_t index = 0; index < kCalendarDays; index += 97) {
        EXPECT_EQ(WeekDayOf(kFirstCalendarDay + index), WeekDayOfIndex(index));
    }
}

}  // namespace
}  // namespace vigrel::testing
