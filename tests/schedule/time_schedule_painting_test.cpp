#include <gtest/gtest.h>

#include "schedule/schedule_bench.h"

namespace vigrel::testing {
namespace {

// Fifteen lines of falling colours, written down one by one.
std::string Gradient(int x1, int x2, int y0, const std::vector<std::string>& colours) {
    std::string text;
    for (std::size_t i = 0; i < colours.size(); ++i) {
        const std::string y = std::to_string(y0 + static_cast<int>(i));
        text += "line " + std::to_string(x1) + " " + y + " " + std::to_string(x2) + " " + y + " #" +
                colours[i] + "\n";
    }
    return text;
}

const std::vector<std::string> kAxisGreys{"DCDCDC", "D5D5D5", "CECECE", "C7C7C7", "C0C0C0",
                                          "B9B9B9", "B2B2B2", "ABABAB", "A4A4A4", "9D9D9D",
                                          "969696", "8F8F8F", "888888", "818181", "7A7A7A"};
const std::vector<std::string> kPeriodGreens{"00F000", "00E900", "00E200", "00DB00", "00D400",
                                             "00CD00", "00C600", "00BF00", "00B800", "00B100",
                                             "00AA00", "00A300", "009C00", "009500", "008E00"};
const std::vector<std::string> kSelectedGreens{"40FF40", "40FF40", "40FF40", "40FF40", "40FF40",
                                               "40FF40", "40FF40", "40FF40", "40F840", "40F140",
                                               "40EA40", "40E340", "40DC40", "40D540", "40CE40"};

std::string Axis(int y0) {
    return Gradient(30, 318, y0, kAxisGreys);
}

std::string Ends(int x1, int x2, int y0) {
    const std::string from = std::to_string(y0), to = std::to_string(y0 + 15);
    std::string text;
    for (const int x : {x1, x2}) {
        text += "line " + std::to_string(x) + " " + from + " " + std::to_string(x) + " " + to + " #000000\n";
    }
    return text;
}

std::string Painted(cScheduleBench& bench) {
    bench.m_Transcript.Take();
    bench.m_Schedule.Paint(bench.m_Container, &bench.m_Paint);
    return bench.m_Transcript.Take();
}

// What is painted from a row's first background line up to the next row's.
std::string Row(const std::string& painted, int row) {
    const auto begin = [&painted](int r) {
        return painted.find("line 30 " + std::to_string(r * 25 + 4) + " 318 " + std::to_string(r * 25 + 4));
    };
    return painted.substr(begin(row), begin(row + 1) - begin(row));
}

TEST(SchedulePainting, LinesComeFirstThenTheRows) {
    cScheduleBench bench;
    std::string expected;
    for (const int x : {30,  42,  54,  66,  78,  90,  102, 114, 126, 138, 150, 162, 174,
                        186, 198, 210, 222, 234, 246, 258, 270, 282, 294, 306, 318}) {
        expected += "line " + std::to_string(x) + " 0 " + std::to_string(x) + " 175 #949494\n";
    }
    for (const int y : {24, 49, 74, 99, 124, 149, 174}) {
        const std::string black = std::to_string(y), white = std::to_string(y + 1);
        expected += "line 30 " + black + " 318 " + black + " #000000\n";
        expected += "line 30 " + white + " 318 " + white + " #FFFFFF\n";
    }
    const std::vector<std::string> names{"16 5 Mo",   "16 30 Tu",  "16 55 We", "16 80 Th",
                                         "16 105 Fr", "16 130 Sa", "16 155 Su"};
    for (int row = 0; row < 7; ++row) {
        expected += Axis(row * 25 + 4) + "print " + names[static_cast<std::size_t>(row)] + "\n";
    }
    EXPECT_EQ(Painted(bench), expected);
}

TEST(SchedulePainting, APeriodIsAGreenBarBetweenTwoBlackLines) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}));
    // 420 / 5 = 84; 961 / 5 = 192.2.
    EXPECT_EQ(Row(Painted(bench), 0),
              Axis(4) + Gradient(114, 222, 4, kPeriodGreens) + Ends(114, 222, 4) + "print 16 5 Mo\n");
}

TEST(SchedulePainting, EndsAreRoundedToTheNearestUnit) {
    cScheduleBench bench(cContent().Day(0, {{3, 6}, {600, 662}, {1438, 1440}}));
    // 3 / 5 = 0.6; 7 / 5 = 1.4; 663 / 5 = 132.6, where 662 / 5 = 132.4; 1438 / 5 = 287.6; 1441 / 5 = 288.2.
    EXPECT_EQ(Row(Painted(bench), 0), Axis(4) + Gradient(31, 31, 4, kPeriodGreens) + Ends(31, 31, 4) +
                                          Gradient(150, 163, 4, kPeriodGreens) + Ends(150, 163, 4) +
                                          Gradient(318, 318, 4, kPeriodGreens) + Ends(318, 318, 4) +
                                          "print 16 5 Mo\n");
}

TEST(SchedulePainting, TheSelectedPeriodIsLighter) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}));
    bench.Click(0, 600);
    EXPECT_EQ(Row(Painted(bench), 0),
              Axis(4) + Gradient(114, 222, 4, kSelectedGreens) + Ends(114, 222, 4) + "print 16 5 Mo\n");
}

TEST(SchedulePainting, LongNamesAreCentredInTheAxisWhenTheContainerWantsThem) {
    cScheduleBench bench;
    bench.m_Container.m_ViewDayType = true;
    // 9 characters of 6: 30 + (288 - 54) / 2.
    EXPECT_EQ(Row(Painted(bench), 2), Axis(54) + "print 16 55 We\nprint 147 55 Wednesday\n");
}

TEST(SchedulePainting, SpecialDayTypesShowTheirImageLeftOfTheAxis) {
    cContent content = cContent().Day(7, {}).Day(22, {});
    content.useCalendar = true;
    cScheduleBench bench(content);
    bench.m_Container.m_ViewDayType = true;
    const std::string painted = Painted(bench);
    EXPECT_EQ(Row(painted, 7), Axis(179) + "image 77 1 12 178.5\n");
    EXPECT_NE(painted.find(Axis(204) + "image 77 16 12 203.5\n"), std::string::npos);
}

TEST(SchedulePainting, AGroupedDayHasATriangleInItsUpperRightCorner) {
    cScheduleBench bench(cContent().Grouped({1}));
    EXPECT_EQ(Row(Painted(bench), 1), Axis(29) +
                                          "print 16 30 Tu\n"
                                          "line 317 29 312 29 #FFFFFF\n"
                                          "line 317 30 313 30 #F5F5F5\n"
                                          "line 317 31 314 31 #EBEBEB\n"
                                          "line 317 32 315 32 #E1E1E1\n"
                                          "line 317 33 316 33 #D7D7D7\n");
}

TEST(SchedulePainting, AnInactiveDayTypeHasNoRowAndMovesTheOthersUp) {
    cContent content;
    content.days[1].active = false;
    cScheduleBench bench(content);
    const std::string painted = Painted(bench);
    EXPECT_EQ(Row(painted, 1), Axis(29) + "print 16 30 We\n");
    EXPECT_EQ(painted.find("Tu"), std::string::npos);
}

TEST(SchedulePainting, ADayOfTheGroupWithoutARowIsNotPaintedOverAnother) {
    cContent content = cContent().Day(0, {{420, 960}}).Grouped({0, 1});
    content.days[1].active = false;
    cScheduleBench bench(content);
    bench.Click(0, 1300);
    EXPECT_EQ(bench.m_Transcript.Text().find(" 29 "), std::string::npos);
}

TEST(SchedulePainting, ADragPaintsItsRowAgainAtEachMove) {
    cScheduleBench bench(cContent().Day(2, {{420, 960}}));
    bench.Down(2, 960);
    bench.m_Transcript.Take();
    bench.Move(2, 1200);
    // 30 + 1201 / 5 = 270.2.
    EXPECT_EQ(bench.m_Transcript.Text(),
              Axis(54) + Gradient(114, 270, 54, kSelectedGreens) + Ends(114, 270, 54) + "print 16 55 We\n");
}

TEST(SchedulePainting, ALeftPressPaintsThePreviouslySelectedRowWithoutItsHighlight) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}));
    bench.Click(0, 600);
    bench.m_Transcript.Take();
    bench.Down(3, 600);
    EXPECT_EQ(bench.m_Transcript.Text(),
              Axis(4) + Gradient(114, 222, 4, kPeriodGreens) + Ends(114, 222, 4) + "print 16 5 Mo\n");
}

// The rows that were painted, in their order.
std::string RowsOf(const std::string& painted) {
    std::string rows;
    std::istringstream lines(painted);
    for (std::string line; std::getline(lines, line);) {
        for (int row = 0; row < 7; ++row) {
            const std::string y = std::to_string(row * 25 + 4);
            if (line == "line 30 " + y + " 318 " + y + " #DCDCDC") rows += std::to_string(row);
        }
    }
    return rows;
}

TEST(SchedulePainting, AReleasePaintsTheGroupAndThenTheDayItself) {
    cScheduleBench bench(cContent().Day(2, {{420, 960}}).Grouped({0, 2, 4}));
    bench.Down(2, 960);
    bench.m_Transcript.Take();
    bench.Up();
    EXPECT_EQ(RowsOf(bench.m_Transcript.Text()), "042");
}

TEST(SchedulePainting, ADragPaintsItsOwnRowThoughAnotherWasChosenMeanwhile) {
    cScheduleBench bench(cContent().Day(1, {{420, 960}}));
    bench.Play("left 1 960;right 4 600");
    bench.m_Transcript.Take();
    bench.Move(4, 1000);
    EXPECT_EQ(RowsOf(bench.m_Transcript.Take()), "1");
    bench.Up();
    EXPECT_EQ(RowsOf(bench.m_Transcript.Take()), "1");
}

// What is painted last of a row is what a painting of everything shows there.
TEST(SchedulePainting, WhatIsPaintedIsMergedAlready) {
    const std::vector<std::pair<int, int>> touching{{100, 200}, {200, 300}};
    const auto expectWhole = [](cScheduleBench& bench, int row) {
        const std::string y = std::to_string(row * 25 + 4);
        const std::string painted = bench.m_Transcript.Take();
        const std::size_t last = painted.rfind("line 30 " + y + " 318 " + y + " ");
        ASSERT_NE(last, std::string::npos) << row;
        const std::string whole = Row(Painted(bench), row);
        EXPECT_EQ(painted.substr(last, whole.size()), whole) << row;
    };
    cScheduleBench drag(cContent().Day(1, {{100, 200}, {300, 400}}).Grouped({1, 3}));
    drag.Play("left 1 200;move 1 350;up");
    expectWhole(drag, 1);
    drag.Play("left 1 600;move 1 400;up");
    expectWhole(drag, 3);

    cScheduleBench typed(cContent().Day(1, {{100, 200}, {300, 400}}));
    typed.Click(1, 150);
    typed.m_Container.m_Stop = "06:00";
    typed.m_Schedule.ExtractTimeFromTextboxes(typed.m_Container, &typed.m_Paint);
    expectWhole(typed, 1);

    cScheduleBench paste(cContent().Day(1, touching));
    paste.Down(1, 600, 2);
    paste.m_Schedule.Copy();
    paste.Down(4, 600, 2);
    paste.m_Schedule.Paste(paste.m_Container, &paste.m_Paint);
    expectWhole(paste, 4);

    cScheduleBench erased(cContent().Day(1, {{100, 200}, {200, 300}, {500, 600}}));
    erased.Down(1, 550);
    erased.m_Schedule.Delete(erased.m_Container, &erased.m_Paint);
    expectWhole(erased, 1);

    cScheduleBench joins(cContent().Day(1, touching).Grouped({1}));
    joins.Down(2, 600, 2);
    joins.m_Schedule.Group(joins.m_Container, &joins.m_Paint);
    expectWhole(joins, 2);
}

TEST(SchedulePainting, TypedTimesPaintTheDayAndThenTheGroup) {
    cScheduleBench bench(cContent().Day(2, {{420, 960}}).Grouped({0, 2, 4}));
    bench.Click(2, 600);
    bench.m_Transcript.Take();
    bench.m_Schedule.ExtractTimeFromTextboxes(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(RowsOf(bench.m_Transcript.Text()), "204");
}

TEST(SchedulePainting, EntriesPaintTheRowsThatTheyChange) {
    using Operation = void (cTimeSchedule::*)(cTimeScheduleContainer&, cPaintObject*);
    const auto rows = [](Operation operation) {
        cScheduleBench bench(cContent().Day(2, {{420, 960}}).Grouped({0, 2, 4}));
        bench.Down(5, 600, 2);
        bench.m_Schedule.Copy();
        bench.Down(2, 600, 2);
        bench.m_Transcript.Take();
        (bench.m_Schedule.*operation)(bench.m_Container, &bench.m_Paint);
        return RowsOf(bench.m_Transcript.Text());
    };
    EXPECT_EQ(rows(&cTimeSchedule::Delete), "2");
    EXPECT_EQ(rows(&cTimeSchedule::SetTimeFrom00to24), "2");
    EXPECT_EQ(rows(&cTimeSchedule::Paste), "2");
    EXPECT_EQ(rows(&cTimeSchedule::Group), "2");
    EXPECT_EQ(rows(&cTimeSchedule::InvertTimeSchedule), "204");
    EXPECT_EQ(rows(&cTimeSchedule::GroupMonFri),
              "01234"
              "1234"
              "0123456");
}

TEST(SchedulePainting, ADayThatJoinsAGroupIsPainted) {
    cScheduleBench bench(cContent().Day(2, {{420, 960}}).Grouped({2}));
    bench.Down(5, 600, 2);
    bench.m_Transcript.Take();
    bench.m_Schedule.Group(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(RowsOf(bench.m_Transcript.Text()), "5");
    EXPECT_NE(bench.m_Transcript.Text().find("line 317 129 312 129 #FFFFFF\n"), std::string::npos);
}

TEST(SchedulePainting, GroupingMondayToFridayPaintsRowsThenGroupThenAll) {
    cScheduleBench bench;
    bench.m_Transcript.Take();
    bench.m_Schedule.GroupMonFri(bench.m_Container, &bench.m_Paint);
    const std::string text = bench.m_Transcript.Take();
    bench.m_Schedule.Paint(bench.m_Container, &bench.m_Paint);
    const std::string whole = bench.m_Transcript.Take();
    ASSERT_GT(text.size(), whole.size());
    EXPECT_EQ(text.substr(text.size() - whole.size()), whole);
    std::string before;
    for (const int row : {0, 1, 2, 3, 4, 1, 2, 3, 4}) before += Row(whole, row);
    EXPECT_EQ(text.substr(0, text.size() - whole.size()), before);
}

TEST(SchedulePainting, TheMarkerIsANarrowingPointerWithAGreyLine) {
    cScheduleBench bench;
    bench.m_Schedule.PaintMarker(&bench.m_Paint, 100, 2);
    EXPECT_EQ(bench.m_Transcript.Text(),
              "line 126 65 135 65 #000000\n"
              "line 127 66 134 66 #000000\n"
              "line 128 67 133 67 #000000\n"
              "line 129 68 132 68 #000000\n"
              "line 130 69 131 69 #000000\n"
              "line 130 65 130 70 #949494\n");
}

TEST(SchedulePainting, WithoutAPaintObjectThereIsNoMarker) {
    cScheduleBench bench;
    bench.m_Schedule.PaintMarker(nullptr, 100, 2);
    EXPECT_EQ(bench.m_Transcript.Text(), "");
}

// --- layout

TEST(ScheduleLayout, ScrollBarAndViewAreLaidOutFromTheFrame) {
    cContent content;
    for (std::size_t day = 7; day < 12; ++day) content.Day(day, {});
    content.useCalendar = true;
    cScheduleBench bench(content);
    bench.Recalculate();
    EXPECT_EQ(bench.m_Transcript.Text(),
              "scroll top 0\n"
              "scroll left 323\n"
              "scroll height 179\n"
              "scroll max 20\n"
              "view left 0\n"
              "view top 0\n"
              "view width 323\n"
              "view height 304\n");
    EXPECT_EQ(bench.m_Schedule.m_NumberOfAxisToPaint, 12);
}

TEST(ScheduleLayout, WithoutTheCalendarThereAreSevenRowsWhateverTheFlagsSay) {
    cContent content = cContent().Day(9, {}).Day(12, {});
    cScheduleBench bench(content);
    EXPECT_EQ(bench.m_Schedule.m_NumberOfAxisToPaint, 7);
    for (std::int16_t day = 0; day < 23; ++day) bench.m_Schedule.SetActive(day, False16);
    bench.Recalculate();
    EXPECT_EQ(bench.m_Schedule.m_NumberOfAxisToPaint, 7);
}

TEST(ScheduleLayout, WithTheCalendarFewerRowsGiveANegativeMaximum) {
    cContent content;
    content.days[6].active = false;
    content.useCalendar = true;
    cScheduleBench bench(content);
    bench.Recalculate();
    EXPECT_NE(bench.m_Transcript.Text().find("scroll max -4\n"), std::string::npos);
}

TEST(ScheduleLayout, EachDayTypeIsSavedWithTheNumberOfActiveOnesBeforeIt) {
    cContent content = cContent().Day(9, {}).Day(22, {});
    content.days[1].active = false;
    cScheduleBench bench(content);
    const int rows[23] = {0, 1, 1, 2, 3, 4, 5, 6, 6, 6, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7};
    for (std::size_t day = 0; day < 23; ++day) content.days[day].axisIndex = rows[day];
    EXPECT_EQ(testing::Saved(bench.m_Schedule), content.Bytes());
}

TEST(ScheduleLayout, TheContainersPaintObjectIsSetOnceOnly) {
    testing::cTranscript transcript;
    testing::cFakePaintObject first(transcript), second(transcript);
    testing::cFakeScheduleContainer container(transcript);
    cTimeSchedule schedule;
    cPaintObject* stored = nullptr;
    schedule.RecalculateAndPrepareToPaint(container, stored, &first);
    EXPECT_EQ(stored, &first);
    schedule.RecalculateAndPrepareToPaint(container, stored, &second);
    EXPECT_EQ(stored, &first);
}

}  // namespace
}  // namespace vigrel::testing
