#include "common/dates.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <vector>

#include "common/failure.h"

namespace vigrel::testing {
namespace {

std::string Text(const cDateParts& p) {
    const auto part = [](int value) { return std::to_string(value) + " "; };
    return part(p.year) + part(p.month) + part(p.day) + part(p.hour) + part(p.minute) +
           std::to_string(p.second);
}

TEST(DateSerial, CountsFromThe30thOfDecember1899) {
    EXPECT_EQ(DateSerial(1899, 12, 30), 0);
    EXPECT_EQ(DateSerial(1900, 1, 1), 2);
    EXPECT_EQ(DateSerial(1899, 12, 29), -1);
    EXPECT_EQ(DateSerial(1970, 1, 1), 25569);
    EXPECT_EQ(DateSerial(2026, 3, 15), 46096);
}

TEST(DateSerial, MonthsOutOfRangeCarry) {
    EXPECT_EQ(DateSerial(2026, 13, 1), DateSerial(2027, 1, 1));
    EXPECT_EQ(DateSerial(2026, 25, 1), DateSerial(2028, 1, 1));
    EXPECT_EQ(DateSerial(2026, 0, 1), DateSerial(2025, 12, 1));
    EXPECT_EQ(DateSerial(2026, -11, 1), DateSerial(2025, 1, 1));
    EXPECT_EQ(DateSerial(2026, -12, 1), DateSerial(2024, 12, 1));
}

TEST(DateSerial, DaysOutOfRangeCarry) {
    EXPECT_EQ(DateSerial(2026, 1, 32), DateSerial(2026, 2, 1));
    EXPECT_EQ(DateSerial(2026, 3, 0), DateSerial(2026, 2, 28));
    EXPECT_EQ(DateSerial(2024, 3, 0), DateSerial(2024, 2, 29));
    EXPECT_EQ(DateSerial(2026, 1, -30), DateSerial(2025, 12, 1));
    EXPECT_EQ(DateSerial(2026, 2, 29), DateSerial(2026, 3, 1));
    EXPECT_EQ(DateSerial(2026, 1, 366), DateSerial(2027, 1, 1));
}

TEST(DateSerial, LeapYearsFollowTheGregorianCalendar) {
    EXPECT_EQ(DateSerial(2000, 3, 1) - DateSerial(2000, 2, 28), 2);
    EXPECT_EQ(DateSerial(1900, 3, 1) - DateSerial(1900, 2, 28), 1);
    EXPECT_EQ(DateSerial(2400, 3, 1) - DateSerial(2400, 2, 28), 2);
}

TEST(DateSerial, TwoDigitYearsMean1930To2029) {
    EXPECT_EQ(DateSerial(0, 1, 1), DateSerial(2000, 1, 1));
    EXPECT_EQ(DateSerial(29, 1, 1), DateSerial(2029, 1, 1));
    EXPECT_EQ(DateSerial(30, 1, 1), DateSerial(1930, 1, 1));
    EXPECT_EQ(DateSerial(99, 1, 1), DateSerial(1999, 1, 1));
    EXPECT_EQ(DateSerial(100, 1, 1), -657434);
}

TEST(DateSerial, OutsideTheYears100To9999IsAnInvalidCall) {
    EXPECT_EQ(DateSerial(9999, 12, 31), 2958465);
    EXPECT_THROW(DateSerial(9999, 12, 32), cFailure);
    EXPECT_THROW(DateSerial(9999, 13, 1), cFailure);
    EXPECT_THROW(DateSerial(100, 1, 0), cFailure);
    EXPECT_THROW(DateSerial(-1, 1, 1), cFailure);
    EXPECT_THROW(DateSerial(INT_MAX, INT_MAX, INT_MAX), cFailure);
    EXPECT_THROW(DateSerial(INT_MIN, INT_MIN, INT_MIN), cFailure);
}

TEST(TimeSerial, PartsOutOfRangeCarry) {
    EXPECT_EQ(TimeSerial(12, 0, 0), 0.5);
    EXPECT_EQ(TimeSerial(0, 720, 0), 0.5);
    EXPECT_EQ(TimeSerial(0, 0, 43200), 0.5);
    EXPECT_EQ(TimeSerial(36, 0, 0), 1.5);
    EXPECT_EQ(TimeSerial(12, -60, 0), TimeSerial(11, 0, 0));
    EXPECT_EQ(TimeSerial(INT_MAX, INT_MAX, INT_MAX), (INT_MAX * 3661.0) / 86400);
}

TEST(DateOf, IsTheDayAlone) {
    EXPECT_EQ(DateOf(46096.75), 46096);
    EXPECT_EQ(DateOf(-1.75), -1);
}

TEST(SplitDateTime, GivesThePartsOfDateAndTime) {
    EXPECT_EQ(Text(SplitDateTime(DateSerial(2026, 3, 15) + TimeSerial(14, 5, 9))), "2026 3 15 14 5 9");
    EXPECT_EQ(Text(SplitDateTime(0)), "1899 12 30 0 0 0");
}

TEST(SplitDateTime, ThePartsOfDayZeroAreTheDefaultParts) {
    const cDateParts parts = SplitDateTime(0);
    EXPECT_EQ(Text(parts), Text(cDateParts{}));
    EXPECT_EQ(parts.weekday, cDateParts{}.weekday);
    EXPECT_EQ(parts.dayOfYear, cDateParts{}.dayOfYear);
}

TEST(SplitDateTime, WeekdaysCountFromSunday) {
    for (int day = 0; day < 14; ++day) {
        EXPECT_EQ(SplitDateTime(DateSerial(2026, 3, 15 + day)).weekday, day % 7 + 1);
        EXPECT_EQ(SplitDateTime(DateSerial(1850, 6, 2 + day)).weekday, day % 7 + 1);
    }
}

TEST(SplitDateTime, EveryDayFrom100To9999ReadsBack) {
    int dayOfYear = 0;
    for (int day = -657434; day <= 2958465; ++day) {
        const cDateParts parts = SplitDateTime(day);
        dayOfYear = parts.month == 1 && parts.day == 1 ? 1 : dayOfYear + 1;
        // Two-digit years don't occur here, so DateSerial takes every year as it is.
        if (DateSerial(parts.year, parts.month, parts.day) != day || parts.dayOfYear != dayOfYear) {
            FAIL() << "day " << day << " is split as " << Text(parts);
        }
    }
}

TEST(SplitDateTime, EverySecondOfADayReadsBack) {
    for (int second = 0; second < 86400; ++second) {
        const cDateParts parts = SplitDateTime(46096 + TimeSerial(0, 0, second));
        ASSERT_EQ(parts.hour * 3600 + parts.minute * 60 + parts.second, second);
    }
}

TEST(SplitDateTime, CutsToTheSecondThatHasCome) {
    for (const double fraction : {0.0, 0.4, 0.5, 0.7, 0.999, 0.9998}) {
        EXPECT_EQ(Text(SplitDateTime(46096 + (86399 + fraction) / 86400)), "2026 3 15 23 59 59") << fraction;
        EXPECT_EQ(Text(SplitDateTime(46096 + (45015 + fraction) / 86400)), "2026 3 15 12 30 15") << fraction;
    }
}

// A whole second that was made by arithmetic can lie a trace below itself.
TEST(SplitDateTime, EveryWholeSecondOfFarDaysReadsBackHoweverItWasMade) {
    for (const double day : {-657434.0, -1.0, 0.0, 1.0, 36526.0, 46096.0, 2958465.0}) {
        const double sign = day < 0 ? -1 : 1;
        for (int second = 0; second < 86400; ++second) {
            const int hours = second / 3600, minutes = second / 60 % 60;
            const double time = TimeSerial(hours, minutes, second % 60);
            const double sum = hours / 24.0 + minutes / 1440.0 + second % 60 / 86400.0;
            for (const double made :
                 {day + sign * time, day + sign * sum, std::nextafter(day + sign * time, 0.0)}) {
                const cDateParts parts = SplitDateTime(made);
                ASSERT_EQ(parts.hour * 3600 + parts.minute * 60 + parts.second, second) << day;
            }
        }
    }
}

TEST(SplitDateTime, TheFractionCountsForwardBeforeDayZero) {
    EXPECT_EQ(Text(SplitDateTime(-1.25)), "1899 12 29 6 0 0");
    EXPECT_EQ(Text(SplitDateTime(-1.9999999)), "1899 12 29 23 59 59");
    EXPECT_EQ(Text(SplitDateTime(-1.9999999999)), "1899 12 30 0 0 0");
}

TEST(Earlier, IsAStrictWeakOrderOfAllValuesInWhichWhatIsNoTimeIsTheOldest) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    constexpr double kLargest = std::numeric_limits<double>::max();
    const std::vector<std::vector<double>> order{{kNone, -kNone, kInfinity, -kInfinity},
                                                 {-kLargest},
                                                 {-1e300},
                                                 {-1},
                                                 {-0.0, 0.0},
                                                 {5e-324},
                                                 {46096.5},
                                                 {1e300},
                                                 {kLargest}};
    for (std::size_t i = 0; i < order.size(); ++i) {
        for (std::size_t j = 0; j < order.size(); ++j) {
            for (const double a : order[i]) {
                for (const double b : order[j]) EXPECT_EQ(Earlier(a, b), i < j) << a << " " << b;
            }
        }
    }
}

TEST(SplitDateTime, OutsideTheYears100To9999IsAnOverflow) {
    for (const double value : {-657435.0, 2958466.0, 2958465.9999999995, HUGE_VAL, -HUGE_VAL, std::nan("")}) {
        EXPECT_THROW(SplitDateTime(value), cFailure) << value;
    }
    EXPECT_EQ(Text(SplitDateTime(-657434.5)), "100 1 1 12 0 0");
}

}  // namespace
}  // namespace vigrel::testing
