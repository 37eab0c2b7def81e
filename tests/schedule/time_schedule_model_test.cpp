#include <gtest/gtest.h>

#include <functional>

#include "common/failure.h"
#include "schedule/schedule_builder.h"
#include "schedule/time_schedule.h"

namespace vigrel::testing {
namespace {

PeriodPtr Next(const cTimeSchedule& schedule, std::int16_t dayType, const PeriodPtr& previous = nullptr) {
    std::int16_t start = 0, stop = 0;
    return schedule.GetNextTimePeriod(dayType, start, stop, previous);
}

TEST(TimeSchedule, TheSectionOfANewScheduleIs186BytesWithSevenDayTypesActive) {
    std::string expected;
    for (int day = 0; day < 7; ++day) expected += std::string("\xFF\xFF\0\0\0\0\0\0", 8);
    expected += std::string(16 * 8 + 2, '\0');
    EXPECT_EQ(expected.size(), 186u);
    EXPECT_EQ(Saved(cTimeSchedule()), expected);
}

TEST(TimeSchedule, ANewScheduleHasNoSelectionAndNothingToPaste) {
    cTimeSchedule schedule;
    EXPECT_EQ(schedule.SelectedDayType(), -1);
    EXPECT_EQ(schedule.SelectedPeriod(), nullptr);
    EXPECT_EQ(schedule.m_NumberOfAxisToPaint, 0);
    EXPECT_EQ(schedule.m_UseCalendar, False16);
}

TEST(TimeSchedule, TheSavedFormIsLittleEndianInTheOrderOfTheDayTypes) {
    cTimeSchedule schedule;
    Load(schedule, cContent().Day(0, {{420, 960}}).Grouped({0}));
    const std::string bytes = Saved(schedule);
    EXPECT_EQ(bytes.size(), 190u);
    // Active, grouped, one period, 0x01A4 = 420, 0x03C0 = 960, row 0.
    EXPECT_EQ(bytes.substr(0, 12), std::string("\xFF\xFF\xFF\xFF\x01\x00\xA4\x01\xC0\x03\x00\x00", 12));
}

TEST(TimeSchedule, TheTextFormHasTheHighByteFirst) {
    cTimeSchedule schedule;
    Load(schedule, cContent().Day(0, {{420, 960}}).Grouped({0}));
    std::string text = "old";
    schedule.ComposePeriodArray(text);
    EXPECT_EQ(text.size(), 190u);
    EXPECT_EQ(text.substr(0, 12), std::string("\xFF\xFF\xFF\xFF\x00\x01\x01\xA4\x03\xC0\x00\x00", 12));
}

TEST(TimeSchedule, TheTextFormComesBackAsAnEqualSchedule) {
    cTimeSchedule schedule;
    cContent content = cContent().Day(0, {{1, 2}, {300, 1440}}).Day(22, {{1440, 1440}}).Grouped({0, 22});
    content.useCalendar = true;
    content.days[22].axisIndex = 7;
    Load(schedule, content);
    std::string text;
    schedule.ComposePeriodArray(text);
    cTimeSchedule copy;
    copy.ExtractPeriodArray(text);
    EXPECT_EQ(Saved(copy), content.Bytes());
    EXPECT_EQ(copy.m_UseCalendar, True16);
    std::string again;
    copy.ComposePeriodArray(again);
    EXPECT_EQ(again, text);
}

TEST(TimeSchedule, AFlagOfAnyOtherNumberIsSavedAsTrue) {
    std::string bytes = cContent().Bytes();
    bytes[0] = 1;
    bytes[1] = 0;
    bytes[10] = 3;  // Tuesday is grouped
    bytes[184] = 2;
    cBinaryReader reader(bytes);
    cTimeSchedule schedule;
    schedule.ReadFromDisk(reader);
    cContent expected = cContent().Grouped({1});
    expected.useCalendar = true;
    EXPECT_EQ(Saved(schedule), expected.Bytes());
    schedule.m_UseCalendar = 5;
    EXPECT_EQ(Saved(schedule), expected.Bytes());
}

TEST(TimeSchedule, ReadingReplacesTheListsAndLeavesTheReaderBehindTheSection) {
    cTimeSchedule schedule;
    schedule.SetDefaultPeriod();
    const std::string bytes = "ab" + cContent().Day(1, {{10, 20}}).Bytes() + "cd";
    cBinaryReader reader(bytes);
    reader.Skip(2);
    schedule.ReadFromDisk(reader);
    EXPECT_EQ(reader.Position(), bytes.size() - 2);
    EXPECT_TRUE(reader.Complete());
    EXPECT_EQ(Periods(schedule, 0), "");
    EXPECT_EQ(Periods(schedule, 1), "10-20");
}

TEST(TimeSchedule, AnInactiveDayTypeWithPeriodsGivesNone) {
    cTimeSchedule schedule;
    Load(schedule, cContent().Day(3, {{10, 20}}));
    EXPECT_NE(Next(schedule, 3), nullptr);
    schedule.SetActive(3, False16);
    EXPECT_EQ(Next(schedule, 3), nullptr);
}

TEST(TimeSchedule, AWalkGivesThePeriodsInListOrderWithTheirTimes) {
    cTimeSchedule schedule;
    Load(schedule, cContent().Day(3, {{300, 400}, {10, 20}}));
    std::int16_t start = -5, stop = -6;
    const PeriodPtr first = schedule.GetNextTimePeriod(3, start, stop, nullptr);
    EXPECT_EQ(start, 300);
    EXPECT_EQ(stop, 400);
    const PeriodPtr second = schedule.GetNextTimePeriod(3, start, stop, first);
    EXPECT_EQ(start, 10);
    EXPECT_EQ(stop, 20);
    EXPECT_EQ(schedule.GetNextTimePeriod(3, start, stop, second), nullptr);
    EXPECT_EQ(start, 10);
    EXPECT_EQ(stop, 20);
}

TEST(TimeSchedule, AWalkFromAPeriodThatIsNotInTheListEndsEvenWhenItsTimesAre) {
    cTimeSchedule schedule;
    Load(schedule, cContent().Day(3, {{10, 20}, {300, 400}}));
    const auto stranger = std::make_shared<cTimeSchedulePeriod>(cTimeSchedulePeriod{10, 20});
    EXPECT_EQ(Next(schedule, 3, stranger), nullptr);
}

TEST(TimeSchedule, TheDefaultPeriodIsOnMondayToFridayGroupedAndSaturdayStaysActiveAndEmpty) {
    cTimeSchedule schedule;
    schedule.SetDefaultPeriod();
    cContent expected;
    for (std::size_t day = 0; day < 5; ++day) expected.Day(day, {{420, 960}});
    EXPECT_EQ(Saved(schedule), expected.Grouped({0, 1, 2, 3, 4}).Bytes());
    EXPECT_TRUE(schedule.GetActive(5));
    EXPECT_EQ(Next(schedule, 5), nullptr);
}

TEST(TimeSchedule, TheDefaultPeriodIsAddedBehindWhatTheListHolds) {
    cTimeSchedule schedule;
    Load(schedule, cContent().Day(2, {{1000, 1100}}));
    schedule.SetActive(2, False16);
    schedule.SetDefaultPeriod();
    EXPECT_EQ(Periods(schedule, 2), "1000-1100 420-960");
}

TEST(TimeSchedule, AnyStatusButZeroActivates) {
    cTimeSchedule schedule;
    for (const Boolean16 status : {Boolean16{1}, Boolean16{-1}, Boolean16{256}}) {
        schedule.SetActive(9, status);
        EXPECT_TRUE(schedule.GetActive(9));
        schedule.SetActive(9, False16);
        EXPECT_FALSE(schedule.GetActive(9));
    }
}

TEST(TimeSchedule, ADayTypeOutsideTheTablesIsABoundsFailure) {
    cTimeSchedule schedule;
    for (const std::int16_t dayType : {std::int16_t{-1}, std::int16_t{23}}) {
        for (const auto& call : {std::function<void()>([&] { Next(schedule, dayType); }),
                                 std::function<void()>([&] { schedule.SetActive(dayType, True16); }),
                                 std::function<void()>([&] { schedule.GetActive(dayType); })}) {
            try {
                call();
                ADD_FAILURE() << "day type " << dayType << " was taken";
            } catch (const cFailure& failure) {
                EXPECT_EQ(failure.Number(), eFailure::OutOfBounds);
            }
        }
    }
}

// A schedule of every kind of value, to be damaged.
cContent FullContent() {
    cContent content = cContent().Day(0, {{420, 960}, {1000, 1100}}).Day(7, {{0, 1440}}).Grouped({0, 4});
    content.useCalendar = true;
    for (std::size_t day = 0; day < 23; ++day) content.days[day].axisIndex = static_cast<int>(day);
    return content;
}

std::size_t CountPeriods(const cTimeSchedule& schedule) {
    return (Saved(schedule).size() - 186) / 4;
}

TEST(TimeSchedule, ASectionCutAtAnyLengthReadsAsWhatIsThereAndZeros) {
    const cContent content = FullContent();
    const std::string whole = content.Bytes();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string cut = whole.substr(0, length);
        cTimeSchedule schedule;
        schedule.SetDefaultPeriod();
        cBinaryReader reader(cut);
        schedule.ReadFromDisk(reader);
        EXPECT_FALSE(reader.Complete()) << length;
        std::size_t offset = 0, periods = 0;
        for (std::int16_t day = 0; day < 23; ++day) {
            const cContent::cDay& expected = content.days[static_cast<std::size_t>(day)];
            EXPECT_EQ(schedule.GetActive(day), expected.active && offset < length) << day << " " << length;
            for (std::size_t i = 0; i < expected.periods.size(); ++i) periods += offset + 6 + 4 * i < length;
            offset += 8 + 4 * expected.periods.size();
        }
        EXPECT_EQ(CountPeriods(schedule), periods) << length;
        EXPECT_EQ(schedule.m_UseCalendar, length > whole.size() - 2 ? True16 : False16) << length;
    }
}

TEST(TimeSchedule, ASectionWithAFlippedByteIsReadWithoutMorePeriodsThanItHoldsBytesFor) {
    const std::string whole = FullContent().Bytes();
    for (std::size_t position = 0; position < whole.size(); ++position) {
        for (const int bits : {0x01, 0x7F, 0x80, 0xFF}) {
            std::string damaged = whole;
            damaged[position] = static_cast<char>(damaged[position] ^ bits);
            cTimeSchedule schedule;
            cBinaryReader reader(damaged);
            schedule.ReadFromDisk(reader);
            EXPECT_LE(CountPeriods(schedule), damaged.size() / 4) << position;
            std::string text;
            schedule.ComposePeriodArray(text);
            EXPECT_EQ(text.size(), 186 + 4 * CountPeriods(schedule));
        }
    }
}

TEST(TimeSchedule, ANegativeCountIsNoPeriod) {
    std::string bytes = cContent().Bytes();
    bytes[4] = bytes[5] = '\xFF';
    cBinaryReader reader(bytes);
    cTimeSchedule schedule;
    schedule.ReadFromDisk(reader);
    EXPECT_EQ(Saved(schedule), cContent().Bytes());
}

TEST(TimeSchedule, ATextCutAtAnyLengthReadsAsWhatIsThereAndZeros) {
    cTimeSchedule full;
    Load(full, FullContent());
    std::string text;
    full.ComposePeriodArray(text);
    const std::string whole = Saved(full);
    for (std::size_t length = 0; length <= text.size(); ++length) {
        cTimeSchedule schedule, expected;
        schedule.SetDefaultPeriod();
        schedule.ExtractPeriodArray(std::string_view(text).substr(0, length));
        // A lone last character is half a value, which is none.
        cBinaryReader reader(std::string_view(whole).substr(0, length / 2 * 2));
        expected.ReadFromDisk(reader);
        EXPECT_EQ(Saved(schedule), Saved(expected)) << length;
    }
}

}  // namespace
}  // namespace vigrel::testing
