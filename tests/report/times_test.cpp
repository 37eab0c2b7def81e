#include <gtest/gtest.h>

#include "report/written_station.h"
#include "vigrel-report/record/log_time.h"

namespace vigrel::report {
namespace {

using testing::kNoZone;
using testing::kStockholm;
using testing::Wall;

TEST(Spans, AreJoinedCutAndTaken) {
    EXPECT_EQ(Joined({{5, 9}, {1, 3}, {3, 4}, {8, 12}, {7, 7}}), (Spans{{1, 4}, {5, 12}}));
    EXPECT_EQ(Within({{1, 4}, {5, 12}}, {3, 6}), (Spans{{3, 4}, {5, 6}}));
    EXPECT_EQ(Without({{0, 10}}, {{2, 3}, {9, 20}}), (Spans{{0, 2}, {3, 9}}));
    EXPECT_EQ(TotalLength({{1, 4}, {5, 12}}), 10);
    EXPECT_TRUE(HoldsMoment({{1, 4}, {5, 12}}, 5));
    EXPECT_FALSE(HoldsMoment({{1, 4}, {5, 12}}, 4));
}

TEST(TimeZone, TellsTheTwoHoursThatShowTheSameApart) {
    const auto twice = kStockholm.ToMoments(Wall(2026, 10, 25, 2, 30));
    EXPECT_EQ(twice.first, Wall(2026, 10, 25, 0, 30));
    EXPECT_EQ(twice.second, Wall(2026, 10, 25, 1, 30));
    const auto never = kStockholm.ToMoments(Wall(2026, 3, 29, 2, 30));
    EXPECT_EQ(never.first, Wall(2026, 3, 29, 1, 30));
    EXPECT_EQ(never.first, never.second);
    EXPECT_EQ(kStockholm.ToMoments(Wall(2026, 7, 1, 12)).first, Wall(2026, 7, 1, 10));
    EXPECT_EQ(kStockholm.ToWall(Wall(2026, 7, 1, 10)), Wall(2026, 7, 1, 12));
}

TEST(TimeZone, KnowsDaysOfTwentyThreeAndTwentyFiveHours) {
    const Moment spring = kStockholm.ToMoments(Wall(2026, 3, 29)).first;
    EXPECT_EQ(kStockholm.Midnight(spring, 1) - spring, 23 * kHour);
    const Moment autumn = kStockholm.ToMoments(Wall(2026, 10, 25)).first;
    EXPECT_EQ(kStockholm.Midnight(autumn, 1) - autumn, 25 * kHour);
}

// The orders of lines at these seconds of a day.
std::vector<Moment> Orders(cLogTime& time, WallTime midnight, const std::vector<Seconds>& seconds) {
    std::vector<Moment> orders;
    time.BeginDay(midnight);
    for (const Seconds second : seconds) orders.push_back(time.At(second).order);
    return orders;
}

TEST(LogTime, TheHourThatIsShownTwiceGoesOn) {
    cLogTime time(kStockholm);
    const Moment base = Wall(2026, 10, 25, 0, 59);  // 02:59 by the clock
    EXPECT_EQ(
        Orders(time, Wall(2026, 10, 25), {2 * kHour + 59 * 60, 2 * kHour + 60, 2 * kHour + 1800, 3 * kHour}),
        (std::vector<Moment>{base, base + 120, base + 120 + 1740, base + 120 + 59 * 60}));
    EXPECT_TRUE(time.SetBacks().empty());
}

TEST(LogTime, AClockSetBackIsTold) {
    cLogTime time(kNoZone);
    const std::vector<Moment> orders = Orders(time, 0, {36000, 36060, 30000, 30030});
    EXPECT_EQ(orders, (std::vector<Moment>{36000, 36060, 36060, 36090}));
    ASSERT_EQ(time.SetBacks().size(), 1u);
    EXPECT_EQ(time.SetBacks()[0].to, 30000);
    EXPECT_EQ(time.SetBacks()[0].by, 6060);
    EXPECT_EQ(time.OrderOf(20000), 20000);
    EXPECT_EQ(time.OrderOf(36500), 36500 + 6060);
}

TEST(LogTime, SecondsOfUnrestAreNoSetting) {
    cLogTime time(kNoZone);
    EXPECT_EQ(Orders(time, 0, {100, 98, 101}), (std::vector<Moment>{100, 100, 101}));
    EXPECT_TRUE(time.SetBacks().empty());
}

TEST(LogTime, ALineBegunBeforeMidnightBelongsToTheNextDay) {
    cLogTime time(kNoZone);
    EXPECT_EQ(Orders(time, 0, {86399, 0}), (std::vector<Moment>{86399, 86400}));
    EXPECT_EQ(Orders(time, 86400, {5}), (std::vector<Moment>{86405}));
    EXPECT_TRUE(time.SetBacks().empty());
}

}  // namespace
}  // namespace vigrel::report
