#include "events/insertion_order.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "common/dates.h"

namespace vigrel::testing {
namespace {

// The rule itself: one element after the other goes into its place.
std::vector<std::size_t> OneByOne(const std::vector<DateTime>& times) {
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < times.size(); ++i) {
        const std::size_t place = FindInsertionPlace(order.size(), [&](std::size_t other) {
            return Earlier(times[i], times[order[other]])   ? -1
                   : Earlier(times[order[other]], times[i]) ? 1
                                                            : 0;
        });
        order.insert(order.begin() + static_cast<std::ptrdiff_t>(place), i);
    }
    return order;
}

TEST(InsertionOrder, ANewcomerStandsBehindTheFirstEqualThatTheSearchMeets) {
    const auto all = [](std::size_t) { return 0; };
    EXPECT_EQ(FindInsertionPlace(0, all), 0u);
    EXPECT_EQ(FindInsertionPlace(1, all), 1u);  // half of 1 is 0, the even neighbour
    EXPECT_EQ(FindInsertionPlace(2, all), 2u);
    EXPECT_EQ(FindInsertionPlace(3, all), 3u);  // half of 3 is 2
    EXPECT_EQ(FindInsertionPlace(4, all), 3u);
    EXPECT_EQ(FindInsertionPlace(5, all), 3u);  // half of 5 is 2
    EXPECT_EQ(FindInsertionPlace(6, all), 4u);
    EXPECT_EQ(FindInsertionPlace(7, all), 5u);  // half of 7 is 4
    EXPECT_EQ(FindInsertionPlace(8, all), 5u);
    EXPECT_EQ(FindInsertionPlace(9, all), 5u);   // half of 9 is 4
    EXPECT_EQ(FindInsertionPlace(11, all), 7u);  // half of 11 is 6
    EXPECT_EQ(FindInsertionPlace(13, all), 7u);  // half of 13 is 6
}

TEST(InsertionOrder, AnEarlierOrLaterOneFindsTheEnds) {
    for (std::size_t count = 1; count < 40; ++count) {
        EXPECT_EQ(FindInsertionPlace(count, [](std::size_t) { return -1; }), 0u);
        EXPECT_EQ(FindInsertionPlace(count, [](std::size_t) { return 1; }), count);
    }
}

TEST(InsertionOrder, AllAtOnceIsWhatOneByOneGives) {
    constexpr double kNoTime = std::numeric_limits<double>::quiet_NaN();
    constexpr double kNever = std::numeric_limits<double>::infinity();
    std::mt19937 random(7);
    for (int round = 0; round < 3000; ++round) {
        std::vector<DateTime> times(random() % 60);
        // From nearly all equal to nearly all different.
        const unsigned long kinds = 1 + random() % 80;
        for (DateTime& time : times) {
            time = static_cast<double>(random() % kinds);
            if (random() % 20 == 0) time = kNoTime;
            if (random() % 30 == 0) time = random() % 2 == 0 ? kNever : -kNever;
            if (time == 0 && random() % 2 == 0) time = -0.0;
        }
        ASSERT_EQ(OrderByInsertion(times).order, OneByOne(times)) << "round " << round;
    }
}

TEST(InsertionOrder, TellsWhetherTimesAreEqual) {
    EXPECT_FALSE(OrderByInsertion({}).hasEqualTimes);
    EXPECT_FALSE(OrderByInsertion({3, 1, 2}).hasEqualTimes);
    EXPECT_TRUE(OrderByInsertion({3, 1, 3}).hasEqualTimes);
}

}  // namespace
}  // namespace vigrel::testing
