#include "events/acknowledgement.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "support/fake_station.h"

namespace vigrel::testing {
namespace {

class Acknowledgement : public ::testing::Test, public cFakeStation {
  protected:
    Acknowledgement() {
        Ini("[General]\r\nColumns=StateIcon,Observed\r\nIcon_Active=2,3\r\n");
        categories.ReadDefault(ini);
        view.SetUpColumns(settings);
        LoadTexts({10039});
        state.m_SoundState = 4;
    }
    int Icon(const AlarmPtr& alarm, int item) const { return list.Item(alarm->m_Record, item).icon; }
    // The mark in the alarm's file.
    Boolean16 StoredMark(const AlarmPtr& alarm) const {
        cVigrelRecieverAlarm read(clock, kNoCategorySetting);
        const std::string bytes = files.ReadFile(store.FileName(alarm->m_FileId));
        cBinaryReader file(bytes);
        read.ReadFromDisk(file);
        return read.m_Observed;
    }
};

TEST_F(Acknowledgement, OfNothingDoesNothing) {
    acknowledgement.AckAlarm(0, nullptr);
    EXPECT_EQ(state.m_SoundState, 4);
    EXPECT_FALSE(state.m_ListChanged);
    EXPECT_EQ(Log(), "");
}

TEST_F(Acknowledgement, OfARowSetsTheAlarmObservedWithIconFileLogAndSilence) {
    const AlarmPtr alarm = Take(MakeAlarm("Fire in hall"));
    EXPECT_EQ(Icon(alarm, 0), 2);
    EXPECT_EQ(Icon(alarm, 1), 26);
    state.m_ListChanged = false;
    acknowledgement.AckAlarm(alarm->m_Record, nullptr);
    EXPECT_EQ(alarm->m_Observed, True16);
    EXPECT_EQ(alarm->m_Alarm.m_Status, StatusActive);
    EXPECT_EQ(Icon(alarm, 0), 3);
    EXPECT_EQ(Icon(alarm, 1), 27);
    EXPECT_EQ(state.m_SoundState, 0);
    EXPECT_TRUE(state.m_ListChanged);
    EXPECT_EQ(Log(), "T10039 Active - Fire in hall (///)\n");
    files.Crash();
    EXPECT_EQ(StoredMark(alarm), True16);
}

TEST_F(Acknowledgement, OfAnAlarmThatTheLimitsRemovedBringsNoFileBack) {
    settings.m_MaxEvents = 1;
    const std::vector<AlarmPtr> alarms{Take(MakeAlarm("a")), Take(MakeAlarm("b")), Take(MakeAlarm("c"))};
    for (const AlarmPtr& alarm : alarms) acknowledgement.AckAlarm(0, alarm);
    EXPECT_EQ(AlarmFiles().size(), 1u);
    store.RetryUnsaved();
    EXPECT_EQ(AlarmFiles().size(), 1u);
    EXPECT_EQ(Log(), "T10039 Active - a (///)\nT10039 Active - b (///)\nT10039 Active - c (///)\n");
}

TEST_F(Acknowledgement, OfARemovedAlarmLeavesTheFileOfItsNumbersNextOwnerAlone) {
    settings.m_MaxEvents = 1;
    random.m_Values = {0.25, 0.5, 0.25};
    const AlarmPtr removed = Take(MakeAlarm("removed"));
    Take(MakeAlarm("between"));
    const AlarmPtr owner = Take(MakeAlarm("owner"));
    ASSERT_EQ(owner->m_FileId, removed->m_FileId);
    const std::string before = files.ReadFile(store.FileName(owner->m_FileId));
    acknowledgement.AckAlarm(0, removed);
    EXPECT_EQ(files.ReadFile(store.FileName(owner->m_FileId)), before);
}

TEST_F(Acknowledgement, OfAnAlarmThatWasTooOldOnArrivalBringsNoFileBack) {
    settings.m_MaxDays = 30;
    const AlarmPtr alarm = MakeAlarm("old");
    alarm->m_CreatedTime -= 31;
    Take(alarm);
    acknowledgement.AckAlarm(0, alarm);
    EXPECT_TRUE(AlarmFiles().empty());
}

TEST_F(Acknowledgement, OfAnAlarmThatALoadReplacedLeavesItsFileAlone) {
    const AlarmPtr replaced = Take(MakeAlarm("replaced"));
    listed.LoadAlarms();
    const std::string before = files.ReadFile(store.FileName(replaced->m_FileId));
    acknowledgement.AckAlarm(0, replaced);
    EXPECT_EQ(files.ReadFile(store.FileName(replaced->m_FileId)), before);
}

TEST_F(Acknowledgement, TheAlarmArgumentIsPreferredToTheRow) {
    const AlarmPtr first = Take(MakeAlarm("first"));
    const AlarmPtr second = Take(MakeAlarm("second"));
    acknowledgement.AckAlarm(first->m_Record, second);
    EXPECT_EQ(first->m_Observed, False16);
    EXPECT_EQ(second->m_Observed, True16);
}

TEST_F(Acknowledgement, OfAnObservedAlarmOnlyStopsTheSoundAndMarksTheList) {
    const AlarmPtr alarm = Take(MakeAlarm());
    alarm->m_Observed = True16;
    state.m_ListChanged = false;
    const int calls = files.m_Calls;
    acknowledgement.AckAlarm(alarm->m_Record, nullptr);
    EXPECT_EQ(files.m_Calls, calls);
    EXPECT_EQ(state.m_SoundState, 0);
    EXPECT_TRUE(state.m_ListChanged);
}

TEST_F(Acknowledgement, TheSoundGoesOnWhilePopupsAreOpenWhenItLastsUntilTheLastOfThem) {
    settings.m_EventSignalUntilNoMorePopupForms = true;
    state.m_PopupFormCount = 2;
    const AlarmPtr alarm = Take(MakeAlarm());
    acknowledgement.AckAlarm(0, alarm);
    EXPECT_EQ(state.m_SoundState, 4);
    acknowledgement.Menu_AckAll();
    EXPECT_EQ(state.m_SoundState, 4);
    state.m_PopupFormCount = 0;
    acknowledgement.Menu_AckAll();
    EXPECT_EQ(state.m_SoundState, 0);
}

TEST_F(Acknowledgement, OnePopupIsEnoughToKeepTheSound) {
    settings.m_EventSignalUntilNoMorePopupForms = true;
    state.m_PopupFormCount = 1;
    acknowledgement.AckAlarm(0, Take(MakeAlarm()));
    acknowledgement.Menu_AckAll();
    acknowledgement.Menu_AckAll_AndClosePopups([] {});
    EXPECT_EQ(state.m_SoundState, 4);
}

// Only nothing at all counts as not observed, in whatever form a file has it.
TEST_F(Acknowledgement, AnAlarmWithAnyOtherMarkIsObserved) {
    const AlarmPtr alarm = Take(MakeAlarm());
    alarm->m_Observed = 1;
    EXPECT_EQ(Icon(alarm, 0), 3);
    EXPECT_EQ(Icon(alarm, 1), 27);
    acknowledgement.AckAlarm(0, alarm);
    state.m_ListChanged = false;
    acknowledgement.Menu_AckAll();
    EXPECT_FALSE(state.m_ListChanged);
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(alarm->m_Observed, 1);
}

TEST_F(Acknowledgement, OfAllGoesThroughTheRowsInDisplayOrderAndSkipsTheObserved) {
    for (const char* text : {"a", "b", "c"}) {
        Take(MakeAlarm(text));
        clock.AddSeconds(1);
    }
    settings.m_SortDescending = true;
    view.SetSortOrder();
    list.TakeOverRecords();
    store.m_Alarms[1]->m_Observed = True16;
    acknowledgement.Menu_AckAll();
    EXPECT_EQ(Log(), "T10039 Active - c (///)\nT10039 Active - a (///)\n");
    for (const AlarmPtr& alarm : store.m_Alarms) EXPECT_EQ(alarm->m_Observed, True16);
}

TEST_F(Acknowledgement, OfAllOnAnEmptyListOnlyEndsTheSound) {
    acknowledgement.Menu_AckAll();
    EXPECT_EQ(state.m_SoundState, 0);
    EXPECT_FALSE(state.m_ListChanged);
    EXPECT_FALSE(timerSave.Enabled());
    EXPECT_EQ(Log(), "");
}

TEST_F(Acknowledgement, OfAllThatFailsHalfWayKeepsWhatWasAnswered) {
    const std::vector<AlarmPtr> alarms{Take(MakeAlarm("a")), Take(MakeAlarm("b")), Take(MakeAlarm("c"))};
    files.m_OnCall = [&](std::string_view, std::string_view path) {
        if (path.ends_with(".Log") && list.RecordCount() == 3) list.RemoveRecord(alarms[2]->m_Record);
    };
    EXPECT_THROW(acknowledgement.Menu_AckAll(), cFailure);
    EXPECT_EQ(Log(), "T10039 Active - a (///)\nT10039 Active - b (///)\n");
    store.FinishSaves();
    files.Crash();
    EXPECT_EQ(StoredMark(alarms[0]), True16);
    EXPECT_EQ(StoredMark(alarms[1]), True16);
    EXPECT_EQ(StoredMark(alarms[2]), False16);
}

TEST_F(Acknowledgement, TellsTheListThatTheRowIsAnother) {
    const AlarmPtr first = Take(MakeAlarm("first"));
    const AlarmPtr second = Take(MakeAlarm("second"));
    list.m_Changed.clear();
    // It finds the alarm's new icons then.
    std::vector<int> icons;
    list.m_OnRecordChanged = [&](RecordId row) { icons.push_back(list.Item(row, 1).icon); };
    acknowledgement.AckAlarm(first->m_Record, nullptr);
    EXPECT_EQ(list.m_Changed, std::vector<RecordId>{first->m_Record});
    acknowledgement.Menu_AckAll();
    EXPECT_EQ(list.m_Changed, (std::vector<RecordId>{first->m_Record, second->m_Record}));
    EXPECT_EQ(icons, (std::vector<int>{27, 27}));
}

TEST_F(Acknowledgement, OfAllWithPopupsClosesThemAndEndsTheSound) {
    settings.m_EventSignalUntilNoMorePopupForms = true;
    state.m_PopupFormCount = 2;
    const AlarmPtr alarm = Take(MakeAlarm());
    acknowledgement.Menu_AckAll_AndClosePopups([&] {
        EXPECT_EQ(alarm->m_Observed, True16);
        EXPECT_EQ(state.m_SoundState, 4);
        state.m_PopupFormCount = 0;
    });
    EXPECT_EQ(state.m_SoundState, 0);
}

TEST_F(Acknowledgement, PopupsThatCannotBeClosedKeepTheSoundByTheirCount) {
    settings.m_EventSignalUntilNoMorePopupForms = true;
    for (const std::int16_t left : {std::int16_t{1}, std::int16_t{0}}) {
        state.m_PopupFormCount = 2;
        acknowledgement.Menu_AckAll_AndClosePopups([&] {
            state.m_PopupFormCount = left;
            throw cFailure(eFailure::Device, "made to fail");
        });
        EXPECT_EQ(state.m_SoundState, left == 0 ? 0 : 4);
    }
}

TEST_F(Acknowledgement, OfAllWithPopupsClosesASingleOneToo) {
    state.m_PopupFormCount = 1;
    bool closed = false;
    acknowledgement.Menu_AckAll_AndClosePopups([&] { closed = true; });
    EXPECT_TRUE(closed);
}

TEST_F(Acknowledgement, WithoutPopupsNoneIsClosed) {
    bool closed = false;
    acknowledgement.Menu_AckAll_AndClosePopups([&] { closed = true; });
    EXPECT_FALSE(closed);
}

TEST_F(Acknowledgement, ThatCannotBeWrittenIsTriedAgain) {
    const AlarmPtr alarm = Take(MakeAlarm());
    files.m_DiskFull = true;
    acknowledgement.Menu_AckAll();
    EXPECT_EQ(alarm->m_Observed, True16);
    files.m_DiskFull = false;
    store.RetryUnsaved();
    EXPECT_EQ(StoredMark(alarm), True16);
}

TEST_F(Acknowledgement, KeepsRowColoursAndPlace) {
    Ini("[General]\r\nColumns=StateIcon,t0\r\nBackColor_Active=10,20,30\r\nForeColor_Active=1,2,3\r\n");
    categories.ReadDefault(ini);
    const AlarmPtr alarm = Take(MakeAlarm());
    const auto rows = list.Rows();
    const auto before = list.Item(alarm->m_Record, 1);
    acknowledgement.AckAlarm(alarm->m_Record, nullptr);
    EXPECT_EQ(list.Rows(), rows);
    EXPECT_EQ(list.Item(alarm->m_Record, 1).backColour, before.backColour);
    EXPECT_EQ(list.Item(alarm->m_Record, 1).textColour, before.textColour);
}

}  // namespace
}  // namespace vigrel::testing
