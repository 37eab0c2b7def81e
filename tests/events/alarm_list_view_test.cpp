#include "events/alarm_list_view.h"

#include <gtest/gtest.h>

#include <limits>

#include "common/failure.h"
#include "support/fake_station.h"

namespace vigrel::testing {
namespace {

class AlarmListView : public ::testing::Test, public cFakeStation {
  protected:
    // Reads everything that the content of the configuration file decides.
    void Start(const std::string& content) {
        Ini(content);
        LoadTexts({837, 838, 839});
        settings.m_DateFormat = "yyyy-mm-dd";
        settings.m_TimeFormat = "hh:nn:ss";
        categories.ReadDefault(ini);
        categories.ReadCategories(files, ini);
        view.SetUpColumns(settings);
        view.SetSortOrder();
    }
    std::string Value(const AlarmPtr& alarm, int item) {
        return std::get<std::string>(list.GetItemValue(alarm->m_Record, item));
    }
};

TEST_F(AlarmListView, WithoutConfiguredColumnsOnlyTheHiddenOneIsThere) {
    Start("[General]\r\n");
    EXPECT_EQ(list.ColumnCount(), 1);
    EXPECT_EQ(list.Column(0).caption, "CreatedTimeStamp");
    EXPECT_EQ(list.Column(0).tag, "CreatedTimeStamp");
    EXPECT_EQ(list.Column(0).width, 0);
    const AlarmPtr alarm = Take(MakeAlarm());
    EXPECT_EQ(std::get<double>(list.GetItemValue(alarm->m_Record, 0)), alarm->m_CreatedTime);
}

TEST_F(AlarmListView, ColumnsTakeCaptionAndWidthFromTheSectionOfTheirKeyword) {
    Start("[General]\r\nColumns=StateIcon,T0,Category\r\n[t0]\r\nColumnText=Text\r\nColumnWidth=250\r\n");
    ASSERT_EQ(list.ColumnCount(), 4);
    EXPECT_EQ(list.Column(0).caption, "StateIcon");
    EXPECT_EQ(list.Column(0).width, 100);
    EXPECT_EQ(list.Column(1).caption, "Text");
    EXPECT_EQ(list.Column(1).tag, "T0");
    EXPECT_EQ(list.Column(1).width, 250);
    EXPECT_EQ(list.Column(3).tag, "CreatedTimeStamp");
}

TEST_F(AlarmListView, TheFirstEmptyFieldEndsTheColumns) {
    Start("[General]\r\nColumns=StateIcon,t0,,t1\r\n");
    EXPECT_EQ(list.ColumnCount(), 3);
}

TEST_F(AlarmListView, CategoryStateTextAndT2AreSetApart) {
    Start("[General]\r\nColumns=StateIcon,statetext,T2,CATEGORY,t0\r\n");
    EXPECT_EQ(list.Column(0).cellPlacement, 0);
    for (int column = 1; column <= 3; ++column) {
        EXPECT_EQ(list.Column(column).cellPlacement, 1) << column;
        EXPECT_EQ(list.Column(column).headerPlacement, 1) << column;
    }
    EXPECT_EQ(list.Column(4).cellPlacement, 0);
}

TEST_F(AlarmListView, ResizingAndSortingFollowTheirFlags) {
    Start("[General]\r\nColumns=t0\r\nColumnResizable=2\r\nColumnSortable=0\r\n");
    EXPECT_FALSE(list.Column(0).resizable);
    EXPECT_FALSE(list.Column(0).sortable);
}

TEST_F(AlarmListView, ResizingAndSortingAreOnUnlessSwitchedOff) {
    settings.m_ColumnResizable = settings.m_ColumnSortable = settings.m_ColumnWidthStore = false;
    Start("[General]\r\nColumns=t0\r\n");
    EXPECT_TRUE(list.Column(0).resizable);
    EXPECT_TRUE(list.Column(0).sortable);
    EXPECT_TRUE(settings.m_ColumnWidthStore);
}

TEST_F(AlarmListView, ThirtyTwoColumnsAreTheMost) {
    std::string columns = "t0";
    for (int i = 1; i < 32; ++i) columns += ",t0";
    Start("[General]\r\nColumns=" + columns + "\r\n");
    EXPECT_EQ(list.ColumnCount(), 33);
    cFakeStation other;
    other.Ini("[General]\r\nColumns=" + columns + ",t1\r\n");
    EXPECT_THROW(other.view.SetUpColumns(other.settings), cFailure);
}

TEST_F(AlarmListView, AWidthOutOfRangeNamesItsColumn) {
    Ini("[General]\r\nColumns=t0\r\n[t0]\r\nColumnWidth=1e10\r\n");
    const auto failure = CatchFailure([&] { view.SetUpColumns(settings); });
    ASSERT_TRUE(failure);
    EXPECT_NE(std::string(failure->what()).find("key ColumnWidth of section t0 is \"1e10\""),
              std::string::npos);
}

TEST_F(AlarmListView, EveryKindOfColumnHasItsText) {
    Start(
        "[General]\r\nColumns=t5,StateIcon,StateText,AlarmDate,AlarmTime,AlarmDateTime,Date,Time,DateTime,"
        "t0,t1,t2,t3,t4,t5,ExtraText,Observed\r\nExtraText=call 112\r\nIcon_Active=2,3\r\n"
        "[CategoryTranslations]\r\nFire=Brand\r\n");
    const AlarmPtr alarm = MakeAlarm("main", "Fire");
    for (const int i : {1, 3, 4, 5}) alarm->m_Alarm.SetCondition(i, "c" + std::to_string(i));
    alarm->m_Alarm.m_TimeStampFromSCADA = DateSerial(2026, 3, 14) + TimeSerial(1, 2, 3);
    Take(alarm);
    EXPECT_EQ(list.Screen(),
              "|1#2|T838|2026-03-14|01:02:03|2026-03-14 01:02:03|2026-03-15|12:30:15|2026-03-15 12:30:15|"
              "main|c1|Brand|c3|c4|c5|call 112|#26|\n");
}

TEST_F(AlarmListView, OnlyTheStateAndTheMarkHaveIcons) {
    Start(
        "[General]\r\nColumns=StateText,AlarmDate,AlarmTime,AlarmDateTime,Date,Time,DateTime,"
        "t0,t1,t2,t3,t4,t5,ExtraText\r\nIcon_Active=2,3\r\n");
    const AlarmPtr alarm = Take(MakeAlarm());
    for (int column = 0; column < list.ColumnCount(); ++column) {
        EXPECT_EQ(list.Item(alarm->m_Record, column).icon, -1) << column;
    }
}

TEST_F(AlarmListView, StateTextsAreTrimmedAndAMessageHasNone) {
    Start("[General]\r\nColumns=t5,StateText\r\n");
    files.Put(std::string(kApp) + "Vigrel_Texts.046", "837= off \r\n838=on\r\n839=acked\r\n");
    texts.LoadTexts();
    const char* expected[] = {"off", "on", "acked", ""};
    for (std::int16_t status = 0; status < 4; ++status) {
        EXPECT_EQ(Value(Take(MakeAlarm("x", "", status)), 1), expected[status]);
    }
}

TEST_F(AlarmListView, AStateIconInSecondPlaceShowsIconDigitAndColours) {
    Start(
        "[General]\r\nColumns=t0,StateIcon\r\nIcon_Active=2,3\r\nBackColor_Active=1,2,3\r\nForeColor_Active="
        "4,5,6\r\n");
    const AlarmPtr alarm = Take(MakeAlarm());
    const cReportItem item = list.Item(alarm->m_Record, 1);
    EXPECT_TRUE(item.hasCaption);
    EXPECT_EQ(item.value, ItemValue("1"));
    EXPECT_EQ(item.icon, 2);
    EXPECT_EQ(item.backColour, 0x030201);
    EXPECT_EQ(item.textColour, 0x060504);
}

TEST_F(AlarmListView, AStateIconInFirstPlaceShowsTheIconAlone) {
    Start("[General]\r\nColumns=StateIcon,t0\r\nIcon_Active=2,3\r\nBackColor_Active=1,2,3\r\n");
    const AlarmPtr alarm = Take(MakeAlarm());
    const cReportItem item = list.Item(alarm->m_Record, 0);
    EXPECT_FALSE(item.hasCaption);
    EXPECT_FALSE(item.hasColours);
    EXPECT_EQ(item.icon, 2);
    EXPECT_EQ(Value(alarm, 0), "1");
}

TEST_F(AlarmListView, ATextColumnInFirstPlaceStaysBlankButIsCopied) {
    Start("[General]\r\nColumns=t0,t1\r\n");
    const AlarmPtr alarm = Take(MakeAlarm("main"));
    EXPECT_FALSE(list.Item(alarm->m_Record, 0).hasCaption);
    list.Select(alarm->m_Record);
    view.CopyRowsToClipboard();
    EXPECT_EQ(clipboard.m_Text.substr(0, 5), "main\t");
}

TEST_F(AlarmListView, AnUnknownKeywordActsAsStateIcon) {
    Start("[General]\r\nColumns=t0,Category\r\nIcon_Active=7,8\r\n");
    const AlarmPtr alarm = Take(MakeAlarm());
    EXPECT_EQ(Value(alarm, 1), "1");
    EXPECT_EQ(list.Item(alarm->m_Record, 1).icon, 7);
}

TEST_F(AlarmListView, ATranslationWithEmptyValueLeavesTheCellEmpty) {
    Start("[General]\r\nColumns=StateIcon,t2\r\n[CategoryTranslations]\r\nFire=\r\n");
    EXPECT_EQ(Value(Take(MakeAlarm("x", "Fire")), 1), "");
    EXPECT_EQ(Value(Take(MakeAlarm("x", "Gas")), 1), "Gas");
}

// A station that runs for months meets any number of names.
TEST_F(AlarmListView, OnlyTranslationsThatAColumnShowsAreKept) {
    const std::string translations = "[CategoryTranslations]\r\nFire=Brand\r\nGas=Gas\r\n";
    Start("[General]\r\nColumns=StateIcon,t0\r\n" + translations);
    EXPECT_EQ(Take(MakeAlarm("x", "Fire"))->m_CategoryText, nullptr);
    cFakeStation other;
    other.Ini("[General]\r\nColumns=StateIcon,t2\r\n" + translations);
    other.view.SetUpColumns(other.settings);
    EXPECT_EQ(other.Take(other.MakeAlarm("x", "Gas"))->m_CategoryText, nullptr);
    EXPECT_EQ(other.Take(other.MakeAlarm("x", "Water"))->m_CategoryText, nullptr);
    EXPECT_NE(other.Take(other.MakeAlarm("x", "Fire"))->m_CategoryText, nullptr);
}

TEST_F(AlarmListView, TheTranslationIsOfTheDisplayOnly) {
    Start(
        "[General]\r\nColumns=StateIcon,t2\r\n[CategoryTranslations]\r\nFire=Gas\r\n"
        "[CategorySpecificSetting_Gas]\r\nExtraText=gas\r\n[CategorySpecificSetting_Fire]\r\nExtraText="
        "fire\r\n");
    EXPECT_EQ(Take(MakeAlarm("x", "Fire"))->m_CategorySpecificSetting.get().m_ExtraText, "fire");
}

TEST_F(AlarmListView, TheFirstCategoryThatMatchesInAnyCaseIsUsed) {
    Start(
        "[General]\r\nExtraText=none\r\n[CategorySpecificSetting_FIRE]\r\nExtraText=first\r\n"
        "[CategorySpecificSetting_fire]\r\nExtraText=second\r\n");
    EXPECT_EQ(Take(MakeAlarm("x", "Fire"))->m_CategorySpecificSetting.get().m_ExtraText, "first");
    EXPECT_EQ(Take(MakeAlarm("x", "Gas"))->m_CategorySpecificSetting.get().m_ExtraText, "none");
}

TEST_F(AlarmListView, ANewRowMarksTheListAsChanged) {
    Start("[General]\r\nColumns=t0\r\n");
    state.m_ListChanged = false;
    view.AddAlarmRow(MakeAlarm());
    EXPECT_TRUE(state.m_ListChanged);
}

TEST_F(AlarmListView, ANewRowIsTheAlarmsOwnWhenTheListIsToldOfIt) {
    Start("[General]\r\nColumns=t0\r\n");
    const AlarmPtr alarm = MakeAlarm("text");
    std::string told;
    list.m_OnRecordChanged = [&](RecordId row) {
        told += std::get<std::string>(list.Item(row, 0).value);
        EXPECT_EQ(row, alarm->m_Record);
    };
    view.AddAlarmRow(alarm);
    EXPECT_EQ(told, "text");
}

TEST_F(AlarmListView, TheHiddenColumnHoldsTheTimeOfCreation) {
    Start("[General]\r\nColumns=t0\r\n");
    const AlarmPtr alarm = Take(MakeAlarm());
    EXPECT_EQ(std::get<double>(list.GetItemValue(alarm->m_Record, 1)), alarm->m_CreatedTime);
}

TEST_F(AlarmListView, TheOldestStandsOnTopUnlessSortingIsDescending) {
    Start("[General]\r\nColumns=StateIcon,t0\r\n");
    Take(MakeAlarm("old"));
    clock.AddSeconds(1);
    Take(MakeAlarm("new"));
    EXPECT_EQ(list.Screen(), "#0|old|\n#0|new|\n");
    settings.m_SortDescending = true;
    view.SetSortOrder();
    list.TakeOverRecords();
    EXPECT_EQ(list.Screen(), "#0|new|\n#0|old|\n");
}

TEST_F(AlarmListView, ANewAlarmIsBroughtIntoViewAndTheSelectionGoes) {
    Start("[General]\r\nColumns=StateIcon,t0\r\n");
    const AlarmPtr old = Take(MakeAlarm("old"));
    list.Select(old->m_Record);
    transcript.Take();
    Take(MakeAlarm("new"));
    EXPECT_TRUE(list.SelectedRows().empty());
    const std::string steps = transcript.Text();
    EXPECT_NE(steps.find("record 2"), std::string::npos) << steps;
}

TEST_F(AlarmListView, FontStylesFollowCategoryAndState) {
    Start("[General]\r\nColumns=t0\r\nFontBold_Active=5\r\nFontItalic_Inactive=1\r\n");
    const AlarmPtr active = Take(MakeAlarm("x", "", StatusActive));
    const AlarmPtr inactive = Take(MakeAlarm("x", "", StatusInactive));
    cReportList::cFontStyle style;
    view.BeforeDrawRow(active->m_Record, style);
    EXPECT_TRUE(style.bold);
    EXPECT_FALSE(style.italic);
    view.BeforeDrawRow(inactive->m_Record, style);
    EXPECT_FALSE(style.bold);
    EXPECT_TRUE(style.italic);
}

TEST_F(AlarmListView, EveryNumberButZeroIsBoldAndItalic) {
    for (const char* number : {"-1", "2", "1"}) {
        Start("[General]\r\nFontBold_Active=" + std::string(number) + "\r\nFontItalic_Active=" + number +
              "\r\n");
        cReportList::cFontStyle style;
        view.BeforeDrawRow(Take(MakeAlarm())->m_Record, style);
        EXPECT_TRUE(style.bold) << number;
        EXPECT_TRUE(style.italic) << number;
    }
}

TEST_F(AlarmListView, TheRowHeightFollowsTheFontSize) {
    list.SetFont("Arial", 12);
    EXPECT_EQ(view.RowHeight(), 21);  // 12 * 1440 / 72 / 15 + 5
    list.SetFont("Arial", 10.5);
    EXPECT_EQ(view.RowHeight(), 19);
    list.SetFont("Arial", 72);
    EXPECT_EQ(view.RowHeight(), 101);
    list.SetFont("Arial", 10.5);
    screen.m_TwipsPerPixel = 7.5;
    EXPECT_EQ(view.RowHeight(), 33);
}

TEST_F(AlarmListView, ARowHeightThatCannotBeToldIsNone) {
    list.SetFont("Arial", 1e300);
    EXPECT_EQ(view.RowHeight(), 0);
}

TEST_F(AlarmListView, TheRowHeightIsRoundedAsAWhole) {
    list.SetFont("Arial", 7.125);
    EXPECT_EQ(view.RowHeight(), 14);  // 9.5 + 5; the even neighbour of 9.5 is 10
    list.SetFont("Arial", 7.3);
    EXPECT_EQ(view.RowHeight(), 15);  // 9.73 + 5
}

TEST_F(AlarmListView, AChangedWidthIsStoredUnderTheColumnsTag) {
    Start("[General]\r\nColumns=t0\r\n");
    list.OnColumnWidthChanged = [this](int column) { view.ColumnWidthChanged(column); };
    list.DragColumn(0, 333);
    EXPECT_EQ(ini.GetIniString("t0", "ColumnWidth", ""), "333");
}

TEST_F(AlarmListView, NoWidthIsStoredWhenSwitchedOff) {
    Start("[General]\r\nColumns=t0\r\n");
    list.OnColumnWidthChanged = [this](int column) { view.ColumnWidthChanged(column); };
    settings.m_ColumnWidthStore = false;
    list.DragColumn(0, 334);
    EXPECT_EQ(ini.GetIniString("t0", "ColumnWidth", "none"), "none");
}

TEST_F(AlarmListView, ControlAAndControlCActWithControlAlone) {
    Start("[General]\r\nColumns=StateIcon,t0\r\n");
    Take(MakeAlarm("a"));
    clock.AddSeconds(1);
    Take(MakeAlarm("b"));
    view.HandleListShortcut(65, 3);
    EXPECT_TRUE(list.SelectedRows().empty());
    view.HandleListShortcut(65, 2);
    EXPECT_EQ(list.SelectedRows().size(), 2u);
    clipboard.m_Text = "before";
    view.HandleListShortcut(67, 0);
    view.HandleListShortcut(66, 2);
    EXPECT_EQ(clipboard.m_Text, "before");
    view.HandleListShortcut(67, 2);
    EXPECT_EQ(clipboard.m_Text, "1\ta\t2026-03-15 12:30:15\t\r\n1\tb\t2026-03-15 12:30:16\t\r\n");
    EXPECT_TRUE(clipboard.m_WasClear);
}

TEST_F(AlarmListView, AnArrivalInTheLastMomentOfADayHasThatDaysDate) {
    Start("[General]\r\nColumns=StateIcon,DateTime,t0\r\n");
    clock.Set(2026, 3, 15, 23, 59, 59);
    clock.AddSeconds(0.9);
    EXPECT_EQ(Value(Take(MakeAlarm()), 1), "2026-03-15 23:59:59");
}

TEST_F(AlarmListView, ARowWhoseDateCannotBeToldIsCopiedAsFarAsItGoes) {
    Start("[General]\r\nColumns=StateIcon,DateTime,t0\r\n");
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    for (const double created : {1e300, kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN()}) {
        list.RemoveAllRecords();
        const AlarmPtr damaged = MakeAlarm("damaged");
        damaged->m_CreatedTime = created;
        view.AddAlarmRow(damaged);
        view.ShowNewAlarm(*damaged);
        list.Select(damaged->m_Record);
        view.CopyRowsToClipboard();
        EXPECT_EQ(clipboard.m_Text, "1\t\tdamaged\t\t\r\n") << created;
    }
}

TEST_F(AlarmListView, CopyingNothingLeavesTheClipboardEmpty) {
    Start("[General]\r\nColumns=StateIcon,t0\r\n");
    Take(MakeAlarm("a"));
    clipboard.m_Text = "before";
    view.CopyRowsToClipboard();
    EXPECT_EQ(clipboard.m_Text, "");
}

TEST_F(AlarmListView, ARowOfAnAlarmWithAnOddStatusLacksOnlyWhatFails) {
    Start("[General]\r\nColumns=StateIcon,StateText,t0\r\n");
    const AlarmPtr alarm = MakeAlarm("text", "", 9);
    Take(alarm);
    EXPECT_EQ(Value(alarm, 2), "text");
}

TEST_F(AlarmListView, ADateThatCannotBeToldLeavesAnEmptyCellInTheRowsColours) {
    Start("[General]\r\nColumns=StateIcon,DateTime\r\nBackColor_Active=1,2,3\r\n");
    const AlarmPtr alarm = Take(MakeAlarm());
    alarm->m_CreatedTime = 1e300;
    const cReportItem item = list.Item(alarm->m_Record, 1);
    EXPECT_EQ(std::get<std::string>(item.value), "");
    EXPECT_TRUE(item.hasColours);
    EXPECT_EQ(item.backColour, 0x030201);
}

}  // namespace
}  // namespace vigrel::testing
