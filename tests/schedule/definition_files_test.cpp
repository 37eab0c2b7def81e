#include "schedule/definition_files.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "schedule/calendar_bench.h"
#include "support/samples.h"

namespace vigrel::testing {
namespace {

constexpr const char* kPath = "C:\\App\\Office.sch";

std::string Changed(std::string bytes, std::size_t position, const std::string& with) {
    return bytes.replace(position, with.size(), with);
}

std::string Refusal(const std::string& content) {
    cFakeFiles files;
    files.Put(kPath, content);
    cTimeSchedule schedule;
    schedule.SetDefaultPeriod();
    const std::string before = Saved(schedule);
    try {
        LoadScheduleFile(files, kPath, schedule);
    } catch (const cFailure& failure) {
        EXPECT_EQ(failure.Number(), eFailure::TypeMismatch);
        EXPECT_EQ(Saved(schedule), before);
        return failure.what();
    }
    return "accepted";
}

TEST(ScheduleFile, ComesBackAsItWasSaved) {
    cFakeFiles files;
    files.PutFolder("C:\\App\\");
    cTimeSchedule schedule, loaded;
    schedule.SetDefaultPeriod();
    SaveScheduleFile(files, kPath, schedule);
    EXPECT_EQ(files.ReadFile(kPath).size(), 206u);
    LoadScheduleFile(files, kPath, loaded);
    EXPECT_EQ(Saved(loaded), Saved(schedule));
}

TEST(ScheduleFile, WhatIsNoScheduleIsRefusedWithItsFault) {
    const std::string plain = cContent().Bytes();
    const std::string busy = cContent().Day(0, {{420, 960}, {1000, 1100}}).Bytes();
    const std::string prefix = "C:\\App\\Office.sch is not a time schedule: ";
    const std::vector<std::pair<std::string, std::string>> cases{
        {"", "it has 0 bytes, and a schedule at least 186."},
        {plain.substr(0, 185), "it has 185 bytes, and a schedule at least 186."},
        {Changed(plain, 0, "\x07"), "the active flag of day type 0 is -249."},
        {Changed(plain, 8 * 3 + 2, "\x01"), "the group flag of day type 3 is 1."},
        {Changed(plain, 8 * 22 + 4, "\xFF\xFF"), "the number of periods of day type 22 is -1."},
        {Changed(plain, 8 * 22 + 4, "\x05"), "it ends within the 5 periods of day type 22."},
        {Changed(busy, 6, "\xC1\x03"), "period 1 of day type 0 goes from minute 961 to minute 960."},
        {Changed(busy, 12, "\xA1\x05"), "period 2 of day type 0 goes from minute 1000 to minute 1441."},
        {Changed(busy, 6, "\xFF\xFF"), "period 1 of day type 0 goes from minute -1 to minute 960."},
        {Changed(plain, 6, "\x17"), "the row of day type 0 is 23."},
        {Changed(plain, 184, "\x01"), "the calendar flag is 1."},
        {busy.substr(0, busy.size() - 1), "its end is missing."},
        {plain + "x", "it goes on behind the schedule's 186 bytes."},
        {std::string(300, 'A'), "the active flag of day type 0 is 16705."},
    };
    for (const auto& [content, fault] : cases) EXPECT_EQ(Refusal(content), prefix + fault);
    EXPECT_EQ(Refusal(busy), "accepted");
}

TEST(ScheduleFile, CutAtAnyLengthItIsRefused) {
    const std::string whole = cContent().Day(0, {{420, 960}}).Day(22, {{0, 1440}, {5, 6}}).Bytes();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_NE(Refusal(whole.substr(0, length)), "accepted") << length;
    }
}

// A flipped bit is refused, or it is another sound schedule and read as that one.
TEST(ScheduleFile, WithAFlippedBitItIsRefusedOrReadAsWhatItSays) {
    const std::string whole = cContent().Day(0, {{420, 960}}).Day(22, {{0, 1440}, {5, 6}}).Bytes();
    int refused = 0;
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        std::string damaged = whole;
        damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ (1 << bit % 8));
        if (Refusal(damaged) != "accepted") {
            ++refused;
            continue;
        }
        cFakeFiles files;
        files.Put(kPath, damaged);
        cTimeSchedule schedule;
        LoadScheduleFile(files, kPath, schedule);
        EXPECT_EQ(Saved(schedule), damaged) << bit;
    }
    // Flags and counts, 70 values, have no other sound pattern. Most bits of rows and minutes carry them out
    // of their range.
    EXPECT_GE(refused, 70 * 16);
    EXPECT_LT(refused, static_cast<int>(whole.size()) * 8);
}

TEST(ScheduleFile, AMissingFileIsTheDisksFailure) {
    cFakeFiles files;
    cTimeSchedule schedule;
    try {
        LoadScheduleFile(files, kPath, schedule);
        ADD_FAILURE();
    } catch (const cFailure& failure) {
        EXPECT_EQ(failure.Number(), eFailure::FileNotFound);
    }
}

TEST(CalendarDefinition, AFileOfOtherSizeOrValueIsRefusedAndTheTableKept) {
    cCalendarBench bench;
    bench.m_Calendar.SetDayType(7, 9);
    const auto refusal = [&](const std::string& content) -> std::string {
        bench.m_Files.Put("C:\\App\\Site.cal", content);
        try {
            LoadCalendarFile(bench.m_Files, "C:\\App\\Site.cal", bench.m_Calendar);
        } catch (const cFailure& failure) {
            EXPECT_EQ(bench.m_Calendar.GetDayType(7), 9);
            return failure.what();
        }
        return "accepted";
    };
    const std::string plain(29220, '\0');
    EXPECT_EQ(refusal(plain.substr(1)),
              "C:\\App\\Site.cal is not a calendar: it has 29219 bytes in place of 29220.");
    EXPECT_EQ(refusal(Changed(plain, 29218, "\x18")),
              "C:\\App\\Site.cal is not a calendar: the value of 2039-12-31 is 24, not one of 0 to 23.");
    EXPECT_EQ(refusal(Changed(plain, 1, "\x80")),
              "C:\\App\\Site.cal is not a calendar: the value of 2000-01-01 is -32768, not one of 0 to 23.");
    EXPECT_EQ(refusal(Changed(plain, 14, "\x17")), "accepted");
    EXPECT_EQ(bench.m_Calendar.GetDayType(7), 23);
}

TEST(CalendarDefinition, CutAtAnyLengthItIsRefused) {
    const std::string plain(29220, '\0');
    for (std::size_t length = 0; length < plain.size(); ++length) {
        ASSERT_TRUE(FaultOfCalendarFile(std::string_view(plain).substr(0, length))) << length;
    }
    EXPECT_FALSE(FaultOfCalendarFile(plain));
    EXPECT_TRUE(FaultOfCalendarFile(plain + "x"));
}

TEST(CalendarDefinition, WithAFlippedByteItIsRefusedUnlessTheValueIsADayTypes) {
    std::string content(29220, '\0');
    for (std::size_t position = 0; position < content.size(); position += 7) {
        for (const int bits : {0x01, 0x10, 0x18, 0x80, 0xFF}) {
            content[position] = static_cast<char>(bits);
            const bool isSound = position % 2 == 0 && (bits == 0x01 || bits == 0x10);
            ASSERT_EQ(!FaultOfCalendarFile(content), isSound) << position << " " << bits;
        }
        content[position] = 0;
    }
}

TEST(DefinitionKind, IsToldByTheSizeAlone) {
    EXPECT_EQ(KindOfDefinition(29220), eDefinitionKind::Calendar);
    EXPECT_EQ(KindOfDefinition(186), eDefinitionKind::Schedule);
    EXPECT_EQ(KindOfDefinition(29219), eDefinitionKind::Schedule);
    // No number of periods makes a schedule of that size.
    EXPECT_NE((29220 - 186) % 4, 0);
}

// --- frozen files

TEST(ScheduleFile, TheFrozenSampleIsTheScheduleItWas) {
    cFakeFiles files;
    files.Put(kPath, testing::Sample("schedule.dat"));
    cTimeSchedule schedule;
    LoadScheduleFile(files, kPath, schedule);
    cContent content;
    for (std::size_t day = 0; day < 5; ++day) content.Day(day, {{420, 960}});
    content.Day(5, {{540, 780}, {840, 1020}}).Day(7, {}).Day(22, {{0, 1440}}).Grouped({0, 1, 2, 3, 4});
    const int rows[23] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8};
    for (std::size_t day = 0; day < 23; ++day) content.days[day].axisIndex = rows[day];
    content.useCalendar = true;
    EXPECT_EQ(Saved(schedule), content.Bytes());
    EXPECT_EQ(Saved(schedule), testing::Sample("schedule.dat"));
}

TEST(CalendarDefinition, TheFrozenSampleIsTheCalendarItWas) {
    cCalendarBench bench;
    bench.m_Files.Put("C:\\App\\Site.cal", testing::Sample("calendar.dat"));
    LoadCalendarFile(bench.m_Files, "C:\\App\\Site.cal", bench.m_Calendar);
    EXPECT_EQ(bench.Value(2000, 1, 1), 23);
    EXPECT_EQ(bench.Value(2026, 12, 24), 6);
    EXPECT_EQ(bench.Value(2026, 12, 25), 7);
    EXPECT_EQ(bench.Value(2026, 7, 6), 8);
    EXPECT_EQ(bench.Value(2039, 12, 31), 9);
    int special = 0;
    for (std::int32_t i = 0; i < kCalendarDays; ++i) special += bench.m_Calendar.GetDayType(i) != 0;
    EXPECT_EQ(special, 5);
    EXPECT_TRUE(bench.m_Calendar.CompareToDisk("C:\\App\\Site.cal"));
}

}  // namespace
}  // namespace vigrel::testing
