#include <gtest/gtest.h>

#include "common/dates.h"

namespace vigrel::testing {
namespace {

struct cWeek {
    int year, month, day, week;
};

// Weeks from Monday, the first with four days of the year: ISO 8601, from printed almanacs.
TEST(WeekOfYear, WithFourDaysFollowsTheCalendarsOfNorthernEurope) {
    for (const cWeek& w :
         {cWeek{2026, 1, 1, 1}, cWeek{2025, 12, 28, 52}, cWeek{2025, 12, 29, 1}, cWeek{2020, 12, 31, 53},
          cWeek{2021, 1, 3, 53}, cWeek{2021, 1, 4, 1}, cWeek{2000, 1, 1, 52}, cWeek{2000, 1, 3, 1},
          cWeek{2004, 12, 31, 53}, cWeek{2005, 1, 2, 53}, cWeek{2008, 12, 29, 1}, cWeek{2003, 12, 29, 1},
          cWeek{2026, 7, 15, 29}}) {
        EXPECT_EQ(WeekOfYear(DateSerial(w.year, w.month, w.day), 2, eFirstWeek::FirstFourDays), w.week)
            << w.year << "-" << w.month << "-" << w.day;
    }
}

// Weeks from Sunday, the first that of 1 January.
TEST(WeekOfYear, WithTheFirstOfJanuaryTheYearNeverShareAWeekNumber) {
    for (const cWeek& w :
         {cWeek{2026, 1, 1, 1}, cWeek{2026, 1, 3, 1}, cWeek{2026, 1, 4, 2}, cWeek{2025, 12, 31, 53},
          cWeek{2000, 12, 31, 54}, cWeek{2022, 1, 1, 1}, cWeek{2022, 1, 2, 2}}) {
        EXPECT_EQ(WeekOfYear(DateSerial(w.year, w.month, w.day), 1, eFirstWeek::FirstOfJanuary), w.week)
            << w.year << "-" << w.month << "-" << w.day;
    }
}

TEST(WeekOfYear, WithAFullWeekTheDaysBeforeItBelongToTheYearBefore) {
    for (const cWeek& w : {cWeek{2024, 1, 1, 1}, cWeek{2025, 1, 5, 53}, cWeek{2025, 1, 6, 1},
                           cWeek{2023, 1, 1, 52}, cWeek{2023, 1, 2, 1}, cWeek{2024, 12, 31, 53}}) {
        EXPECT_EQ(WeekOfYear(DateSerial(w.year, w.month, w.day), 2, eFirstWeek::FirstFullWeek), w.week)
            << w.year << "-" << w.month << "-" << w.day;
    }
}

TEST(WeekOfYear, TheTimeOfDayPlaysNoPart) {
    EXPECT_EQ(WeekOfYear(DateSerial(2025, 12, 28) + 0.999, 2, eFirstWeek::FirstFourDays), 52);
}

}  // namespace
}  // namespace vigrel::testing
