#include <gtest/gtest.h>

#include "common/failure.h"
#include "schedule/calendar_bench.h"

namespace vigrel::testing {
namespace {

constexpr const char* kFile = "C:\\App\\Calendar.dat";

eFailure NumberOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const cFailure& failure) {
        return failure.Number();
    }
    return eFailure{};
}

// --- table

TEST(Calendar, TheTableGoesFromTheFirstOf2000ToTheLastOf2039) {
    EXPECT_EQ(cCalendarBench::Index(2000, 1, 1), 0);
    EXPECT_EQ(cCalendarBench::Index(2039, 12, 31), 14609);
    cCalendarBench bench;
    bench.m_Calendar.SetDayType(0, 23);
    bench.m_Calendar.SetDayType(14609, 1);
    EXPECT_EQ(bench.m_Calendar.GetDayType(0), 23);
    EXPECT_EQ(bench.m_Calendar.GetDayType(14609), 1);
}

TEST(Calendar, AnIndexOutsideTheTableIsABoundsFailure) {
    cCalendarBench bench;
    for (const std::int32_t index : {-1, 14610, 100000}) {
        EXPECT_EQ(NumberOf([&] { bench.m_Calendar.GetDayType(index); }), eFailure::OutOfBounds);
        EXPECT_EQ(NumberOf([&] { bench.m_Calendar.SetDayType(index, 1); }), eFailure::OutOfBounds);
    }
}

TEST(Calendar, NoDayTypeIsUsedSinceNothingSetsIt) {
    cCalendarBench bench;
    bench.SetValue(2026, 1, 1, 9);
    bench.m_Calendar.notused_CalcIfDayTypeIsUsed();
    for (std::int16_t dayType = 0; dayType < 23; ++dayType) {
        EXPECT_FALSE(bench.m_Calendar.IsDayTypeUsed(dayType));
    }
    EXPECT_EQ(NumberOf([&] { bench.m_Calendar.IsDayTypeUsed(23); }), eFailure::OutOfBounds);
    EXPECT_EQ(NumberOf([&] { bench.m_Calendar.IsDayTypeUsed(-1); }), eFailure::OutOfBounds);
}

// --- file

TEST(CalendarFile, HoldsTheTableAloneInLittleEndian) {
    cCalendarBench bench;
    bench.m_Files.PutFolder("C:\\App\\");
    bench.m_Calendar.SetDayType(0, 9);
    bench.m_Calendar.SetDayType(1, 0x0102);
    bench.m_Calendar.SetDayType(14609, 23);
    EXPECT_TRUE(bench.m_Calendar.SaveToDisk(kFile));
    std::string expected(29220, '\0');
    expected[0] = 9;
    expected[2] = 2;
    expected[3] = 1;
    expected[29218] = 23;
    EXPECT_EQ(bench.m_Files.ReadFile(kFile), expected);
}

TEST(CalendarFile, ComesBackAsItWasSaved) {
    cCalendarBench bench;
    bench.m_Files.PutFolder("C:\\App\\");
    for (std::int32_t i = 0; i < kCalendarDays; ++i) {
        bench.m_Calendar.SetDayType(i, static_cast<std::int16_t>(i % 24));
    }
    bench.m_Calendar.SaveToDisk(kFile);
    cCalendar other(bench.Surroundings());
    EXPECT_FALSE(other.CompareToOtherCalendar(bench.m_Calendar));
    EXPECT_FALSE(other.CompareToDisk(kFile));
    EXPECT_TRUE(other.ReadFromDisk(kFile));
    EXPECT_TRUE(other.CompareToOtherCalendar(bench.m_Calendar));
    EXPECT_TRUE(other.CompareToDisk(kFile));
    other.SetDayType(14609, 1);
    EXPECT_FALSE(other.CompareToOtherCalendar(bench.m_Calendar));
    EXPECT_FALSE(other.CompareToDisk(kFile));
}

TEST(CalendarFile, AMissingFileIsNotReadAndLeavesTheTable) {
    cCalendarBench bench;
    bench.m_Calendar.SetDayType(5, 9);
    EXPECT_FALSE(bench.m_Calendar.ReadFromDisk(kFile));
    EXPECT_EQ(bench.m_Calendar.GetDayType(5), 9);
}

TEST(CalendarFile, ComparingToAMissingFileIsFalse) {
    cCalendarBench bench;
    EXPECT_FALSE(bench.m_Calendar.CompareToDisk(kFile));
}

TEST(CalendarFile, AFileCutAtAnyLengthReadsAsFarAsItGoesAndThenZeros) {
    cCalendarBench bench;
    std::string whole;
    for (int i = 0; i < kCalendarDays; ++i) whole += std::string("\x01\x02", 2);
    cCalendar calendar(bench.Surroundings());
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        bench.m_Files.Put(kFile, whole.substr(0, length));
        ASSERT_TRUE(calendar.ReadFromDisk(kFile));
        // The whole values, half of one, nothing.
        const std::size_t days = length / 2;
        std::vector<std::int16_t> expected(kCalendarDays + 2, 0);
        std::fill_n(expected.begin(), days, 0x0201);
        expected[days] = length % 2;
        for (const std::size_t i : {std::size_t{0}, days == 0 ? 0 : days - 1, days, days + 1}) {
            if (i >= kCalendarDays) continue;
            ASSERT_EQ(calendar.GetDayType(static_cast<std::int32_t>(i)), expected[i]) << length << " " << i;
        }
    }
}

TEST(CalendarFile, AShortFileEqualsATableWhoseRestIsZero) {
    cCalendarBench bench;
    bench.m_Files.Put(kFile, std::string("\x09\0", 2));
    EXPECT_FALSE(bench.m_Calendar.CompareToDisk(kFile));
    bench.m_Calendar.SetDayType(0, 9);
    EXPECT_TRUE(bench.m_Calendar.CompareToDisk(kFile));
}

TEST(CalendarFile, DamagedValuesAreReadAndHarmNothing) {
    cCalendarBench bench;
    cTimeSchedule schedule;
    bench.m_Calendar.m_ShowTimeAxis = True16;
    bench.m_Calendar.m_AssociatedTimeSchedule = &schedule;
    std::string bytes(29220, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 37 % 251);
    bench.m_Files.Put(kFile, bytes);
    ASSERT_TRUE(bench.m_Calendar.ReadFromDisk(kFile));
    bench.Show(2026, 3);
    bench.m_Calendar.Paint(bench.m_Container, &bench.m_Paint);
    for (int day = 0; day < 31; ++day) bench.Move(cCalendarBench::X(day % 7), cCalendarBench::Y(day / 7));
    for (std::int32_t i = 0; i < kCalendarDays; ++i) {
        const std::int16_t dayType = bench.m_Calendar.ResolveDayType(i, schedule);
        EXPECT_GE(dayType, 0);
        EXPECT_LT(dayType, 7);
    }
}

TEST(CalendarFile, AFlippedByteChangesTheValueOfItsDateAlone) {
    cCalendarBench bench;
    std::string bytes(29220, '\0');
    cCalendar calendar(bench.Surroundings()), plain(bench.Surroundings());
    for (std::size_t position = 0; position < bytes.size(); position += 37) {
        for (const int bits : {0x01, 0x7F, 0x80, 0xFF}) {
            bytes[position] = static_cast<char>(bits);
            bench.m_Files.Put(kFile, bytes);
            ASSERT_TRUE(calendar.ReadFromDisk(kFile));
            const auto day = static_cast<std::int32_t>(position / 2);
            ASSERT_EQ(calendar.GetDayType(day),
                      static_cast<std::int16_t>(position % 2 == 0 ? bits : bits << 8));
            calendar.SetDayType(day, 0);
            ASSERT_TRUE(calendar.CompareToOtherCalendar(plain)) << position;
        }
        bytes[position] = 0;
    }
}

TEST(CalendarFile, AFailedSaveLeavesTheOldFileAndTellsOfIt) {
    cCalendarBench bench;
    bench.m_Files.Put(kFile, "old");
    bench.m_Files.m_DiskFull = true;
    EXPECT_EQ(NumberOf([&] { bench.m_Calendar.SaveToDisk(kFile); }), eFailure::DiskFull);
    EXPECT_EQ(bench.m_Files.ReadFile(kFile), "old");
}

TEST(CalendarFile, ReadFailuresReachTheCaller) {
    cCalendarBench bench;
    bench.m_Files.Put(kFile, std::string(29220, '\0'));
    bench.m_Files.SetUnreadable(kFile, true);
    EXPECT_EQ(NumberOf([&] { bench.m_Calendar.ReadFromDisk(kFile); }), eFailure::PermissionDenied);
    EXPECT_EQ(NumberOf([&] { bench.m_Calendar.CompareToDisk(kFile); }), eFailure::PermissionDenied);
}

// --- month

TEST(CalendarMonth, IsWorkedOutFromTheSelectedYearAndMonth) {
    cCalendarBench bench;
    bench.Show(2000, 1);
    EXPECT_EQ(bench.m_Calendar.m_ActualMonthOffset, 0);
    EXPECT_EQ(bench.m_Calendar.m_FirstWeekDayInActualMonth, 5);
    EXPECT_EQ(bench.m_Calendar.m_DaysInActualMonth, 31);
    bench.Show(2026, 2);
    EXPECT_EQ(bench.m_Calendar.m_FirstWeekDayInActualMonth, 6);
    EXPECT_EQ(bench.m_Calendar.m_DaysInActualMonth, 28);
    EXPECT_EQ(bench.m_Calendar.m_TodaysDayOffset, cCalendarBench::Index(2026, 3, 15));
    bench.Show(2024, 2);
    EXPECT_EQ(bench.m_Calendar.m_DaysInActualMonth, 29);
    bench.Show(2039, 12);
    EXPECT_EQ(bench.m_Calendar.m_ActualMonthOffset, 14609 - 30);
    EXPECT_EQ(bench.m_Calendar.m_DaysInActualMonth, 31);
    EXPECT_EQ(bench.m_Calendar.m_FirstWeekDayInActualMonth, 3);
}

// --- mouse

TEST(CalendarMouse, APressPaintsTheSelectedEntryLessOne) {
    cCalendarBench bench;
    bench.Show(2026, 6);  // begins on a Monday
    bench.m_Container.m_Selected = 9;
    bench.Down(cCalendarBench::X(2), cCalendarBench::Y(1));
    EXPECT_EQ(bench.Value(2026, 6, 10), 8);
    // With its new type already.
    EXPECT_EQ(bench.m_Transcript.Text(),
              "box 112 47 149 69 #F0F0F0\nprint 112 47 10\nimage 77 1 131.75 50\n");
}

TEST(CalendarMouse, AnEntryOfNumberZeroPaintsZeroLikeTheFirst) {
    // A container whose list counts from 0.
    class cFromZero : public cFakeCalendarContainer {
      public:
        using cFakeCalendarContainer::cFakeCalendarContainer;
        std::optional<std::string> Get_Combo_Calendar_DayType_SelectedItem() const override { return "none"; }
    };
    cCalendarBench bench;
    cFromZero container(bench.m_Transcript);
    bench.Show(2026, 6);
    bench.SetValue(2026, 6, 10, 8);
    bench.m_Calendar.MouseDown(container, &bench.m_Paint, 1, 0, cCalendarBench::X(2), cCalendarBench::Y(1));
    EXPECT_EQ(bench.Value(2026, 6, 10), 0);
}

TEST(CalendarMouse, APressOnADayOfThatValueDrawsNothing) {
    cCalendarBench bench;
    bench.Show(2026, 6);
    bench.SetValue(2026, 6, 1, 8);
    bench.m_Container.m_Selected = 9;
    bench.Down(cCalendarBench::X(0), cCalendarBench::Y(0));
    EXPECT_EQ(bench.m_Transcript.Text(), "");
}

TEST(CalendarMouse, WithoutASelectedEntryNothingIsPainted) {
    cCalendarBench bench;
    bench.Show(2026, 6);
    bench.SetValue(2026, 6, 1, 5);
    bench.Down(cCalendarBench::X(0), cCalendarBench::Y(0));
    bench.Move(cCalendarBench::X(1), cCalendarBench::Y(0));
    EXPECT_EQ(bench.Value(2026, 6, 1), 5);
    EXPECT_EQ(bench.Value(2026, 6, 2), 0);
}

TEST(CalendarMouse, ADragPaintsTheDaysItPasses) {
    cCalendarBench bench;
    bench.Show(2026, 6);
    bench.m_Container.m_Selected = 24;
    bench.Down(cCalendarBench::X(0), cCalendarBench::Y(0));
    bench.Move(cCalendarBench::X(1), cCalendarBench::Y(0));
    bench.Move(cCalendarBench::X(2), cCalendarBench::Y(0));
    bench.Up();
    bench.Move(cCalendarBench::X(3), cCalendarBench::Y(0));
    EXPECT_EQ(bench.Value(2026, 6, 1), 23);
    EXPECT_EQ(bench.Value(2026, 6, 2), 23);
    EXPECT_EQ(bench.Value(2026, 6, 3), 23);
    EXPECT_EQ(bench.Value(2026, 6, 4), 0);
}

TEST(CalendarMouse, TheFirstEntryClearsTheDaysItIsDraggedOver) {
    cCalendarBench bench;
    bench.Show(2026, 6);
    for (int day = 1; day <= 4; ++day) bench.SetValue(2026, 6, day, 9);
    bench.m_Container.m_Selected = 1;
    bench.Down(cCalendarBench::X(0), cCalendarBench::Y(0));
    bench.Move(cCalendarBench::X(1), cCalendarBench::Y(0));
    bench.Move(cCalendarBench::X(2), cCalendarBench::Y(0));
    bench.Up();
    for (int day = 1; day <= 3; ++day) EXPECT_EQ(bench.Value(2026, 6, day), 0) << day;
    EXPECT_EQ(bench.Value(2026, 6, 4), 9);
}

TEST(CalendarMouse, InAMonthThatStartsOnSundayTheFirstCellIsBlankAndPaintsNothing) {
    cCalendarBench bench;
    bench.Show(2026, 2);
    bench.m_Container.m_Selected = 9;
    bench.Down(cCalendarBench::X(0), cCalendarBench::Y(0));
    EXPECT_EQ(bench.m_Transcript.Text(), "");
    for (int day = 1; day <= 28; ++day) EXPECT_EQ(bench.Value(2026, 2, day), 0);
    bench.Down(cCalendarBench::X(6), cCalendarBench::Y(0));
    EXPECT_EQ(bench.Value(2026, 2, 1), 8);
}

TEST(CalendarMouse, APressJustOutsideTheGridPaintsTheFirstDay) {
    for (const auto& [x, y] :
         std::vector<std::pair<float, float>>{{30, 100}, {310, 100}, {100, 20}, {100, 170}, {-5, -5}}) {
        cCalendarBench bench;
        bench.Show(2026, 2);
        bench.m_Container.m_Selected = 9;
        bench.Down(x, y);
        EXPECT_EQ(bench.Value(2026, 2, 1), 8) << x << " " << y;
    }
}

TEST(CalendarMouse, CellsBehindTheMonthsEndAreBlank) {
    cCalendarBench bench;
    bench.Show(2026, 2);
    bench.m_Container.m_Selected = 9;
    bench.Down(cCalendarBench::X(0), cCalendarBench::Y(5));
    bench.Down(cCalendarBench::X(6), cCalendarBench::Y(4));
    EXPECT_EQ(bench.Value(2026, 3, 1), 0);
    EXPECT_EQ(bench.Value(2026, 3, 2), 0);
}

TEST(CalendarMouse, CellsBeginAtTheRoundedPosition) {
    cCalendarBench bench;
    bench.Show(2026, 6);
    bench.m_Container.m_Selected = 9;
    bench.Down(69.4f, 44.4f);
    EXPECT_EQ(bench.Value(2026, 6, 1), 8);
    bench.Down(69.6f, 44.6f);
    EXPECT_EQ(bench.Value(2026, 6, 9), 8);
}

TEST(CalendarMouse, TheToolTipNamesDayTypeAndHoliday) {
    cCalendarBench bench;
    bench.Show(2026, 6);
    bench.SetValue(2026, 6, 5, 9);
    bench.SetValue(2026, 6, 6, 3);
    bench.m_Holidays.Add({cCalendarBench::Index(2026, 6, 6), 6, True16, "National day"});
    bench.m_Holidays.Add({cCalendarBench::Index(2026, 6, 7), 6, False16, "Second"});
    bench.m_Holidays.Add({cCalendarBench::Index(2026, 6, 7), 6, False16, "Third"});
    bench.Move(cCalendarBench::X(4), cCalendarBench::Y(0));
    EXPECT_EQ(bench.m_Paint.m_ToolTip, "type 2");
    bench.Move(cCalendarBench::X(5), cCalendarBench::Y(0));
    EXPECT_EQ(bench.m_Paint.m_ToolTip, "Wednesday (National day)");
    bench.Move(cCalendarBench::X(6), cCalendarBench::Y(0));
    EXPECT_EQ(bench.m_Paint.m_ToolTip, " (Second)");
    bench.Move(cCalendarBench::X(1), cCalendarBench::Y(0));
    EXPECT_EQ(bench.m_Paint.m_ToolTip, "");
}

TEST(CalendarMouse, ADayThatIsPaintedByADragShowsItsNewTypeAtOnce) {
    cCalendarBench bench;
    bench.Show(2026, 6);
    bench.SetValue(2026, 6, 2, 3);
    bench.m_Container.m_Selected = 10;
    bench.Down(cCalendarBench::X(0), cCalendarBench::Y(0));
    bench.Move(cCalendarBench::X(1), cCalendarBench::Y(0));
    EXPECT_EQ(bench.m_Paint.m_ToolTip, "type 2");
}

TEST(CalendarMouse, ADragOverADayOfThatValueDrawsNothing) {
    cCalendarBench bench;
    bench.Show(2026, 6);
    bench.SetValue(2026, 6, 2, 9);
    bench.m_Container.m_Selected = 10;
    bench.Down(cCalendarBench::X(0), cCalendarBench::Y(0));
    bench.m_Transcript.Take();
    bench.Move(cCalendarBench::X(1), cCalendarBench::Y(0));
    EXPECT_EQ(bench.m_Transcript.Text(), "");
    bench.Move(cCalendarBench::X(2), cCalendarBench::Y(0));
    EXPECT_NE(bench.m_Transcript.Text(), "");
}

TEST(CalendarMouse, ABlankCellClearsTheToolTip) {
    cCalendarBench bench;
    bench.Show(2026, 2);
    bench.SetValue(2026, 2, 2, 9);
    bench.Move(cCalendarBench::X(0), cCalendarBench::Y(1));
    EXPECT_EQ(bench.m_Paint.m_ToolTip, "type 2");
    bench.Move(cCalendarBench::X(0), cCalendarBench::Y(0));
    EXPECT_EQ(bench.m_Paint.m_ToolTip, "");
}

TEST(CalendarMouse, TheDayLastSeenChangesNothing) {
    cCalendarBench bench;
    bench.Show(2026, 6);
    bench.SetValue(2026, 6, 1, 9);
    // The first day counts as seen from the beginning.
    bench.Move(cCalendarBench::X(0), cCalendarBench::Y(0));
    EXPECT_EQ(bench.m_Paint.m_ToolTip, "");
    bench.Move(cCalendarBench::X(1), cCalendarBench::Y(0));
    bench.Move(cCalendarBench::X(0), cCalendarBench::Y(0));
    EXPECT_EQ(bench.m_Paint.m_ToolTip, "type 2");
}

TEST(CalendarMouse, ADayIsSeenAgainAfterABlankCell) {
    cCalendarBench bench;
    bench.Show(2026, 2);
    bench.SetValue(2026, 2, 2, 9);
    bench.Move(cCalendarBench::X(0), cCalendarBench::Y(1));
    bench.Move(cCalendarBench::X(0), cCalendarBench::Y(0));
    bench.Move(cCalendarBench::X(0), cCalendarBench::Y(1));
    EXPECT_EQ(bench.m_Paint.m_ToolTip, "type 2");
}

TEST(CalendarMouse, TheDayLastSeenIsKeptOverAChangeOfMonth) {
    cCalendarBench bench;
    bench.SetValue(2026, 6, 5, 9);
    bench.SetValue(2027, 2, 1, 10);
    bench.SetValue(2027, 2, 5, 10);
    bench.Show(2026, 6);  // like February 2027 it begins on a Monday
    bench.Move(cCalendarBench::X(4), cCalendarBench::Y(0));
    bench.Show(2027, 2);
    bench.Move(cCalendarBench::X(4), cCalendarBench::Y(0));
    EXPECT_EQ(bench.m_Paint.m_ToolTip, "type 2");
    bench.Move(cCalendarBench::X(0), cCalendarBench::Y(0));
    EXPECT_EQ(bench.m_Paint.m_ToolTip, "type 3");
}

TEST(CalendarMouse, AMonthBehindTheTableShowsNoToolTipAndDoesNotFail) {
    cCalendarBench bench;
    bench.Show(2040, 1);
    bench.m_Paint.m_ToolTip = "old";
    bench.Move(cCalendarBench::X(3), cCalendarBench::Y(1));
    EXPECT_EQ(bench.m_Paint.m_ToolTip, "");
    bench.m_Container.m_Selected = 3;
    EXPECT_EQ(NumberOf([&] { bench.Down(cCalendarBench::X(3), cCalendarBench::Y(1)); }),
              eFailure::OutOfBounds);
}

TEST(CalendarMouse, ChangingTheMonthEndsTheStroke) {
    cCalendarBench bench;
    bench.Show(2026, 6);
    bench.m_Container.m_Selected = 9;
    bench.Down(cCalendarBench::X(0), cCalendarBench::Y(0));
    bench.SetValue(2026, 7, 9, 5);
    bench.Show(2026, 7);
    bench.Move(cCalendarBench::X(3), cCalendarBench::Y(1));
    EXPECT_EQ(bench.Value(2026, 7, 9), 5);
}

// --- painting

std::string Band(int x, int y, int lines, int first, bool red) {
    std::string text;
    for (int i = 0; i < lines; ++i) {
        const int light = first - 3 * i;
        text += "line" + testing::Numbers({1.0 * x, 1.0 * y + i, x + 14.0, 1.0 * y + i}) + " " +
                testing::ColourText(red ? 255 | light << 8 | light << 16 : light << 8) + "\n";
    }
    return text;
}

TEST(CalendarPainting, APlainDayIsABoxWithItsNumber) {
    cCalendarBench bench;
    bench.Show(2026, 6);
    EXPECT_EQ(bench.DateBox(10), "box 112 47 149 69 #F0F0F0\nprint 112 47 10\n");
}

TEST(CalendarPainting, ASundayHasARedBand) {
    cCalendarBench bench;
    bench.Show(2026, 6);
    const std::string text = bench.DateBox(7);
    EXPECT_EQ(text, "box 272 22 309 44 #F0F0F0\n" + Band(272, 22, 22, 192, true) + "print 272 22 7\n");
    EXPECT_NE(text.find("line 272 22 286 22 #FFC0C0\n"), std::string::npos);
    EXPECT_NE(text.find("line 272 43 286 43 #FF8181\n"), std::string::npos);
}

TEST(CalendarPainting, AHolidayHasARedBandOnlyWhenItsLabelIsToBeSeen) {
    cCalendarBench bench;
    bench.m_Holidays.Add({cCalendarBench::Index(2026, 6, 1), 6, True16, "a"});
    bench.m_Holidays.Add({cCalendarBench::Index(2026, 6, 2), 6, False16, "b"});
    bench.Show(2026, 6);
    EXPECT_EQ(bench.DateBox(1),
              "box 32 22 69 44 #F0F0F0\n" + Band(32, 22, 22, 192, true) + "print 32 22 1\n");
    EXPECT_EQ(bench.DateBox(2), "box 72 22 109 44 #F0F0F0\nprint 72 22 2\n");
    // Without its mark a label counts for nothing.
    bench.m_Holidays.m_HolidayMarks[static_cast<std::size_t>(cCalendarBench::Index(2026, 6, 1))] = False16;
    EXPECT_EQ(bench.DateBox(1), "box 32 22 69 44 #F0F0F0\nprint 32 22 1\n");
}

TEST(CalendarPainting, TodayHasAGreenBandOverTheRed) {
    cCalendarBench bench;
    bench.Show(2026, 3);  // today is Sunday the 15th, in the third row
    const std::string text = bench.DateBox(15);
    EXPECT_EQ(text, "box 272 72 309 94 #F0F0F0\n" + Band(272, 72, 22, 192, true) +
                        Band(272, 72, 22, 255, false) + "print 272 72 15\n");
    EXPECT_NE(text.find("line 272 72 286 72 #00FF00\n"), std::string::npos);
    EXPECT_NE(text.find("line 272 93 286 93 #00C000\n"), std::string::npos);
}

TEST(CalendarPainting, WeekdayLikeTypesShowTheShortNameAtTheRight) {
    cCalendarBench bench;
    bench.Show(2026, 6);
    bench.SetValue(2026, 6, 1, 1);
    bench.SetValue(2026, 6, 2, 7);
    EXPECT_EQ(bench.DateBox(1), "box 32 22 69 44 #F0F0F0\nprint 32 22 1\nprint 57 22 Mo\n");
    EXPECT_EQ(bench.DateBox(2), "box 72 22 109 44 #F0F0F0\nprint 72 22 2\nprint 97 22 Su\n");
}

TEST(CalendarPainting, SpecialTypesShowTheirImage) {
    cCalendarBench bench;
    bench.Show(2026, 6);
    bench.SetValue(2026, 6, 1, 8);
    bench.SetValue(2026, 6, 2, 23);
    EXPECT_EQ(bench.DateBox(1), "box 32 22 69 44 #F0F0F0\nprint 32 22 1\nimage 77 1 51.75 25\n");
    EXPECT_EQ(bench.DateBox(2), "box 72 22 109 44 #F0F0F0\nprint 72 22 2\nimage 77 16 91.75 25\n");
    bench.m_Calendar.m_ShowTimeAxis = True16;
    EXPECT_EQ(bench.DateBox(1), "box 32 22 69 44 #F0F0F0\nprint 32 22 1\nimage 77 1 51.75 22\n");
}

const char* const kAxisBase =
    "line 32 39 69 39 #DCDCDC\n"
    "line 32 40 69 40 #C8C8C8\n"
    "line 32 41 69 41 #B4B4B4\n"
    "line 32 42 69 42 #A0A0A0\n"
    "line 32 43 69 43 #8C8C8C\n";

TEST(CalendarPainting, TheTimeAxisShowsTheDaysPeriodsInTheLowerPart) {
    cCalendarBench bench;
    cTimeSchedule schedule;
    testing::Load(schedule, cContent().Day(0, {{0, 720}, {1080, 1440}}));
    bench.m_Calendar.m_ShowTimeAxis = True16;
    bench.m_Calendar.m_AssociatedTimeSchedule = &schedule;
    bench.Show(2026, 6);
    EXPECT_EQ(bench.DateBox(1), std::string("box 32 22 69 44 #F0F0F0\nprint 32 22 1\n") + kAxisBase +
                                    "line 32 39 50.5 39 #00F000\n"
                                    "line 32 40 50.5 40 #00DD00\n"
                                    "line 32 41 50.5 41 #00CA00\n"
                                    "line 32 42 50.5 42 #00B700\n"
                                    "line 32 43 50.5 43 #00A400\n"
                                    "line 32 39 32 44 #808080\n"
                                    "line 50.5 39 50.5 44 #808080\n"
                                    "line 59.75 39 69 39 #00F000\n"
                                    "line 59.75 40 69 40 #00DD00\n"
                                    "line 59.75 41 69 41 #00CA00\n"
                                    "line 59.75 42 69 42 #00B700\n"
                                    "line 59.75 43 69 43 #00A400\n"
                                    "line 59.75 39 59.75 44 #808080\n"
                                    "line 69 39 69 44 #808080\n");
}

TEST(CalendarPainting, TheTimeAxisIsThatOfTheDayAndStandsBehindItsType) {
    cCalendarBench bench;
    cTimeSchedule schedule;
    testing::Load(schedule, cContent().Day(1, {{0, 1440}}));
    bench.m_Calendar.m_ShowTimeAxis = True16;
    bench.m_Calendar.m_AssociatedTimeSchedule = &schedule;
    bench.SetValue(2026, 6, 1, 8);
    bench.Show(2026, 6);
    EXPECT_EQ(bench.DateBox(1),
              std::string("box 32 22 69 44 #F0F0F0\nprint 32 22 1\nimage 77 1 51.75 22\n") + kAxisBase);
    EXPECT_NE(bench.DateBox(2).find("line 72 39 109 39 #00F000\n"), std::string::npos);
    EXPECT_EQ(bench.DateBox(8).find("#00F000"), std::string::npos);
}

TEST(CalendarPainting, TheTimeAxisShortensTheBands) {
    cCalendarBench bench;
    bench.m_Calendar.m_ShowTimeAxis = True16;
    bench.Show(2026, 6);
    EXPECT_EQ(bench.DateBox(7),
              "box 272 22 309 44 #F0F0F0\n" + Band(272, 22, 16, 192, true) + "print 272 22 7\n");
}

TEST(CalendarPainting, WithoutASwitchOrAScheduleThereIsNoTimeAxis) {
    cCalendarBench bench;
    cTimeSchedule schedule;
    schedule.SetDefaultPeriod();
    bench.m_Calendar.m_AssociatedTimeSchedule = &schedule;
    bench.Show(2026, 6);
    EXPECT_EQ(bench.DateBox(1).find("#808080"), std::string::npos);
    bench.m_Calendar.m_ShowTimeAxis = True16;
    bench.m_Calendar.m_AssociatedTimeSchedule = nullptr;
    EXPECT_EQ(bench.DateBox(1).find("#808080"), std::string::npos);
}

TEST(CalendarPainting, TheMonthIsFrameHeadingsNameWeekNumbersAndDays) {
    cCalendarBench bench;
    bench.Show(2026, 1);
    bench.m_Calendar.Paint(bench.m_Container, &bench.m_Paint);
    const std::string painted = bench.m_Transcript.Take();
    std::string expected;
    for (const auto& [moved, colour] :
         std::vector<std::pair<int, std::string>>{{1, "#FFFFFF"}, {0, "#000000"}}) {
        for (const int x : {30, 70, 110, 150, 190, 230, 270, 310}) {
            expected += "line" +
                        testing::Numbers({x + 1.0 * moved, 3.0 + moved, x + 1.0 * moved, 170.0 + moved}) +
                        " " + colour + "\n";
        }
        for (const int y : {20, 45, 70, 95, 120, 145, 170, 3}) {
            expected += "line" +
                        testing::Numbers({30.0 + moved, y + 1.0 * moved, 310.0 + moved, y + 1.0 * moved}) +
                        " " + colour + "\n";
        }
    }
    // Three characters of 6 in a column of 40, over the grid.
    for (const int x : {41, 81, 121, 161, 201, 241, 281})
        expected += "print " + std::to_string(x) + " 5 h61\n";
    expected += "month January 2026\n";
    expected +=
        "print 22 26 1\nprint 22 51 2\nprint 22 76 3\nprint 22 101 4\nprint 22 126 5\nprint 22 151 6\n";
    for (int day = 1; day <= 31; ++day) expected += bench.DateBox(day);
    EXPECT_EQ(painted, expected);
}

std::string WeekNumbers(int year, int month, int firstDayOfWeek, eFirstWeek rule) {
    cCalendarBench bench;
    bench.m_Forms.firstDayOfWeek = firstDayOfWeek;
    bench.m_Forms.firstWeekOfYear = rule;
    bench.Show(year, month);
    bench.m_Calendar.Paint(bench.m_Container, &bench.m_Paint);
    const std::string text = bench.m_Transcript.Take();
    std::istringstream lines(text.substr(text.find("month ")));
    std::string line, numbers;
    std::getline(lines, line);
    for (int row = 0; row < 6; ++row) {
        std::getline(lines, line);
        numbers += line + ";";
    }
    return numbers;
}

TEST(CalendarPainting, WeekNumbersGoOnBehindTheMonthsEnd) {
    EXPECT_EQ(WeekNumbers(2026, 12, 2, eFirstWeek::FirstFourDays),
              "print 16 26 49;print 16 51 50;print 16 76 51;print 16 101 52;print 16 126 53;print 22 151 1;");
}

// A row counts by the day that stands a whole number of weeks behind the first, here its Sunday.
TEST(CalendarPainting, ARowsWeekIsThatOfTheFirstsWeekday) {
    EXPECT_EQ(WeekNumbers(2026, 2, 2, eFirstWeek::FirstFourDays),
              "print 22 26 5;print 22 51 6;print 22 76 7;print 22 101 8;print 22 126 9;print 16 151 10;");
}

TEST(CalendarPainting, WeekNumbersFollowTheDesktopsRules) {
    // 1 January 2027 is a Friday: by days of the year its week is the last of 2026.
    EXPECT_EQ(WeekNumbers(2027, 1, 2, eFirstWeek::FirstFourDays),
              "print 16 26 53;print 22 51 1;print 22 76 2;print 22 101 3;print 22 126 4;print 22 151 5;");
    EXPECT_EQ(WeekNumbers(2027, 1, 1, eFirstWeek::FirstOfJanuary),
              "print 22 26 1;print 22 51 2;print 22 76 3;print 22 101 4;print 22 126 5;print 22 151 6;");
}

TEST(CalendarPainting, AMonthBehindTheTableIsABoundsFailure) {
    cCalendarBench bench;
    bench.Show(2040, 1);
    EXPECT_EQ(NumberOf([&] { bench.m_Calendar.Paint(bench.m_Container, &bench.m_Paint); }),
              eFailure::OutOfBounds);
}

TEST(CalendarPainting, WithoutAPaintObjectNothingIsDrawn) {
    cCalendarBench bench;
    bench.Show(2026, 6);
    bench.m_Container.m_Selected = 9;
    bench.m_Calendar.Paint(bench.m_Container, nullptr);
    bench.m_Calendar.MouseDown(bench.m_Container, nullptr, 1, 0, 50, 32);
    bench.m_Calendar.MouseMove(bench.m_Container, nullptr, 1, 0, 90, 32);
    EXPECT_EQ(bench.Value(2026, 6, 2), 8);
    EXPECT_EQ(bench.m_Transcript.Text(), "");
}

// --- dates to day types

TEST(CalendarResolving, ADateWithoutATypeFollowsItsWeekday) {
    cCalendarBench bench;
    const cTimeSchedule schedule;
    EXPECT_EQ(bench.m_Calendar.ResolveDayType(0, schedule), 5);
    EXPECT_EQ(bench.m_Calendar.ResolveDayType(cCalendarBench::Index(2026, 3, 15), schedule), 6);
    EXPECT_EQ(bench.m_Calendar.ResolveDayType(cCalendarBench::Index(2026, 3, 16), schedule), 0);
    EXPECT_EQ(bench.m_Calendar.ResolveDayType(14609, schedule), 5);
}

TEST(CalendarResolving, AWeekdayThatIsNotInUseStaysThatWeekdayWithoutPeriods) {
    cCalendarBench bench;
    cTimeSchedule schedule;
    testing::Load(schedule, cContent().Day(0, {{0, 720}}).Day(1, {{0, 1440}}));
    schedule.SetActive(1, False16);
    bench.m_Calendar.m_ShowTimeAxis = True16;
    bench.m_Calendar.m_AssociatedTimeSchedule = &schedule;
    bench.Show(2026, 6);
    EXPECT_EQ(bench.m_Calendar.ResolveDayType(cCalendarBench::Index(2026, 6, 2), schedule), 1);
    EXPECT_EQ(bench.DateBox(2).find("#00F000"), std::string::npos);
}

TEST(CalendarResolving, ADateOfAnActiveTypeFollowsTheType) {
    cCalendarBench bench;
    cTimeSchedule schedule;
    schedule.SetActive(22, True16);
    bench.SetValue(2026, 3, 16, 23);
    bench.SetValue(2026, 3, 17, 7);
    EXPECT_EQ(bench.m_Calendar.ResolveDayType(cCalendarBench::Index(2026, 3, 16), schedule), 22);
    EXPECT_EQ(bench.m_Calendar.ResolveDayType(cCalendarBench::Index(2026, 3, 17), schedule), 6);
}

TEST(CalendarResolving, ADateOfAnInactiveTypeShowsThePeriodsOfItsWeekday) {
    cCalendarBench bench;
    cTimeSchedule schedule;
    testing::Load(schedule, cContent().Day(0, {{0, 720}}).Day(8, {{0, 1440}}));
    bench.m_Calendar.m_ShowTimeAxis = True16;
    bench.m_Calendar.m_AssociatedTimeSchedule = &schedule;
    bench.Show(2026, 6);
    const std::int32_t monday = cCalendarBench::Index(2026, 6, 1);
    bench.m_Calendar.SetDayType(monday, 9);
    EXPECT_NE(bench.DateBox(1).find("line 32 39 69 39 #00F000\n"), std::string::npos);
    schedule.SetActive(8, False16);
    EXPECT_EQ(bench.m_Calendar.ResolveDayType(monday, schedule), 0);
    EXPECT_NE(bench.DateBox(1).find("line 32 39 50.5 39 #00F000\n"), std::string::npos);
}

}  // namespace
}  // namespace vigrel::testing
