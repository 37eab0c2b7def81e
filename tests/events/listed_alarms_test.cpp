#include "events/listed_alarms.h"

#include <gtest/gtest.h>

#include "support/fake_station.h"

namespace vigrel::testing {
namespace {

class ListedAlarms : public ::testing::Test, public cFakeStation {
  protected:
    ListedAlarms() {
        view.SetUpColumns(settings);
        LoadTexts({10036, 10041});
    }
    // A stored alarm of the given age in days.
    void PutFile(std::int32_t id, double ageDays) {
        cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
        alarm.m_CreatedTime = clock.Now() - ageDays;
        cBinaryWriter file;
        alarm.WriteToDisk(file);
        files.Put(store.FileName(id), file.Bytes());
    }
    AlarmPtr Aged(double days) {
        AlarmPtr alarm = MakeAlarm();
        alarm->m_CreatedTime = clock.Now() - days;
        return alarm;
    }
};

TEST_F(ListedAlarms, AnEmptyFolderLogsZeroAlarms) {
    listed.LoadAlarms();
    EXPECT_EQ(Log(), "0 T10041\n");
    EXPECT_TRUE(state.m_ListChanged);
    EXPECT_TRUE(list.m_Visible);
}

TEST_F(ListedAlarms, LoadingAgainStartsAfreshBehindAHiddenList) {
    PutFile(1, 1);
    PutFile(2, 2);
    listed.LoadAlarms();
    list.SelectAllRows();
    state.m_ListChanged = false;
    int hidden = 0;
    list.m_OnAddRecord = [&] { hidden += list.m_Visible ? 0 : 1; };
    listed.LoadAlarms();
    EXPECT_EQ(hidden, 2);
    EXPECT_TRUE(list.m_Visible);
    EXPECT_EQ(list.RecordCount(), 2);
    EXPECT_EQ(store.m_Alarms.size(), 2u);
    EXPECT_TRUE(list.SelectedRows().empty());
    EXPECT_TRUE(state.m_ListChanged);
}

// Nobody watches rows come or lose their selection, and who reads the log sees the list that it tells of.
TEST_F(ListedAlarms, LoadingAndSweepingTakeTheirStepsInOneOrder) {
    PutFile(1, 31);
    PutFile(2, 2);
    PutFile(3, 1);
    files.m_OnCall = [this](std::string_view, std::string_view path) {
        if (path.ends_with(".Log")) transcript.Add("log written");
    };
    listed.LoadAlarms();
    EXPECT_EQ(transcript.Take(),
              "list: hidden\nlist: all records removed\nlist: take over 2 rows\nlist: clear selection\n"
              "list: shown\nlog written\nlog written\n");
    clock.AddSeconds(28.5 * 86400);
    listed.SweepOldAlarms();
    EXPECT_EQ(transcript.Take(), "list: record 1 removed\nlist: take over 1 row\nlog written\n");
}

TEST_F(ListedAlarms, AStoreThatOutlivesItsListTellsNobody) {
    { const cListedAlarms shorter({store, view, list, log, texts, settings, state}); }
    EXPECT_FALSE(store.OnGivenUp);
}

TEST_F(ListedAlarms, ATooOldFileIsDeletedAtStartAndNeverGetsARow) {
    PutFile(1, 31);
    PutFile(2, 29);
    listed.LoadAlarms();
    EXPECT_EQ(AlarmFiles(), std::vector<std::string>{"A0000002.alm"});
    EXPECT_EQ(Log(), "1 T10036\n1 T10041\n");
    EXPECT_EQ(list.RecordCount(), 1);
}

TEST_F(ListedAlarms, ALoadedAlarmHasTheSettingsOfItsCategory) {
    Ini("[CategorySpecificSetting_Fire]\r\nExtraText=Leave\r\n");
    categories.ReadCategories(files, ini);
    store.SaveAlarm(MakeAlarm("x", "Fire"));
    listed.LoadAlarms();
    ASSERT_EQ(store.m_Alarms.size(), 1u);
    EXPECT_EQ(store.m_Alarms[0]->m_CategorySpecificSetting.get().m_ExtraText, "Leave");
}

TEST_F(ListedAlarms, ANewAlarmHasItsRowItsFileAndItsPlace) {
    const AlarmPtr alarm = MakeAlarm();
    listed.TakeIn(alarm);
    EXPECT_NE(alarm->m_Record, 0u);
    EXPECT_EQ(AlarmFiles().size(), 1u);
    EXPECT_EQ(store.m_Alarms.front(), alarm);
}

TEST_F(ListedAlarms, AnAlarmThatIsTooOldOnArrivalLeavesNoRow) {
    listed.TakeIn(Aged(31));
    EXPECT_TRUE(store.m_Alarms.empty());
    EXPECT_TRUE(AlarmFiles().empty());
    EXPECT_EQ(list.RecordCount(), 0);
}

TEST_F(ListedAlarms, TheOldestGoesWithItsRowWhenThereAreTooMany) {
    settings.m_MaxEvents = 2;
    const AlarmPtr first = MakeAlarm("first");
    for (const AlarmPtr& alarm : {first, MakeAlarm("second"), MakeAlarm("third")}) {
        clock.AddSeconds(1);
        alarm->m_CreatedTime = clock.Now();
        listed.TakeIn(alarm);
    }
    EXPECT_EQ(store.m_Alarms.size(), 2u);
    EXPECT_EQ(AlarmFiles().size(), 2u);
    EXPECT_FALSE(files.FileExists(store.FileName(first->m_FileId)));
    EXPECT_EQ(list.RecordCount(), 2);
    EXPECT_EQ(first->m_Record, 0u);
}

TEST_F(ListedAlarms, TheSweepTakesTheRowsAlongAndLogsHowMany) {
    settings.m_MaxDays = 0;
    for (const double age : {40.0, 35.0, 10.0, 1.0}) listed.TakeIn(Aged(age));
    settings.m_MaxDays = 30;
    listed.SweepOldAlarms();
    EXPECT_EQ(list.RecordCount(), 2);
    EXPECT_EQ(list.Rows().size(), 2u);
    EXPECT_EQ(AlarmFiles().size(), 2u);
    EXPECT_EQ(Log(), "2 T10036\n");
    listed.SweepOldAlarms();
    EXPECT_EQ(Log(), "2 T10036\n");
}

}  // namespace
}  // namespace vigrel::testing
