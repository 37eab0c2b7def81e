#include <gtest/gtest.h>

#include "schedule/schedule_bench.h"

namespace vigrel::testing {
namespace {

// --- mouse sequences: what Monday holds, what the mouse does in its row, what comes of it.

struct cSequence {
    const char* name;
    std::vector<std::pair<int, int>> monday;
    const char* script;
    const char* periods;
    const char* selected;
    const char* fields;
};

class MouseSequence : public ::testing::TestWithParam<cSequence> {};

TEST_P(MouseSequence, EndsAsTold) {
    const cSequence& sequence = GetParam();
    cScheduleBench bench(cContent().Day(0, sequence.monday));
    bench.Play(sequence.script);
    EXPECT_EQ(Periods(bench.m_Schedule, 0), sequence.periods);
    EXPECT_EQ(bench.Selected(), sequence.selected);
    EXPECT_EQ(bench.Fields(), sequence.fields);
}

const cSequence kSequences[] = {
    {"AMoveOfThreeMinutesCreatesNothing", {{420, 960}}, "left 0 980;move 0 983;up", "420-960", "none", "|"},
    {"AMoveOfFiveMinutesCreatesNothing", {}, "left 0 980;move 0 985;up", "", "none", "|"},
    {"AMoveOfSixMinutesCreatesAPeriodFromThePress",
     {{420, 960}},
     "left 0 980;move 0 986;up",
     "420-960 980-986",
     "980-986",
     "16:20|16:26"},
    {"AMoveToTheLeftCreatesAPeriodUpToThePress",
     {},
     "left 0 600;move 0 540;up",
     "540-600",
     "540-600",
     "09:00|10:00"},
    {"ANewPeriodFollowsThePointerToBothSidesOfThePress",
     {},
     "left 0 600;move 0 700;move 0 500;up",
     "500-600",
     "500-600",
     "08:20|10:00"},
    {"ANewPeriodKeepsFollowingWithinTheSmallestDrag",
     {},
     "left 0 600;move 0 700;move 0 602;up",
     "600-602",
     "600-602",
     "10:00|10:02"},
    {"APressFourteenMinutesBeforeAStartGrabsIt",
     {{420, 960}},
     "left 0 406;move 0 300;up",
     "300-960",
     "none",
     "05:00|16:00"},
    {"APressFifteenMinutesBeforeAStartDoesNotGrabIt",
     {{420, 960}},
     "left 0 405;move 0 300;up",
     "420-960 300-405",
     "300-405",
     "05:00|06:45"},
    {"APressFourteenMinutesBehindAStopGrabsIt",
     {{420, 960}},
     "left 0 974;move 0 1000;up",
     "420-1000",
     "none",
     "07:00|16:40"},
    {"APressFifteenMinutesBehindAStopDoesNotGrabIt",
     {{420, 960}},
     "left 0 975;move 0 1000;up",
     "420-960 975-1000",
     "975-1000",
     "16:15|16:40"},
    {"AGrabInsideThePeriodSelectsItToo",
     {{420, 960}},
     "left 0 430;move 0 500;up",
     "500-960",
     "500-960",
     "08:20|16:00"},
    {"AGrabThatDoesNotMoveLeavesThePeriod",
     {{420, 960}},
     "left 0 430;up",
     "420-960",
     "420-960",
     "07:00|16:00"},
    {"OfAShortPeriodTheStartIsGrabbedFirst",
     {{600, 610}},
     "left 0 605;move 0 590;up",
     "590-610",
     "590-610",
     "09:50|10:10"},
    {"TheFirstPeriodOfTheListIsGrabbed",
     {{600, 700}, {500, 590}},
     "left 0 595;move 0 650;up",
     "650-700 500-590",
     "none",
     "10:50|11:40"},
    {"APressInTheMiddleSelectsAndAMoveAddsAPeriodThatIsMerged",
     {{420, 960}},
     "left 0 600;move 0 700;up",
     "420-960",
     "420-960",
     "10:00|11:40"},
    {"AStartDraggedPastTheStopGoesOnAsAStop",
     {{420, 480}},
     "left 0 420;move 0 600;move 0 700;up",
     "480-700",
     "480-700",
     "08:00|11:40"},
    {"AStopDraggedPastTheStartGoesOnAsAStart",
     {{420, 480}},
     "left 0 480;move 0 300;move 0 200;up",
     "200-420",
     "200-420",
     "03:20|07:00"},
    {"ADragPastTheOtherEndAndBackIsAsIfItHadNotPassed",
     {{420, 480}},
     "left 0 420;move 0 600;move 0 400;up",
     "400-480",
     "400-480",
     "06:40|08:00"},
    {"ADragOverANeighbourEndsMergedAndTheSelectionStaysValid",
     {{100, 200}, {300, 400}},
     "left 0 200;move 0 350;up",
     "100-400",
     "100-400",
     "01:40|05:50"},
    {"ANewPeriodThatCoversAnotherStaysSelected",
     {{300, 400}},
     "left 0 200;move 0 500;up",
     "200-500",
     "200-500",
     "03:20|08:20"},
    {"APeriodSwallowedByItsNeighbourHandsItsSelectionOn",
     {{100, 400}, {500, 600}},
     "left 0 510;move 0 200;up",
     "100-600",
     "100-600",
     "03:20|10:00"},
    {"ANeighbourIsNoObstacleWhileDragging",
     {{100, 200}, {300, 400}},
     "left 0 200;move 0 350",
     "100-350 300-400",
     "100-350",
     "01:40|05:50"},
    {"APressAtAnEndBelongsToThePeriod", {{420, 960}}, "left 0 960;up", "420-960", "420-960", "07:00|16:00"},
    {"APressInFreeSpaceClearsSelectionAndFields",
     {{420, 960}},
     "left 0 600;up;left 0 1200;up",
     "420-960",
     "none",
     "|"},
    {"WithoutAPressAMoveChangesNothing", {{420, 960}}, "move 0 425;move 0 500;up", "420-960", "none", "?|?"},
    {"AMoveBehindTheReleaseChangesNothing",
     {{420, 960}},
     "left 0 420;up;move 0 500",
     "420-960",
     "420-960",
     "07:00|16:00"},
    {"TheWholeAxisCanBeCovered", {}, "left 0 0;move 0 1440;up", "0-1440", "0-1440", "00:00|24:00"},
    {"AMoveOutOfTheAxisIsIgnored",
     {},
     "left 0 600;move 0 700;move 0 1500;move 0 -10;up",
     "600-700",
     "600-700",
     "10:00|11:40"},
    {"TheRowUnderTheMovingPointerPlaysNoPart",
     {},
     "left 0 600;move 3 700;up",
     "600-700",
     "600-700",
     "10:00|11:40"},
};

INSTANTIATE_TEST_SUITE_P(Schedule, MouseSequence, ::testing::ValuesIn(kSequences),
                         [](const auto& sequence) { return sequence.param.name; });

// --- merging, seen after a click into free space

struct cMerge {
    const char* name;
    std::vector<std::pair<int, int>> before;
    const char* after;
};

class Merging : public ::testing::TestWithParam<cMerge> {};

TEST_P(Merging, JoinsWhatOverlapsOrTouches) {
    cScheduleBench bench(cContent().Day(0, GetParam().before));
    bench.Click(0, 1300);
    EXPECT_EQ(Periods(bench.m_Schedule, 0), GetParam().after);
}

const cMerge kMerges[] = {
    {"APeriodThatFillsTheGapJoinsAllThree", {{100, 200}, {300, 400}, {200, 300}}, "100-400"},
    {"EightToNineAndNineToTenAreOne", {{480, 540}, {540, 600}}, "480-600"},
    {"TheLaterOneMayStandFirst", {{540, 600}, {480, 540}}, "480-600"},
    {"AMinuteBetweenKeepsThemTwo", {{100, 200}, {201, 300}}, "100-200 201-300"},
    {"APeriodInsideAnotherDisappears", {{100, 400}, {200, 300}}, "100-400"},
    {"APeriodInsideALaterOneOfTheListDisappears", {{200, 300}, {100, 400}}, "100-400"},
    {"OfTwoEqualOnesOneStays", {{100, 200}, {100, 200}}, "100-200"},
    {"TheListIsNotSorted", {{500, 600}, {100, 200}, {550, 700}}, "500-700 100-200"},
    {"EveryPeriodHasItsTurnBehindOneThatWent",
     {{5, 6}, {0, 10}, {100, 110}, {500, 600}, {100, 120}},
     "0-10 100-120 500-600"},
    {"TheOneThatBeginsFirstKeepsItsPlace", {{540, 600}, {300, 310}, {480, 540}}, "300-310 480-600"},
    {"AnEmptyPeriodAtAnEndDisappears", {{960, 1200}, {1200, 1200}}, "960-1200"},
    {"AnEmptyPeriodByItselfStays", {{100, 200}, {1440, 1440}}, "100-200 1440-1440"},
    {"AChainIsJoinedToTheEnd", {{1, 2}, {3, 4}, {5, 6}, {7, 8}, {2, 7}}, "1-8"},
    {"AnEmptyListStaysEmpty", {}, ""},
};

INSTANTIATE_TEST_SUITE_P(Schedule, Merging, ::testing::ValuesIn(kMerges),
                         [](const auto& merge) { return merge.param.name; });

// --- the rest

TEST(ScheduleMouse, APressSelectsTheDayTypeOfTheRow) {
    cScheduleBench bench;
    bench.Click(4, 600);
    EXPECT_EQ(bench.m_Schedule.SelectedDayType(), 4);
}

TEST(ScheduleMouse, RowsAreCountedOverTheActiveDayTypesAlone) {
    cContent content;
    content.days[1].active = false;
    content.Day(9, {});
    content.useCalendar = true;
    cScheduleBench bench(content);
    bench.Click(1, 600);
    EXPECT_EQ(bench.m_Schedule.SelectedDayType(), 2);
    bench.Click(6, 600);
    EXPECT_EQ(bench.m_Schedule.SelectedDayType(), 9);
}

TEST(ScheduleMouse, ARowWithoutAnActiveDayTypeIsRefused) {
    cContent content;
    content.days[6].active = false;
    cScheduleBench bench(content);
    ASSERT_EQ(bench.m_Schedule.m_NumberOfAxisToPaint, 7);
    bench.Click(6, 600);
    EXPECT_EQ(bench.m_Schedule.SelectedDayType(), -1);
}

TEST(ScheduleMouse, ThePositionIsRoundedToARow) {
    // From half a row above its bar on, a position belongs to the row: Tuesday begins at 16.5.
    for (const auto& [y, dayType] : std::vector<std::pair<float, int>>{
             {5, 0}, {16, 0}, {16.5f, 0}, {17, 1}, {25, 1}, {41, 1}, {41.5f, 2}, {166, 6}}) {
        cScheduleBench bench;
        bench.m_Schedule.MouseDown(bench.m_Container, &bench.m_Paint, 1, 0, 100, y);
        EXPECT_EQ(bench.m_Schedule.SelectedDayType(), dayType) << y;
    }
}

TEST(ScheduleMouse, APositionOutsideTheAxisIsRefusedAndLeavesTheTimeField) {
    for (const auto& [x, y] : std::vector<std::pair<float, float>>{
             {100, 4}, {100, 3}, {100, 175}, {100, 167}, {29.9f, 10}, {319, 10}, {400, 10}, {100, -5}}) {
        cScheduleBench bench;
        bench.m_Schedule.MouseDown(bench.m_Container, &bench.m_Paint, 1, 0, x, y);
        EXPECT_EQ(bench.m_Schedule.SelectedDayType(), -1) << x << " " << y;
    }
}

TEST(ScheduleMouse, TheTimeFieldShowsTheMinuteUnderThePointer) {
    cScheduleBench bench;
    for (const auto& [x, text] : std::vector<std::pair<float, std::string>>{
             {30, "00:00"}, {31, "00:05"}, {30.5f, "00:02"}, {132, "08:30"}, {318, "24:00"}}) {
        bench.m_Schedule.MouseMove(bench.m_Container, &bench.m_Paint, 0, 0, x, 10);
        EXPECT_EQ(bench.m_Container.m_Time, text);
    }
    bench.m_Schedule.MouseMove(bench.m_Container, &bench.m_Paint, 0, 0, 319, 10);
    EXPECT_EQ(bench.m_Container.m_Time, "24:00");
}

TEST(ScheduleMouse, TheMinuteNeverLeavesTheDay) {
    cScheduleBench bench;
    bench.Down(0, 1200);
    bench.m_Schedule.MouseMove(bench.m_Container, &bench.m_Paint, 1, 0, 318.9f, 10);
    bench.Up();
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "1200-1440");
}

TEST(ScheduleMouse, ThePointerIsSizingWhileAnEndIsHeldOrAPeriodIsMade) {
    const auto pointers = [](const std::string& script) {
        cScheduleBench bench(cContent().Day(0, {{420, 960}}));
        bench.Play(script);
        std::string found;
        std::istringstream lines(bench.m_Transcript.Text());
        for (std::string line; std::getline(lines, line);) {
            if (line.rfind("pointer ", 0) == 0) found += line.substr(8);
        }
        return found;
    };
    EXPECT_EQ(pointers("left 0 420"), "9");
    EXPECT_EQ(pointers("left 0 420;up"), "90");
    EXPECT_EQ(pointers("left 0 600"), "");
    EXPECT_EQ(pointers("left 0 600;move 0 603"), "");
    EXPECT_EQ(pointers("left 0 600;move 0 620;move 0 640"), "9");
    EXPECT_EQ(pointers("left 0 600;up"), "0");
    EXPECT_EQ(pointers("up"), "");
}

TEST(ScheduleMouse, TheDragModeIsHeldFromThePressToTheRelease) {
    cScheduleBench bench;
    EXPECT_FALSE(bench.m_Schedule.IsDragging());
    bench.Down(0, 600);
    EXPECT_TRUE(bench.m_Schedule.IsDragging());
    bench.Up();
    EXPECT_FALSE(bench.m_Schedule.IsDragging());
}

TEST(ScheduleMouse, ADragOnTuesdayChangesTheWholeGroupAfterTheRelease) {
    cContent content;
    for (std::size_t day = 0; day < 5; ++day) content.Day(day, {{420, 960}});
    cScheduleBench bench(content.Grouped({0, 1, 2, 3, 4}));
    bench.Play("left 1 960;move 1 1020");
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "420-960");
    EXPECT_EQ(Periods(bench.m_Schedule, 1), "420-1020");
    bench.Up();
    for (std::int16_t day = 0; day < 5; ++day) EXPECT_EQ(Periods(bench.m_Schedule, day), "420-1020");
    EXPECT_EQ(Periods(bench.m_Schedule, 5), "");
}

TEST(ScheduleMouse, TheDaysOfAGroupMergeByThemselves) {
    cScheduleBench bench(cContent().Day(0, {{100, 200}, {300, 400}}).Day(3, {{7, 8}}).Grouped({0, 3}));
    bench.Play("left 0 200;move 0 350;up");
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "100-400");
    EXPECT_EQ(Periods(bench.m_Schedule, 3), "100-400");
}

TEST(ScheduleMouse, TheDaysOfAGroupShareNoPeriod) {
    cScheduleBench bench(cContent().Day(0, {{100, 200}}).Grouped({0, 3}));
    bench.Play("left 0 200;move 0 350;up");
    bench.Play("left 3 350");
    bench.Move(3, 500);
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "100-350");
    EXPECT_EQ(Periods(bench.m_Schedule, 3), "100-500");
}

// The day that a right press has selected meanwhile hands its periods on; the dragged one is merged.
TEST(ScheduleMouse, TheReleaseCopiesFromTheSelectedDayAndMergesTheDraggedOne) {
    cScheduleBench bench(cContent().Day(0, {{100, 200}, {300, 400}}).Day(2, {{7, 8}}).Grouped({2, 4}));
    bench.Play("left 0 200;move 0 350;right 2 600;up");
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "100-400");
    EXPECT_EQ(Periods(bench.m_Schedule, 4), "7-8");
}

TEST(ScheduleMouse, TheReleaseOfADragWhoseSelectionWasTakenAwayMergesAndCopiesNothing) {
    cScheduleBench bench(cContent().Day(0, {{100, 200}, {300, 400}}).Day(2, {{7, 8}}).Grouped({0, 2}));
    bench.Play("left 0 200;move 0 350");
    bench.m_Schedule.ClearSelection(bench.m_Container);
    bench.Up();
    EXPECT_FALSE(bench.m_Schedule.IsDragging());
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "100-400");
    EXPECT_EQ(Periods(bench.m_Schedule, 2), "7-8");
    EXPECT_EQ(bench.m_Schedule.SelectedDayType(), -1);
}

TEST(ScheduleSelection, APeriodOfTheDayIsSelectedWithItsTimes) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}).Day(2, {{60, 90}, {600, 700}}));
    std::int16_t start = 0, stop = 0;
    const PeriodPtr first = bench.m_Schedule.GetNextTimePeriod(2, start, stop, nullptr);
    const PeriodPtr second = bench.m_Schedule.GetNextTimePeriod(2, start, stop, first);
    bench.m_Schedule.Select(bench.m_Container, 2, second);
    EXPECT_EQ(bench.m_Schedule.SelectedDayType(), 2);
    EXPECT_EQ(bench.Selected(), "600-700");
    EXPECT_EQ(bench.Fields(), "10:00|11:40");
    // What is typed now is that period's.
    bench.m_Container.m_Start = "9";
    bench.m_Schedule.ExtractTimeFromTextboxes(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 2), "60-90 540-700");
}

TEST(ScheduleSelection, ADayIsSelectedAloneWithoutAPeriodOrWithAnotherDays) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}).Day(2, {{60, 90}}));
    bench.Click(0, 600);
    const PeriodPtr ofMonday = bench.m_Schedule.SelectedPeriod();
    for (const PeriodPtr& period : {PeriodPtr(), ofMonday}) {
        bench.m_Container.m_Start = bench.m_Container.m_Stop = "left over";
        bench.m_Schedule.Select(bench.m_Container, 2, period);
        EXPECT_EQ(bench.m_Schedule.SelectedDayType(), 2);
        EXPECT_EQ(bench.Selected(), "none");
        EXPECT_EQ(bench.Fields(), "|");
    }
}

TEST(ScheduleMouse, ARightPressSelectsTheDayTypeKeepsThePeriodAndOnlySetsPopupStates) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}).Grouped({0, 2}));
    bench.Click(0, 600);
    bench.m_Transcript.Take();
    const PeriodPtr selected = bench.m_Schedule.SelectedPeriod();
    bench.Down(2, 420, 2);
    EXPECT_EQ(bench.m_Schedule.SelectedDayType(), 2);
    EXPECT_EQ(bench.m_Schedule.SelectedPeriod(), selected);
    EXPECT_FALSE(bench.m_Schedule.IsDragging());
    EXPECT_EQ(bench.m_Transcript.Text(),
              "monfri checked 0\n"
              "grouped checked 1\n"
              "paste enabled 0\n"
              "delete enabled 1\n");
    EXPECT_EQ(bench.Fields(), "07:00|16:00");
}

TEST(ScheduleMouse, ThePopupStatesTellOfTheGroupAndOfACopiedDay) {
    cScheduleBench bench(cContent().Grouped({0, 1, 2, 3, 4}));
    bench.Click(5, 600);
    bench.m_Schedule.Copy();
    bench.m_Transcript.Take();
    bench.Down(5, 600, 2);
    EXPECT_EQ(bench.m_Transcript.Text(),
              "monfri checked 1\n"
              "grouped checked 0\n"
              "paste enabled 1\n"
              "delete enabled 1\n");
}

TEST(ScheduleMouse, WithoutASelectedDayThePopupStatesOfferNeitherGroupNorDelete) {
    cScheduleBench bench(cContent().Grouped({0, 1, 2, 3, 4}));
    bench.m_Schedule.PreparePopupMenu(bench.m_Container);
    EXPECT_EQ(bench.m_Transcript.Text(),
              "monfri checked 1\n"
              "grouped checked 0\n"
              "paste enabled 0\n"
              "delete enabled 0\n");
}

TEST(ScheduleMouse, MondayToFridayIsNotCheckedWhenAnotherDayIsGroupedWithThem) {
    cScheduleBench bench(cContent().Grouped({0, 1, 2, 3, 4, 9}));
    bench.Down(5, 600, 2);
    EXPECT_FALSE(bench.m_Container.m_MonFriChecked);
}

TEST(ScheduleMouse, AnotherButtonSelectsTheDayTypeAndNothingElse) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}));
    bench.Down(0, 600, 4);
    EXPECT_EQ(bench.m_Schedule.SelectedDayType(), 0);
    EXPECT_EQ(bench.m_Schedule.SelectedPeriod(), nullptr);
    EXPECT_EQ(bench.m_Transcript.Text(), "");
}

TEST(ScheduleMouse, WithoutAPaintObjectEditingWorksAndNothingIsDrawn) {
    cScheduleBench bench;
    const float y = cScheduleBench::Y(0);
    bench.m_Schedule.MouseDown(bench.m_Container, nullptr, 1, 0, cScheduleBench::X(600), y);
    bench.m_Schedule.MouseMove(bench.m_Container, nullptr, 1, 0, cScheduleBench::X(700), y);
    bench.m_Schedule.MouseUp(bench.m_Container, nullptr, 1, 0, 0, 0);
    bench.m_Schedule.Paint(bench.m_Container, nullptr);
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "600-700");
    EXPECT_EQ(bench.m_Transcript.Text(), "");
}

// --- the two time fields

TEST(ScheduleTimeFields, WhatIsTypedIsRewrittenAndTakenOver) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}));
    bench.Click(0, 600);
    bench.m_Container.m_Start = "8";
    bench.m_Container.m_Stop = "1630";
    bench.m_Schedule.ExtractTimeFromTextboxes(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(bench.Fields(), "08:00|16:30");
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "480-990");
}

TEST(ScheduleTimeFields, AStopBeforeTheStartSwapsTheFields) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}));
    bench.Click(0, 600);
    bench.m_Container.m_Start = "17:00";
    bench.m_Container.m_Stop = "9:30";
    bench.m_Schedule.ExtractTimeFromTextboxes(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(bench.Fields(), "09:30|17:00");
    EXPECT_EQ(bench.Selected(), "570-1020");
}

TEST(ScheduleTimeFields, WithoutASelectedPeriodNothingIsRead) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}));
    bench.m_Container.m_Start = "8";
    bench.m_Schedule.ExtractTimeFromTextboxes(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(bench.Fields(), "8|?");
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "420-960");
}

TEST(ScheduleTimeFields, NeighboursAreMergedAndTheGroupFollows) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}, {1000, 1100}}).Grouped({0, 6}));
    bench.Click(0, 600);
    bench.m_Container.m_Start = "7:00";
    bench.m_Container.m_Stop = "17:00";
    bench.m_Schedule.ExtractTimeFromTextboxes(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "420-1100");
    EXPECT_EQ(Periods(bench.m_Schedule, 6), "420-1100");
    EXPECT_EQ(bench.Selected(), "420-1100");
}

TEST(ScheduleTimeFields, APeriodThatOutlivedTheSelectedDayTakesTheTimesWithoutHarm) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}));
    bench.Click(0, 600);
    bench.m_Schedule.SetTimeFrom00to24(bench.m_Container, &bench.m_Paint);
    bench.m_Container.m_Start = "8";
    bench.m_Container.m_Stop = "9";
    bench.m_Schedule.ExtractTimeFromTextboxes(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(bench.Fields(), "08:00|09:00");
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "0-1440");
}

// --- the popup menu

TEST(ScheduleMenu, CopyAndPasteBringPeriodsAndGroupFlag) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}, {970, 980}}).Day(5, {{1, 2}}).Grouped({0}));
    bench.Click(0, 1300);
    bench.m_Schedule.Copy();
    bench.Click(5, 1300);
    bench.m_Schedule.Paste(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 5), "420-960 970-980");
    EXPECT_TRUE(IsGrouped(bench.m_Schedule, 5));
    EXPECT_EQ(bench.m_Schedule.SelectedDayType(), 5);
}

TEST(ScheduleMenu, PasteOfADayOutsideTheGroupTakesTheDayOutOfIt) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}).Day(5, {{1, 2}}).Grouped({5, 6}));
    bench.Down(0, 1300, 2);
    bench.m_Schedule.Copy();
    bench.Down(5, 1300, 2);
    bench.m_Schedule.Paste(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 5), "420-960");
    EXPECT_FALSE(IsGrouped(bench.m_Schedule, 5));
    EXPECT_TRUE(IsGrouped(bench.m_Schedule, 6));
}

TEST(ScheduleMenu, PasteOnTheCopySourceDoesNothing) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}, {500, 600}}));
    bench.Down(0, 1300, 2);
    bench.m_Schedule.Copy();
    bench.m_Transcript.Take();
    bench.m_Schedule.Paste(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "420-960 500-600");
    EXPECT_EQ(bench.m_Transcript.Text(), "");
}

TEST(ScheduleMenu, PasteWithoutASourceOrATargetDoesNothing) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}).Day(1, {{1, 2}}));
    bench.Click(0, 1300);
    bench.m_Schedule.Paste(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "420-960");
    bench.m_Schedule.Copy();
    bench.m_Schedule.SetTimeFrom00to24(bench.m_Container, &bench.m_Paint);
    bench.m_Schedule.Paste(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "0-1440");
    EXPECT_EQ(Periods(bench.m_Schedule, 1), "1-2");
}

TEST(ScheduleMenu, PasteMergesWhatItBrings) {
    cScheduleBench bench(cContent().Day(0, {{100, 200}, {200, 300}}));
    bench.Down(0, 1300, 2);
    bench.m_Schedule.Copy();
    bench.Down(5, 1300, 2);
    bench.m_Schedule.Paste(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 5), "100-300");
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "100-200 200-300");
}

TEST(ScheduleMenu, CopyWithoutASelectedDayForgetsTheSource) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}));
    bench.Down(0, 600, 2);
    bench.m_Schedule.Copy();
    bench.m_Schedule.SetTimeFrom00to24(bench.m_Container, &bench.m_Paint);
    bench.m_Schedule.Copy();
    bench.Down(1, 600, 2);
    EXPECT_NE(bench.m_Transcript.Text().find("paste enabled 0\n"), std::string::npos);
    bench.m_Schedule.Paste(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 1), "");
}

TEST(ScheduleMenu, TheWholeDayLeavesTheGroupAndTheSelectedDay) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}).Day(1, {{420, 960}}).Grouped({0, 1}));
    bench.Click(0, 1300);
    bench.m_Schedule.SetTimeFrom00to24(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "0-1440");
    EXPECT_EQ(Periods(bench.m_Schedule, 1), "420-960");
    EXPECT_FALSE(IsGrouped(bench.m_Schedule, 0));
    EXPECT_TRUE(IsGrouped(bench.m_Schedule, 1));
    EXPECT_EQ(bench.m_Schedule.SelectedDayType(), -1);
}

TEST(ScheduleMenu, DeleteRemovesTheSelectedPeriodAndLeavesTheGroup) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}, {1000, 1100}}).Grouped({0, 1}));
    bench.Click(0, 600);
    bench.m_Schedule.Delete(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "1000-1100");
    EXPECT_EQ(bench.Selected(), "none");
    EXPECT_EQ(bench.Fields(), "|");
    EXPECT_FALSE(IsGrouped(bench.m_Schedule, 0));
    EXPECT_EQ(Periods(bench.m_Schedule, 1), "420-960 1000-1100");
    EXPECT_EQ(bench.m_Schedule.SelectedDayType(), -1);
}

TEST(ScheduleMenu, DeleteOfADayThatLacksTheSelectedPeriodOnlyUngroupsIt) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}).Day(1, {{1, 2}}).Grouped({1}));
    bench.Click(0, 600);
    bench.Down(1, 600, 2);
    bench.m_Schedule.Delete(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "420-960");
    EXPECT_EQ(Periods(bench.m_Schedule, 1), "1-2");
    EXPECT_EQ(bench.Selected(), "420-960");
    EXPECT_EQ(bench.Fields(), "07:00|16:00");
    EXPECT_FALSE(IsGrouped(bench.m_Schedule, 1));
    EXPECT_EQ(bench.m_Schedule.SelectedDayType(), -1);
}

TEST(ScheduleMenu, DeleteMergesWhatStays) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}, {1000, 1100}, {1100, 1200}}));
    // Only a press selects here: a release would merge already.
    bench.Down(0, 600);
    bench.m_Schedule.Delete(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "1000-1200");
}

struct cInversion {
    const char* name;
    std::vector<std::pair<int, int>> before;
    const char* after;
};

class Inversion : public ::testing::TestWithParam<cInversion> {};

TEST_P(Inversion, CoversWhatWasFree) {
    cScheduleBench bench(cContent().Day(0, GetParam().before));
    bench.Down(0, 1300, 2);
    bench.m_Schedule.InvertTimeSchedule(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 0), GetParam().after);
    EXPECT_EQ(bench.m_Schedule.SelectedDayType(), 0);
}

const cInversion kInversions[] = {
    {"AWorkingDayLeavesMorningAndEvening", {{420, 960}}, "0-420 960-1440"},
    {"TheWholeDayLeavesAnEmptyPeriodAtItsEnd", {{0, 1440}}, "1440-1440"},
    {"AnEmptyDayBecomesWhole", {}, "0-1440"},
    {"FromMidnightOnLeavesTheEvening", {{0, 960}}, "960-1440"},
    {"UpToMidnightLeavesTheMorningAndAnEmptyPeriod", {{420, 1440}}, "0-420 1440-1440"},
    {"PeriodsOutOfOrderLeaveTheGapsInOrder", {{500, 600}, {100, 200}}, "0-100 200-500 600-1440"},
    {"TheLastMinuteIsAMinute", {{1439, 1440}}, "0-1439 1440-1440"},
    {"AnEmptyPeriodCoversNothing", {{600, 600}}, "0-1440"},
    {"PeriodsOutOfTheDayCoverTheirPartOfIt", {{-100, 60}, {1400, 20000}}, "60-1400 1440-1440"},
};

INSTANTIATE_TEST_SUITE_P(Schedule, Inversion, ::testing::ValuesIn(kInversions),
                         [](const auto& inversion) { return inversion.param.name; });

TEST(ScheduleMenu, InvertingADayOfAGroupInvertsTheGroup) {
    cScheduleBench bench(cContent().Day(2, {{420, 960}}).Grouped({0, 2}));
    bench.Down(2, 1300, 2);
    bench.m_Schedule.InvertTimeSchedule(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 0), "0-420 960-1440");
}

TEST(ScheduleMenu, ADayThatJoinsTakesThePeriodsOfTheFirstGroupedDay) {
    cScheduleBench bench(cContent().Day(1, {{1, 2}}).Day(3, {{30, 40}}).Day(4, {{50, 60}}).Grouped({3, 4}));
    bench.Down(1, 1300, 2);
    bench.m_Schedule.Group(bench.m_Container, &bench.m_Paint);
    EXPECT_TRUE(IsGrouped(bench.m_Schedule, 1));
    EXPECT_EQ(Periods(bench.m_Schedule, 1), "30-40");
    EXPECT_EQ(Periods(bench.m_Schedule, 4), "50-60");
}

TEST(ScheduleMenu, ADayThatJoinsMergesWhatItTakes) {
    cScheduleBench bench(cContent().Day(3, {{30, 40}, {40, 50}}).Grouped({3}));
    bench.Down(1, 1300, 2);
    bench.m_Schedule.Group(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 1), "30-50");
    EXPECT_EQ(Periods(bench.m_Schedule, 3), "30-40 40-50");
}

TEST(ScheduleMenu, TheFirstDayOfAGroupKeepsItsPeriods) {
    cScheduleBench bench(cContent().Day(1, {{1, 2}}));
    bench.Down(1, 1300, 2);
    bench.m_Schedule.Group(bench.m_Container, &bench.m_Paint);
    EXPECT_TRUE(IsGrouped(bench.m_Schedule, 1));
    EXPECT_EQ(Periods(bench.m_Schedule, 1), "1-2");
}

TEST(ScheduleMenu, ADayThatLeavesItsGroupKeepsItsPeriods) {
    cScheduleBench bench(cContent().Day(1, {{1, 2}}).Day(3, {{30, 40}}).Grouped({1, 3}));
    bench.Down(3, 1300, 2);
    bench.m_Schedule.Group(bench.m_Container, &bench.m_Paint);
    EXPECT_FALSE(IsGrouped(bench.m_Schedule, 3));
    EXPECT_EQ(Periods(bench.m_Schedule, 3), "30-40");
}

TEST(ScheduleMenu, GroupingMondayToFridayTakesMondaysPeriodsAndUngroupsAllOthers) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}).Day(2, {{1, 2}}).Day(6, {{3, 4}}).Grouped({6, 9}));
    bench.m_Schedule.GroupMonFri(bench.m_Container, &bench.m_Paint);
    for (std::int16_t day = 0; day < 5; ++day) {
        EXPECT_EQ(Periods(bench.m_Schedule, day), "420-960");
        EXPECT_TRUE(IsGrouped(bench.m_Schedule, day));
    }
    EXPECT_EQ(Periods(bench.m_Schedule, 6), "3-4");
    for (int day = 5; day < 23; ++day) EXPECT_FALSE(IsGrouped(bench.m_Schedule, day));
}

TEST(ScheduleMenu, UngroupingMondayToFridayLeavesThePeriods) {
    cScheduleBench bench(cContent().Day(0, {{420, 960}}).Day(2, {{1, 2}}).Grouped({0, 1, 2, 3, 4}));
    bench.m_Container.m_MonFriChecked = true;
    bench.m_Schedule.GroupMonFri(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(Periods(bench.m_Schedule, 2), "1-2");
    for (int day = 0; day < 23; ++day) EXPECT_FALSE(IsGrouped(bench.m_Schedule, day));
}

TEST(ScheduleMenu, WithoutASelectedDayNoEntryDoesAnything) {
    const cContent content = cContent().Day(0, {{420, 960}}).Grouped({0, 1});
    cScheduleBench bench(content);
    const std::string before = testing::Saved(bench.m_Schedule);
    bench.m_Schedule.Delete(bench.m_Container, &bench.m_Paint);
    bench.m_Schedule.SetTimeFrom00to24(bench.m_Container, &bench.m_Paint);
    bench.m_Schedule.InvertTimeSchedule(bench.m_Container, &bench.m_Paint);
    bench.m_Schedule.Group(bench.m_Container, &bench.m_Paint);
    bench.m_Schedule.Paste(bench.m_Container, &bench.m_Paint);
    EXPECT_EQ(testing::Saved(bench.m_Schedule), before);
    EXPECT_EQ(bench.m_Transcript.Text(), "");
}

}  // namespace
}  // namespace vigrel::testing
