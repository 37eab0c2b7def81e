#include "events/alarm_store.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <utility>

#include "common/dates.h"
#include "common/failure.h"
#include "common/file_procedures.h"
#include "common/text.h"
#include "support/fake_station.h"
#include "support/faulty_files.h"

namespace vigrel::testing {
namespace {

class AlarmStore : public ::testing::Test, public cFakeStation {
  protected:
    AlarmStore() {
        view.SetUpColumns(settings);
        LoadTexts({10036, 10041, 10053, 11004, 11005});
    }
    // A stored alarm of the given age in days.
    std::string PutFile(std::int32_t id, double ageDays, const std::string& sender = "S") {
        cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
        alarm.m_Sender = sender;
        alarm.m_CreatedTime = clock.Now() - ageDays;
        alarm.m_FileId = id;
        cBinaryWriter file;
        alarm.WriteToDisk(file);
        files.Put(store.FileName(id), file.Bytes());
        return store.FileName(id);
    }
    void Load() { listed.LoadAlarms(); }
    AlarmPtr At(double created, const std::string& sender) {
        auto alarm = MakeAlarm();
        alarm->m_CreatedTime = created;
        alarm->m_Sender = sender;
        return alarm;
    }
    std::string Senders() const {
        std::string order;
        for (const AlarmPtr& alarm : store.m_Alarms) order += alarm->m_Sender;
        return order;
    }
};

// What an alarm's time can be: all that eight bytes can hold.
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

TEST_F(AlarmStore, EveryTimeHasItsPlaceWhateverComesFirst) {
    settings.m_MaxDays = 0;
    std::vector<std::pair<double, std::string>> alarms{{-kInfinity, "x"}, {kInfinity, "x"}, {kNone, "x"},
                                                       {-kNone, "x"},     {-1e300, "a"},    {46000, "b"}};
    std::mt19937 randomOrder(1);
    for (int round = 0; round < 300; ++round) {
        std::shuffle(alarms.begin(), alarms.end(), randomOrder);
        store.m_Alarms.clear();
        for (const auto& [created, sender] : alarms) store.InsertAlarm(At(created, sender), 0);
        ASSERT_EQ(Senders(), "xxxxab") << "round " << round;
    }
}

TEST_F(AlarmStore, AnAlarmWhoseTimeIsNoneIsTooOldForEveryLimitByAge) {
    settings.m_MaxDays = 30;
    for (const double none : {kNone, -kNone, kInfinity, -kInfinity}) {
        PutFile(1, none, "N");
        PutFile(2, 29, "B");
        Load();
        EXPECT_EQ(Senders(), "B") << none;
        EXPECT_EQ(AlarmFiles().size(), 1u) << none;
        store.InsertAlarm(At(none, "N"), 0);
        EXPECT_EQ(Senders(), "B") << none;
    }
}

TEST_F(AlarmStore, AlarmsWhoseTimeIsNoneNeverCostANewAlarmItsPlace) {
    settings.m_MaxDays = 0;
    settings.m_MaxEvents = 4;
    const std::vector<double> none{kNone, -kNone, kInfinity, -kInfinity};
    for (std::size_t i = 0; i < none.size(); ++i) PutFile(static_cast<std::int32_t>(i) + 1, none[i], "x");
    Load();
    EXPECT_EQ(Senders(), "xxxx");
    for (const char* expected : {"xxx1", "xx12", "x123", "1234", "2345"}) {
        const AlarmPtr alarm = At(clock.Now(), std::string(1, expected[3]));
        store.SaveAlarm(alarm);
        EXPECT_FALSE(store.InsertAlarm(alarm, settings.m_MaxEvents));
        EXPECT_EQ(Senders(), expected);
        EXPECT_TRUE(files.FileExists(store.FileName(alarm->m_FileId)));
        clock.AddSeconds(1);
    }
    EXPECT_EQ(AlarmFiles().size(), 4u);
}

TEST_F(AlarmStore, AFileNameHasSevenDigits) {
    EXPECT_EQ(store.FileName(42917), std::string(kApp) + "Alarms\\A0042917.alm");
    EXPECT_EQ(store.FileName(0), std::string(kApp) + "Alarms\\A0000000.alm");
    EXPECT_EQ(store.FileName(9999999), std::string(kApp) + "Alarms\\A9999999.alm");
}

TEST_F(AlarmStore, AFileThatIsSpelledInItsOwnWayIsReplacedAndRemovedUnderItsName) {
    PutFile(7, 1);
    files.RenameFile(store.FileName(7), std::string(kApp) + "Alarms\\a0000007.ALM");
    Load();
    std::string steps;
    files.m_OnCall = [&](std::string_view operation, std::string_view path) {
        steps += std::string(operation) + " " + std::string(path.substr(path.rfind('\\') + 1)) + "\n";
    };
    store.SaveAlarm(store.m_Alarms[0]);
    store.DeleteAlarmFile(*store.m_Alarms[0]);
    files.m_OnCall = nullptr;
    EXPECT_EQ(steps, "write a0000007.ALM.$~\nrename a0000007.ALM.$~\nsync \nremove a0000007.ALM\n");
    EXPECT_EQ(store.FileName(7), std::string(kApp) + "Alarms\\A0000007.alm");
}

TEST_F(AlarmStore, LoadingGivesWhatInsertingOneByOneGives) {
    std::mt19937 draw(11);
    for (int round = 0; round < 300; ++round) {
        cFakeStation loading, inserting;
        const unsigned long count = draw() % 25, kinds = 1 + draw() % 40;
        const auto most = static_cast<std::int32_t>(draw() % 20);
        for (cFakeStation* station : {&loading, &inserting}) {
            station->settings.m_MaxEvents = most;
            station->settings.m_MaxDays = 20;
            station->view.SetUpColumns(station->settings);
        }
        for (unsigned long id = 1; id <= count; ++id) {
            cVigrelRecieverAlarm alarm(clock, kNoCategorySetting);
            alarm.m_CreatedTime = clock.Now() - static_cast<double>(draw() % kinds);
            alarm.m_FileId = static_cast<std::int32_t>(id);
            cBinaryWriter file;
            alarm.WriteToDisk(file);
            loading.files.Put(loading.store.FileName(alarm.m_FileId), file.Bytes());
            inserting.files.Put(inserting.store.FileName(alarm.m_FileId), file.Bytes());
        }
        int removed = 0;
        for (const std::string& name : inserting.AlarmFiles()) {
            auto alarm = std::make_shared<cVigrelRecieverAlarm>(clock, kNoCategorySetting);
            const std::string bytes = inserting.files.ReadFile(std::string(kApp) + "Alarms\\" + name);
            cBinaryReader file(bytes);
            alarm->ReadFromDisk(file);
            if (!inserting.store.InsertAlarm(alarm, most)) ++removed;
        }
        loading.LoadTexts({10036, 10041, 10053, 11004, 11005});
        loading.listed.LoadAlarms();
        const auto ids = [](const cFakeStation& station) {
            std::string text;
            for (const AlarmPtr& alarm : station.store.m_Alarms)
                text += std::to_string(alarm->m_FileId) + " ";
            return text;
        };
        ASSERT_EQ(ids(loading), ids(inserting)) << "round " << round;
        ASSERT_EQ(loading.AlarmFiles(), inserting.AlarmFiles());
        const std::string told = removed > 0 ? std::to_string(removed) + " T10036\n" : "";
        ASSERT_EQ(loading.Log(), told + std::to_string(loading.store.m_Alarms.size()) + " T10041\n");
    }
}

TEST_F(AlarmStore, ANewAlarmGetsARandomFreeNumber) {
    PutFile(5000000, 1);  // 0.5 * 9,999,999 rounds, tie to even, to 5,000,000
    random.m_Values = {0.5, 0.25};
    const AlarmPtr alarm = MakeAlarm();
    store.SaveAlarm(alarm);
    EXPECT_EQ(alarm->m_FileId, 2500000);
    EXPECT_TRUE(files.FileExists(std::string(kApp) + "Alarms\\A2500000.alm"));
}

// A look that the disk refuses is no word that the number is free: written in place of another alarm, that
// one would be lost.
TEST_F(AlarmStore, ANumberThatCouldNotBeLookedForIsGivenToNoAlarm) {
    PutFile(5000000, 1, "other");
    const std::string other = store.FileName(5000000), before = files.ReadFile(other);
    PutFile(0, 1, "zero");
    cFaultyFiles faulty(files);
    cAlarmStore ofFaulty({faulty, faulty, clock, random, log, texts, settings, categories, timerSave}, kApp);
    random.m_Values = {0.5, 0.25};
    const AlarmPtr alarm = MakeAlarm();
    faulty.m_Count = 2;  // the read, and the look that follows it
    ofFaulty.SaveAlarm(alarm);
    EXPECT_EQ(faulty.m_Met.count("read " + other), 1u);
    EXPECT_EQ(files.ReadFile(other), before);
    EXPECT_EQ(AlarmFiles().size(), 2u);
    ofFaulty.RetryUnsaved();
    EXPECT_EQ(alarm->m_FileId, 2500000);
    EXPECT_EQ(AlarmFiles().size(), 3u);
    EXPECT_EQ(files.ReadFile(other), before);
}

TEST_F(AlarmStore, ANumberWhoseFileCannotBeReadIsTakenAndHoldsNoSaveUp) {
    files.SetUnreadable(PutFile(5000000, 1), true);
    random.m_Values = {0.5, 0.25};
    const AlarmPtr alarm = MakeAlarm();
    store.SaveAlarm(alarm);
    EXPECT_EQ(alarm->m_FileId, 2500000);
    EXPECT_EQ(AlarmFiles().size(), 2u);
}

// Number 0 is an alarm's like any other.
TEST_F(AlarmStore, AnAlarmThatLeavesBeforeItHasANumberTakesNoFileAlong) {
    const std::string zero = PutFile(0, 1, "zero");
    cFaultyFiles faulty(files);
    cAlarmStore ofFaulty({faulty, faulty, clock, random, log, texts, settings, categories, timerSave}, kApp);
    const AlarmPtr alarm = MakeAlarm();
    faulty.m_Count = 2;
    ofFaulty.SaveAlarm(alarm);
    ASSERT_EQ(alarm->m_FileId, 0);
    const int calls = files.m_Calls;
    ofFaulty.DeleteAlarmFile(*alarm);
    EXPECT_EQ(files.m_Calls, calls);
    EXPECT_TRUE(files.FileExists(zero));
}

TEST_F(AlarmStore, AnAlarmThatIsSweptBeforeItHasANumberLeavesNoFileOfAnotherBehind) {
    settings.m_MaxDays = 0;
    const std::string zero = PutFile(0, 40, "zero");
    cFaultyFiles faulty(files);
    cAlarmStore ofFaulty({faulty, faulty, clock, random, log, texts, settings, categories, timerSave}, kApp);
    ofFaulty.LoadAlarms();
    const AlarmPtr alarm = At(clock.Now() - 41, "older");
    faulty.m_First = faulty.m_Calls;
    faulty.m_Count = 2;
    ofFaulty.SaveAlarm(alarm);
    ASSERT_EQ(alarm->m_FileId, 0);
    ofFaulty.InsertAlarm(alarm, 0);
    settings.m_MaxDays = 30;
    EXPECT_EQ(ofFaulty.SweepOldAlarms(), 2);
    EXPECT_FALSE(files.FileExists(zero));
}

TEST_F(AlarmStore, TheFileOfNumberZeroGoesWithItsAlarm) {
    const std::string zero = PutFile(0, 1, "zero");
    Load();
    store.DeleteAlarmFile(*store.m_Alarms.front());
    EXPECT_FALSE(files.FileExists(zero));
}

TEST_F(AlarmStore, ASavedAlarmSurvivesACrashAsSoonAsSaveReturns) {
    const AlarmPtr alarm = MakeAlarm();
    store.SaveAlarm(alarm);
    cBinaryWriter expected;
    alarm->WriteToDisk(expected);
    files.Crash();
    EXPECT_EQ(files.ReadFile(store.FileName(alarm->m_FileId)), expected.Bytes());
}

TEST_F(AlarmStore, SavingAgainReplacesTheFileInFull) {
    const AlarmPtr alarm = MakeAlarm(std::string(500, 'x'));
    store.SaveAlarm(alarm);
    const std::int32_t id = alarm->m_FileId;
    alarm->m_Alarm.SetCondition(0, "short");
    store.SaveAlarm(alarm);
    EXPECT_EQ(alarm->m_FileId, id);
    EXPECT_EQ(AlarmFiles().size(), 1u);
    EXPECT_EQ(files.ReadFile(store.FileName(id)).size(), 180u + 4 + 5);
}

TEST_F(AlarmStore, ACrashAtAnyStepOfAReplacementLeavesTheOldFileOrTheNewOne) {
    for (int step = 0; step < 4; ++step) {
        cFakeStation station;
        const AlarmPtr alarm = station.MakeAlarm("old");
        station.store.SaveAlarm(alarm);
        const std::string name = station.store.FileName(alarm->m_FileId);
        const std::string before = station.files.ReadFile(name);
        alarm->m_Alarm.SetCondition(0, "new");
        cBinaryWriter after;
        alarm->WriteToDisk(after);
        station.files.m_FailCall = station.files.m_Calls + step;
        station.store.SaveAlarm(alarm);
        station.files.Crash();
        const std::string left = station.files.ReadFile(name);
        EXPECT_TRUE(left == before || left == after.Bytes()) << "step " << step;
    }
}

TEST_F(AlarmStore, AnAlarmThatCouldNotBeWrittenIsTriedAgainUntilItIsOnDisk) {
    files.m_DiskFull = true;
    const AlarmPtr first = Take(MakeAlarm("first"));
    const AlarmPtr second = Take(MakeAlarm("second"));
    EXPECT_TRUE(AlarmFiles().empty());
    EXPECT_EQ(store.m_Alarms.size(), 2u);
    store.RetryUnsaved();
    EXPECT_TRUE(AlarmFiles().empty());
    files.m_DiskFull = false;
    store.RetryUnsaved();
    EXPECT_EQ(AlarmFiles().size(), 2u);
    files.Crash();
    EXPECT_EQ(AlarmFiles().size(), 2u);
    const int calls = files.m_Calls;
    store.RetryUnsaved();
    EXPECT_EQ(files.m_Calls, calls);
}

TEST_F(AlarmStore, ThatIsNewHasNothingThatWaitsForTheDisk) {
    EXPECT_EQ(store.UnsavedCount(), 0u);
    EXPECT_EQ(store.UnsavedSince(), 0);
    EXPECT_EQ(store.UnsavedReason(), "");
}

TEST_F(AlarmStore, AnAlarmThatCannotBeWrittenTwiceIsOneAndWaitsSinceTheFirstTime) {
    files.m_DiskFull = true;
    const AlarmPtr alarm = Take(MakeAlarm());
    const DateTime since = clock.Now();
    clock.AddSeconds(60);
    acknowledgement.AckAlarm(0, alarm);
    EXPECT_EQ(store.UnsavedCount(), 1u);
    EXPECT_EQ(store.UnsavedSince(), since);
    files.m_DiskFull = false;
    store.RetryUnsaved();
    EXPECT_EQ(store.UnsavedCount(), 0u);
    EXPECT_EQ(AlarmFiles().size(), 1u);
}

TEST_F(AlarmStore, AnAlarmThatASaveOfItsOwnBringsToTheDiskWaitsNoMore) {
    files.m_DiskFull = true;
    const AlarmPtr alarm = Take(MakeAlarm());
    Take(MakeAlarm());
    files.m_DiskFull = false;
    acknowledgement.AckAlarm(0, alarm);
    EXPECT_EQ(store.UnsavedCount(), 1u);
    store.RetryUnsaved();
    EXPECT_EQ(store.UnsavedCount(), 0u);
}

TEST_F(AlarmStore, AnUnsavedAlarmThatLeavesTheStoreIsNotWrittenAnyMore) {
    settings.m_MaxEvents = 1;
    files.m_DiskFull = true;
    Take(MakeAlarm("first"));
    clock.AddSeconds(1);
    const AlarmPtr second = Take(MakeAlarm("second"));
    files.m_DiskFull = false;
    store.RetryUnsaved();
    ASSERT_EQ(AlarmFiles().size(), 1u);
    EXPECT_TRUE(files.FileExists(store.FileName(second->m_FileId)));
}

TEST_F(AlarmStore, AFileThatCanNeverBeWrittenKeepsNoOtherFromTheDisk) {
    random.m_Values = {0.1, 0.2, 0.3};
    files.m_DiskFull = true;
    const AlarmPtr stuck = Take(MakeAlarm("stuck"));
    Take(MakeAlarm("second"));
    Take(MakeAlarm("third"));
    files.m_DiskFull = false;
    const std::string name = store.FileName(stuck->m_FileId);
    files.m_OnCall = [&](std::string_view operation, std::string_view path) {
        if (operation == "write" && path.starts_with(name)) {
            throw cFailure(eFailure::PermissionDenied, std::string(path));
        }
    };
    store.RetryUnsaved();
    store.RetryUnsaved();
    EXPECT_EQ(AlarmFiles().size(), 2u);
    files.m_OnCall = nullptr;
    store.RetryUnsaved();
    EXPECT_EQ(AlarmFiles().size(), 3u);
}

TEST_F(AlarmStore, ANumberThatWaitsForTheDiskIsGivenToNoOtherAlarm) {
    random.m_Values = {0.5, 0.5, 0.25};
    files.m_DiskFull = true;
    const AlarmPtr first = Take(MakeAlarm("first"));
    const AlarmPtr second = Take(MakeAlarm("second"));
    EXPECT_EQ(first->m_FileId, 5000000);
    EXPECT_EQ(second->m_FileId, 2500000);
    files.m_DiskFull = false;
    store.RetryUnsaved();
    EXPECT_EQ(AlarmFiles().size(), 2u);
}

TEST_F(AlarmStore, AFailedFolderSyncIsTriedAgain) {
    files.m_FailCall = files.m_Calls + 2;  // write, rename, sync
    Take(MakeAlarm());
    files.Crash();
    EXPECT_TRUE(AlarmFiles().empty());
    store.RetryUnsaved();
    files.Crash();
    EXPECT_EQ(AlarmFiles().size(), 1u);
}

// Marks alarms as seen and saves them, as the command that acknowledges all does.
void SeeAll(cFakeStation& station, const std::vector<AlarmPtr>& alarms) {
    for (const AlarmPtr& alarm : alarms) alarm->m_Observed = True16;
    station.store.SaveAlarms(alarms);
}

// Ticks until the timer is off.
void RunTimer(cFakeStation& station) {
    for (int tick = 0; station.timerSave.Enabled(); ++tick) {
        ASSERT_LT(tick, 1000);
        station.store.Timer_Save_Tick();
    }
}

void ExpectStored(const cFakeStation& station, const AlarmPtr& alarm, const std::string& when = "") {
    cBinaryWriter expected;
    alarm->WriteToDisk(expected);
    EXPECT_EQ(station.files.ReadFile(station.store.FileName(alarm->m_FileId)), expected.Bytes()) << when;
}

std::vector<AlarmPtr> TakeSome(cFakeStation& station, int count) {
    station.settings.m_MaxEvents = 0;
    std::vector<AlarmPtr> alarms;
    for (int i = 0; i < count; ++i) {
        station.clock.AddSeconds(1);
        alarms.push_back(station.Take(station.MakeAlarm()));
    }
    return alarms;
}

TEST_F(AlarmStore, ManySavesTogetherAreWrittenBehindAndThenDurable) {
    const std::vector<AlarmPtr> alarms = TakeSome(*this, 5);
    const int before = files.m_Calls;
    SeeAll(*this, alarms);
    EXPECT_EQ(files.m_Calls, before);
    EXPECT_TRUE(timerSave.Enabled());
    RunTimer(*this);
    files.Crash();
    for (const AlarmPtr& alarm : alarms) ExpectStored(*this, alarm);
    EXPECT_EQ(AlarmFiles().size(), 5u);
}

TEST_F(AlarmStore, OfManySavesThatFailTheReasonIsTold) {
    const std::vector<AlarmPtr> alarms = TakeSome(*this, 3);
    files.m_DiskFull = true;
    SeeAll(*this, alarms);
    RunTimer(*this);
    EXPECT_EQ(store.UnsavedCount(), 3u);
    EXPECT_TRUE(store.UnsavedReason().ends_with(": the disk is full")) << store.UnsavedReason();
}

TEST_F(AlarmStore, ManySavesTakeManyShortTurns) {
    const std::vector<AlarmPtr> alarms = TakeSome(*this, 2 * cPendingSaves::kTurnFiles + 10);
    SeeAll(*this, alarms);
    int turns = 0, most = 0;
    for (; timerSave.Enabled(); ++turns) {
        const int before = files.m_Calls;
        store.Timer_Save_Tick();
        most = std::max(most, files.m_Calls - before);
    }
    EXPECT_EQ(most, 1000);
    EXPECT_GE(turns, 6);
    for (const AlarmPtr& alarm : alarms) ExpectStored(*this, alarm);
}

TEST_F(AlarmStore, ATurnEndsWhenItsTimeIsOver) {
    const std::vector<AlarmPtr> alarms = TakeSome(*this, 10);
    SeeAll(*this, alarms);
    files.m_OnCall = [this](std::string_view, std::string_view) { clock.AddSeconds(0.015); };
    const int before = files.m_Calls;
    store.Timer_Save_Tick();
    EXPECT_EQ(files.m_Calls - before, 2);
    files.m_OnCall = nullptr;
    RunTimer(*this);
    for (const AlarmPtr& alarm : alarms) ExpectStored(*this, alarm);
}

// Whatever the turn does, what begins in its very last moment belongs to it.
TEST_F(AlarmStore, AFileThatTakesAWholeTurnIsFollowedByOneMore) {
    files.m_DiskFull = true;
    TakeSome(*this, 4);
    files.m_DiskFull = false;
    int done = 0;
    std::string counted = "write";
    files.m_OnCall = [&](std::string_view operation, std::string_view) {
        if (operation != counted) return;
        clock.AddSeconds(cPendingSaves::kTurnSeconds);
        ++done;
    };
    store.RetryUnsaved();
    EXPECT_EQ(std::exchange(done, 0), 2);
    store.Timer_Save_Tick();
    EXPECT_EQ(std::exchange(done, 0), 2);
    RunTimer(*this);
    ASSERT_EQ(AlarmFiles().size(), 4u);
    counted = "remove";
    done = 0;
    settings.m_MaxDays = 1;
    clock.Set(2026, 3, 17);
    EXPECT_EQ(store.SweepOldAlarms(), 4);
    EXPECT_EQ(done, 2);
}

// A disk that was full for a night, and has room again.
class AFullDisk : public AlarmStore {
  protected:
    // So many wait; each write takes as long as a turn allows two of.
    std::vector<AlarmPtr> LetWait(int count) {
        files.m_DiskFull = true;
        std::vector<AlarmPtr> alarms = TakeSome(*this, count);
        files.m_DiskFull = false;
        files.m_OnCall = [this](std::string_view operation, std::string_view) {
            if (operation == "write") clock.AddSeconds(0.015);
        };
        return alarms;
    }
    void ExpectAllDurable(const std::vector<AlarmPtr>& alarms) {
        EXPECT_EQ(store.UnsavedCount(), 0u);
        EXPECT_FALSE(timerSave.Enabled());
        files.Crash();
        for (const AlarmPtr& alarm : alarms) ExpectStored(*this, alarm);
        EXPECT_EQ(AlarmFiles().size(), alarms.size());
    }
};

TEST_F(AFullDisk, ThatHasRoomAgainIsGivenWhatWaitedInShortTurns) {
    const std::vector<AlarmPtr> alarms = LetWait(10);
    const double before = clock.Steady();
    store.RetryUnsaved();
    EXPECT_LT((clock.Steady() - before) * 86400, 0.035);
    EXPECT_EQ(AlarmFiles().size(), 2u);
    EXPECT_TRUE(timerSave.Enabled());
    const DateTime since = store.UnsavedSince();
    while (timerSave.Enabled()) {
        // They count as what they are, until all are on disk, and no other try begins.
        EXPECT_EQ(store.UnsavedCount(), 8u);
        const double turn = clock.Steady();
        store.RetryUnsaved();
        store.Timer_Save_Tick();
        EXPECT_LT((clock.Steady() - turn) * 86400, 0.035);
    }
    EXPECT_EQ(store.UnsavedSince(), since);
    ExpectAllDurable(alarms);
}

TEST_F(AFullDisk, ThatFillsAgainMeanwhileLosesNothing) {
    const std::vector<AlarmPtr> alarms = LetWait(10);
    store.RetryUnsaved();
    store.Timer_Save_Tick();
    files.m_DiskFull = true;
    RunTimer(*this);
    EXPECT_GE(store.UnsavedCount(), 6u);
    files.m_DiskFull = false;
    store.RetryUnsaved();
    RunTimer(*this);
    ExpectAllDurable(alarms);
}

TEST_F(AFullDisk, ThatFillsAgainCountsEachThatWaitsOnce) {
    LetWait(10);
    store.RetryUnsaved();
    store.Timer_Save_Tick();
    files.m_DiskFull = true;
    while (timerSave.Enabled()) {
        EXPECT_EQ(store.UnsavedCount(), 8u);
        store.Timer_Save_Tick();
    }
}

TEST_F(AFullDisk, CountsAnAlarmNoMoreThatIsAcknowledgedAndWrittenMeanwhile) {
    const std::vector<AlarmPtr> alarms = LetWait(10);
    store.RetryUnsaved();
    store.SaveAlarm(alarms.back());
    EXPECT_EQ(store.UnsavedCount(), 7u);
    files.m_OnCall = nullptr;
    RunTimer(*this);
    store.RetryUnsaved();
    ExpectAllDurable(alarms);
}

TEST_F(AFullDisk, AFileThatCanNeverBeWrittenCostsNoOtherTheEnd) {
    std::vector<AlarmPtr> alarms = LetWait(4);
    const std::string name = store.FileName(alarms.front()->m_FileId);
    files.m_OnCall = [&](std::string_view operation, std::string_view path) {
        if (operation == "write" && path.starts_with(name)) {
            throw cFailure(eFailure::PermissionDenied, std::string(path));
        }
    };
    store.FinishSaves();
    EXPECT_EQ(store.UnsavedCount(), 1u);
    alarms.erase(alarms.begin());
    files.Crash();
    for (const AlarmPtr& alarm : alarms) ExpectStored(*this, alarm);
}

TEST_F(AFullDisk, ThatStaysFullToTheEndHasLetThemWaitSinceTheFirst) {
    LetWait(10);
    const DateTime since = store.UnsavedSince();
    store.RetryUnsaved();
    files.m_DiskFull = true;
    clock.AddSeconds(60);
    store.FinishSaves();
    EXPECT_EQ(store.UnsavedCount(), 8u);
    EXPECT_EQ(store.UnsavedSince(), since);
}

TEST_F(AFullDisk, ThatHasRoomAtTheEndIsGivenAll) {
    const std::vector<AlarmPtr> alarms = LetWait(10);
    store.FinishSaves();
    ExpectAllDurable(alarms);
}

TEST_F(AFullDisk, GivesNoNumberTwiceWhileWhatWaitedIsWritten) {
    random.m_Values = {0.1, 0.2, 0.3, 0.4};
    std::vector<AlarmPtr> alarms = LetWait(4);
    store.RetryUnsaved();
    random.m_Values = {0.3, 0.5};
    alarms.push_back(Take(MakeAlarm("meanwhile")));
    EXPECT_EQ(alarms.back()->m_FileId, 5000000);
    RunTimer(*this);
    ExpectAllDurable(alarms);
}

TEST_F(AFullDisk, BringsNothingBackThatTheLimitsRemoveMeanwhile) {
    std::vector<AlarmPtr> alarms = LetWait(4);
    store.RetryUnsaved();
    store.DeleteAlarmFile(*alarms[3]);
    alarms[3]->m_Removed = true;
    EXPECT_EQ(store.UnsavedCount(), 1u);
    alarms.pop_back();
    RunTimer(*this);
    ExpectAllDurable(alarms);
}

TEST_F(AlarmStore, WhileTheDiskIsBusyTurnsPassAndNoNameIsTouched) {
    const std::vector<AlarmPtr> alarms = TakeSome(*this, 3);
    files.m_DiskIsBusy = true;
    SeeAll(*this, alarms);
    int renames = 0;
    files.m_OnCall = [&](std::string_view operation, std::string_view) {
        renames += operation == "rename" ? 1 : 0;
    };
    for (int tick = 0; tick < 20; ++tick) store.Timer_Save_Tick();
    EXPECT_EQ(renames, 0);
    EXPECT_TRUE(timerSave.Enabled());
    files.m_OnCall = nullptr;
    store.FinishSaves();
    EXPECT_FALSE(timerSave.Enabled());
    files.Crash();
    for (const AlarmPtr& alarm : alarms) ExpectStored(*this, alarm);
}

TEST_F(AlarmStore, SavesBehindTheLastOnesWaitBesideTheTurnsAgain) {
    const std::vector<AlarmPtr> alarms = TakeSome(*this, 3);
    store.FinishSaves();
    files.m_DiskIsBusy = true;
    SeeAll(*this, alarms);
    bool renamed = false;
    files.m_OnCall = [&](std::string_view operation, std::string_view) {
        renamed = renamed || operation == "rename";
    };
    for (int tick = 0; tick < 20; ++tick) store.Timer_Save_Tick();
    EXPECT_FALSE(renamed);
    EXPECT_TRUE(timerSave.Enabled());
    files.m_OnCall = nullptr;
}

TEST_F(AlarmStore, WhatIsSavedBehindTheLastSavesIsWrittenAtOnce) {
    store.GatherSaves();
    store.SaveAlarm(MakeAlarm());
    EXPECT_TRUE(AlarmFiles().empty());
    store.FinishSaves();
    EXPECT_EQ(AlarmFiles().size(), 1u);
    store.SaveAlarm(MakeAlarm());
    EXPECT_EQ(AlarmFiles().size(), 2u);
}

TEST_F(AlarmStore, TheLastSavesOfNothingLeaveTheDiskAlone) {
    TakeSome(*this, 3);
    const int calls = files.m_Calls;
    store.FinishSaves();
    EXPECT_EQ(files.m_Calls, calls);
}

TEST_F(AlarmStore, AFolderThatIsMissingIsMadeForTheLastSaves) {
    files.PutFolder("C:\\Other\\");
    cAlarmStore other({files, files, clock, random, log, texts, settings, categories, timerSave},
                      "C:\\Other\\");
    const AlarmPtr alarm = MakeAlarm();
    other.SaveAlarm(alarm);
    EXPECT_EQ(other.UnsavedCount(), 1u);
    other.FinishSaves();
    EXPECT_EQ(other.UnsavedCount(), 0u);
    files.Crash();
    EXPECT_TRUE(files.FileExists(other.FileName(alarm->m_FileId)));
}

TEST_F(AlarmStore, AlsoTheWaitForTheNamesGoesOnBesideTheTurns) {
    const std::vector<AlarmPtr> alarms = TakeSome(*this, 3);
    int renames = 0;
    files.m_OnCall = [&](std::string_view operation, std::string_view) {
        renames += operation == "rename" ? 1 : 0;
        files.m_DiskIsBusy = renames > 0;
    };
    SeeAll(*this, alarms);
    for (int tick = 0; tick < 20; ++tick) store.Timer_Save_Tick();
    EXPECT_EQ(renames, 3);
    EXPECT_TRUE(timerSave.Enabled());
    files.m_OnCall = nullptr;
    store.FinishSaves();
    EXPECT_FALSE(timerSave.Enabled());
    EXPECT_EQ(store.UnsavedCount(), 0u);
}

TEST_F(AlarmStore, TheEndOfTheStoreKnowsNoTurns) {
    const std::vector<AlarmPtr> alarms = TakeSome(*this, cPendingSaves::kTurnFiles + 10);
    SeeAll(*this, alarms);
    files.m_OnCall = [this](std::string_view, std::string_view) { clock.AddSeconds(0.015); };
    store.FinishSaves();
    EXPECT_FALSE(timerSave.Enabled());
    files.m_OnCall = nullptr;
    files.Crash();
    for (const AlarmPtr& alarm : alarms) ExpectStored(*this, alarm);
}

TEST_F(AlarmStore, TheEndOfTheStoreWritesWhatWaits) {
    auto station = std::make_unique<cFakeStation>();
    const std::vector<AlarmPtr> alarms = TakeSome(*station, 3);
    std::map<std::string, std::string> written;
    SeeAll(*station, alarms);
    station->files.m_OnCall = [&](std::string_view operation, std::string_view path) {
        written[std::string(operation)] += path.substr(path.size() - 2);
    };
    station.reset();
    EXPECT_EQ(written["rename"], "$~$~$~");
}

TEST_F(AlarmStore, AnAlarmThatIsRemovedWhileItWaitsGetsNoFileBack) {
    for (int ticks = 0; ticks < 6; ++ticks) {
        cFakeStation station;
        station.view.SetUpColumns(station.settings);
        const std::vector<AlarmPtr> alarms = TakeSome(station, 3);
        SeeAll(station, alarms);
        for (int tick = 0; tick < ticks; ++tick) station.store.Timer_Save_Tick();
        station.settings.m_MaxEvents = 3;
        const AlarmPtr newest = station.MakeAlarm("newest");
        newest->m_CreatedTime += 1;
        station.Take(newest);
        RunTimer(station);
        EXPECT_EQ(station.store.UnsavedCount(), 0u) << ticks;
        EXPECT_FALSE(station.files.FileExists(station.store.FileName(alarms[0]->m_FileId))) << ticks;
        ExpectStored(station, alarms[1]);
        EXPECT_EQ(station.AlarmFiles().size(), 3u) << ticks;
    }
}

TEST_F(AlarmStore, SavesThatComeWhileOthersAreWrittenFollowThem) {
    const std::vector<AlarmPtr> alarms = TakeSome(*this, 6);
    SeeAll(*this, {alarms.begin(), alarms.begin() + 3});
    store.Timer_Save_Tick();
    SeeAll(*this, {alarms.begin() + 3, alarms.end()});
    RunTimer(*this);
    files.Crash();
    for (const AlarmPtr& alarm : alarms) ExpectStored(*this, alarm);
}

TEST_F(AlarmStore, ACrashWhileManyAreWrittenLeavesEachFileWhole) {
    for (int step = 0; step < 12; ++step) {
        cFakeStation station;
        station.view.SetUpColumns(station.settings);
        const std::vector<AlarmPtr> alarms = TakeSome(station, 3);
        std::vector<std::string> old;
        old.reserve(alarms.size());
        for (const AlarmPtr& alarm : alarms) {
            old.push_back(station.files.ReadFile(station.store.FileName(alarm->m_FileId)));
        }
        SeeAll(station, alarms);
        const int last = station.files.m_Calls + step;
        struct cPowerCut {};
        station.files.m_OnCall = [&](std::string_view, std::string_view) {
            if (station.files.m_Calls > last) throw cPowerCut();
        };
        try {
            RunTimer(station);
        } catch (const cPowerCut&) {
        }
        station.files.m_OnCall = nullptr;
        station.files.Crash();
        for (std::size_t i = 0; i < alarms.size(); ++i) {
            cBinaryWriter seen;
            alarms[i]->WriteToDisk(seen);
            const std::string content = station.files.ReadFile(station.store.FileName(alarms[i]->m_FileId));
            EXPECT_TRUE(content == old[i] || content == seen.Bytes()) << "step " << step;
        }
    }
}

TEST_F(AlarmStore, AFailureWhileSavingTogetherLosesNothingAtAnyStep) {
    for (int step = 0; step < 12; ++step) {
        cFakeStation station;
        station.view.SetUpColumns(station.settings);
        const std::vector<AlarmPtr> alarms = TakeSome(station, 3);
        station.files.m_FailCall = station.files.m_Calls + step;
        SeeAll(station, alarms);
        RunTimer(station);
        station.store.RetryUnsaved();
        station.files.Crash();
        for (const AlarmPtr& alarm : alarms) ExpectStored(station, alarm, "step " + std::to_string(step));
        for (const std::string& name : station.AlarmFiles()) EXPECT_TRUE(name.ends_with(".alm")) << name;
    }
}

TEST_F(AlarmStore, TheCollectionIsSortedByTheTimeOfCreation) {
    for (const auto& [time, sender] : std::vector<std::pair<double, std::string>>{
             {5, "e"}, {3, "c"}, {9, "i"}, {1, "a"}, {7, "g"}, {4, "d"}, {8, "h"}, {2, "b"}, {6, "f"}}) {
        settings.m_MaxDays = 0;
        EXPECT_TRUE(store.InsertAlarm(At(time, sender), 0));
    }
    EXPECT_EQ(Senders(), "abcdefghi");
}

TEST_F(AlarmStore, EveryInsertionOrderEndsSorted) {
    settings.m_MaxDays = 0;
    std::string order = "abcdef";
    do {
        store.m_Alarms.clear();
        for (const char c : order) store.InsertAlarm(At(c, std::string(1, c)), 0);
        ASSERT_EQ(Senders(), "abcdef") << order;
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(AlarmStore, OfTwoEqualTimesTheLaterInsertionStandsBehindTheOneTheSearchMet) {
    settings.m_MaxDays = 0;
    store.InsertAlarm(At(1, "a"), 0);
    store.InsertAlarm(At(1, "b"), 0);
    EXPECT_EQ(Senders(), "ab");
    // With "ab" the search begins at the second of two.
    store.InsertAlarm(At(1, "c"), 0);
    EXPECT_EQ(Senders(), "abc");
    // With three it begins at position 3 (1.5 rounds to 2), with four at position 3.
    store.InsertAlarm(At(1, "d"), 0);
    EXPECT_EQ(Senders(), "abcd");
    store.InsertAlarm(At(1, "e"), 0);
    EXPECT_EQ(Senders(), "abced");
}

TEST_F(AlarmStore, OnlyOneGoesPerInsertionHoweverFarOverTheLimit) {
    settings.m_MaxDays = 0;
    for (int i = 0; i < 5; ++i) store.InsertAlarm(At(i + 1, "x"), 0);
    EXPECT_FALSE(store.InsertAlarm(At(10, "y"), 2));
    EXPECT_EQ(store.m_Alarms.size(), 5u);
}

TEST_F(AlarmStore, AnAlarmOlderThanEveryOtherCanBeTheOneThatGoes) {
    settings.m_MaxDays = 0;
    store.InsertAlarm(At(2, "b"), 1);
    EXPECT_FALSE(store.InsertAlarm(At(1, "a"), 1));
    EXPECT_EQ(Senders(), "b");
}

TEST_F(AlarmStore, WithoutLimitsNothingIsEverRemoved) {
    settings.m_MaxDays = 0;
    for (int i = 0; i < 50; ++i) EXPECT_TRUE(store.InsertAlarm(At(1, "x"), 0));
    EXPECT_EQ(store.SweepOldAlarms(), 0);
    EXPECT_EQ(store.m_Alarms.size(), 50u);
}

TEST_F(AlarmStore, ALimitBelowZeroIsNone) {
    settings.m_MaxDays = -1;
    settings.m_MaxEvents = -1;
    for (int i = 1; i <= 3; ++i) PutFile(i, 1000 + i);
    Load();
    EXPECT_EQ(store.m_Alarms.size(), 3u);
    EXPECT_TRUE(store.InsertAlarm(At(1, "x"), settings.m_MaxEvents));
    EXPECT_EQ(store.SweepOldAlarms(), 0);
    EXPECT_EQ(store.m_Alarms.size(), 4u);
    EXPECT_EQ(Log(), "3 T10041\n");
}

TEST_F(AlarmStore, StoredAlarmsComeBackInOrderWithTheirState) {
    PutFile(1, 1, "b");
    PutFile(2, 2, "a");
    const std::string seen = PutFile(3, 0.5, "c");
    cVigrelRecieverAlarm observed(clock, kNoCategorySetting);
    observed.m_Sender = "c";
    observed.m_CreatedTime = clock.Now() - 0.5;
    observed.m_Observed = True16;
    cBinaryWriter file;
    observed.WriteToDisk(file);
    files.Put(seen, file.Bytes());
    Load();
    EXPECT_EQ(Senders(), "abc");
    EXPECT_EQ(store.m_Alarms[2]->m_Observed, True16);
    EXPECT_EQ(store.m_Alarms[0]->m_Observed, False16);
    EXPECT_EQ(list.Rows().size(), 3u);
    EXPECT_EQ(Log(), "3 T10041\n");
}

TEST_F(AlarmStore, The1001stFileAtStartRemovesTheOldest) {
    for (int i = 0; i < 1001; ++i) PutFile(i + 1, 1 + i / 2000.0);
    Load();
    EXPECT_EQ(store.m_Alarms.size(), 1000u);
    EXPECT_EQ(AlarmFiles().size(), 1000u);
    EXPECT_FALSE(files.FileExists(store.FileName(1001)));
    EXPECT_EQ(Log(), "1 T10036\n1000 T10041\n");
}

TEST_F(AlarmStore, ALoweredLimitRemovesOneAlarmForEachFileBeyondIt) {
    for (int i = 0; i < 1500; ++i) PutFile(i + 1, 1 + i / 3000.0);
    Load();
    EXPECT_EQ(store.m_Alarms.size(), 1000u);
    EXPECT_EQ(AlarmFiles().size(), 1000u);
    EXPECT_EQ(Log(), "500 T10036\n1000 T10041\n");
}

TEST_F(AlarmStore, ANameWithoutANumberIsLeftAloneForGood) {
    const std::string alarm = PutFile(1, 1);
    files.Put(std::string(kApp) + "Alarms\\ABCDEFGH.alm", files.ReadFile(alarm));
    files.RemoveFile(alarm);
    Load();
    EXPECT_TRUE(store.m_Alarms.empty());
    EXPECT_TRUE(files.FileExists(std::string(kApp) + "Alarms\\ABCDEFGH.alm"));
}

// A sign is part of a numeric name. The name that is made of such a number is another one.
TEST_F(AlarmStore, ANegativeNumberInANameIsTakenAsItStands) {
    PutFile(7, 1, "negative");
    const std::string folder = std::string(kApp) + "Alarms\\";
    files.Put(folder + "A-000005.alm", files.ReadFile(folder + "A0000007.alm"));
    files.RemoveFile(folder + "A0000007.alm");
    Load();
    ASSERT_EQ(store.m_Alarms.size(), 1u);
    EXPECT_EQ(store.m_Alarms[0]->m_FileId, -5);
    EXPECT_EQ(store.m_Alarms[0]->m_Sender, "negative");
    EXPECT_EQ(store.FileName(-5), folder + "A00000-5.alm");
}

TEST_F(AlarmStore, ANumberOutOfRangeIsLoggedLeftAloneAndKeepsNoOtherAlarmAway) {
    files.Put(std::string(kApp) + "Alarms\\A9e00009.alm", "not an alarm");
    PutFile(1, 1);
    Load();
    EXPECT_EQ(store.m_Alarms.size(), 1u);
    EXPECT_EQ(Log(), "Alarms\\A9e00009.alm T11005\n1 T10041\n");
    EXPECT_TRUE(files.FileExists(std::string(kApp) + "Alarms\\A9e00009.alm"));
}

TEST_F(AlarmStore, AForeignNameCaseIsReadAndReplacedUnderItsOwnNumber) {
    const std::string bytes = files.ReadFile(PutFile(77, 1));
    files.RemoveFile(store.FileName(77));
    files.Put(std::string(kApp) + "Alarms\\a0000077.ALM", bytes);
    Load();
    ASSERT_EQ(store.m_Alarms.size(), 1u);
    EXPECT_EQ(store.m_Alarms[0]->m_FileId, 77);
    store.SaveAlarm(store.m_Alarms[0]);
    EXPECT_EQ(AlarmFiles().size(), 1u);
}

// Names that are numeric in their own way.
class NamesOfOneNumber : public AlarmStore {
  protected:
    void Put(const std::string& name, double ageDays, const std::string& sender) {
        const std::string file = PutFile(999, ageDays, sender);
        files.Put(std::string(kApp) + "Alarms\\" + name, files.ReadFile(file));
        files.RemoveFile(file);
    }
    std::string SendersByName() {
        std::string senders = Senders();
        std::sort(senders.begin(), senders.end());
        return senders;
    }
};

TEST_F(NamesOfOneNumber, OneThatIsTooOldTakesNoOtherAlong) {
    settings.m_MaxDays = 30;
    Put("A+000005.alm", 31, "x");
    Put("A0000005.alm", 1, "a");
    Put("A5.00000.alm", 31, "x");
    Load();
    EXPECT_EQ(Senders(), "a");
    EXPECT_EQ(AlarmFiles().size(), 1u);
    EXPECT_TRUE(files.FileExists(store.FileName(5)));
}

TEST_F(NamesOfOneNumber, AreAlarmsOfTheirOwnFromThenOn) {
    settings.m_MaxDays = 30;
    Put("A+000005.alm", 1, "a");
    Put("A0000005.alm", 2, "b");
    Put("A+000006.alm", 3, "c");
    Put("A 000006.alm", 4, "d");
    Load();
    EXPECT_EQ(SendersByName(), "abcd");
    for (const AlarmPtr& alarm : store.m_Alarms) store.SaveAlarm(alarm);
    const AlarmPtr oldest = store.m_Alarms.front();
    EXPECT_EQ(oldest->m_Sender, "d");
    store.DeleteAlarmFile(*oldest);
    Load();
    EXPECT_EQ(SendersByName().substr(0, 3), "abc");
}

TEST_F(AlarmStore, TheNameDecidesTheNumberAndTheNextSaveCorrectsTheFile) {
    const std::string bytes = files.ReadFile(PutFile(5, 1));
    files.RemoveFile(store.FileName(5));
    files.Put(store.FileName(9), bytes);
    Load();
    ASSERT_EQ(store.m_Alarms.size(), 1u);
    EXPECT_EQ(store.m_Alarms[0]->m_FileId, 9);
    store.SaveAlarm(store.m_Alarms[0]);
    cVigrelRecieverAlarm read(clock, kNoCategorySetting);
    const std::string saved = files.ReadFile(store.FileName(9));
    cBinaryReader file(saved);
    read.ReadFromDisk(file);
    EXPECT_EQ(read.m_FileId, 9);
}

TEST_F(AlarmStore, AFileCutAtAnyLengthStillLoadsWithoutDayLimit) {
    settings.m_MaxDays = 0;
    const std::string bytes = files.ReadFile(PutFile(1, 1, "PLC1"));
    for (std::size_t length = 0; length <= bytes.size(); ++length) {
        files.Put(store.FileName(1), bytes.substr(0, length));
        Load();
        ASSERT_EQ(store.m_Alarms.size(), 1u) << length;
    }
    EXPECT_EQ(store.m_Alarms[0]->m_Sender, "PLC1");
}

TEST_F(AlarmStore, AFileCutShortStandsFirstInTheOrderOrGoesAsTooOld) {
    settings.m_MaxDays = 0;
    PutFile(2, 20, "b");
    files.Put(store.FileName(1), "");
    Load();
    EXPECT_EQ(Senders(), "b");
    EXPECT_EQ(store.m_Alarms[0]->m_CreatedTime, 0);
    settings.m_MaxDays = 30;
    Load();
    EXPECT_EQ(store.m_Alarms.size(), 1u);
    EXPECT_FALSE(files.FileExists(store.FileName(1)));
}

TEST_F(AlarmStore, AnAlarmFileThatCannotBeReadEndsTheStart) {
    files.SetUnreadable(PutFile(1, 1), true);
    EXPECT_THROW(Load(), cFailure);
}

TEST_F(AlarmStore, WhatIsKnownNotToBeReadableIsLeftOutAndNamedOnce) {
    PutFile(1, 3, "a");
    files.SetUnreadable(PutFile(2, 2), true);
    PutFile(3, 1, "c");
    files.m_Unreadable[std::string(kApp) + "Alarms\\"] = {{"A0000002.alm", "Permission denied"},
                                                          {"A0000004.ALM", "no ordinary file"},
                                                          {"A5.00000.alm", "a folder"},
                                                          {"AB000002.alm", "no alarm"},
                                                          {"Areports.alm", "no alarm"}};
    Load();
    EXPECT_EQ(Senders(), "ac");
    EXPECT_EQ(Log(),
              "3 T11004 A0000002.alm (Permission denied), A0000004.ALM (no ordinary file), "
              "A5.00000.alm (a folder)\n"
              "2 T10041\n");
}

TEST_F(AlarmStore, AnyNumberOfFilesThatCannotBeReadTakesOneLine) {
    auto& unreadable = files.m_Unreadable[std::string(kApp) + "Alarms\\"];
    for (int id = 1000001; id <= 1000500; ++id)
        unreadable.push_back({"A" + std::to_string(id) + ".alm", "x"});
    Load();
    const std::string line = SplitLines(Log()).front();
    EXPECT_TRUE(line.starts_with("500 T11004 A1000001.alm (x), ")) << line;
    EXPECT_TRUE(line.ends_with(", A1000020.alm (x)... (+480)")) << line;
}

TEST_F(AlarmStore, UpToTwentyFilesThatCannotBeReadAreAllNamed) {
    auto& unreadable = files.m_Unreadable[std::string(kApp) + "Alarms\\"];
    std::string names;
    for (int count = 1; count <= 21; ++count) {
        const std::string name = "A" + std::to_string(1000000 + count) + ".alm";
        unreadable.push_back({name, "x"});
        names += count <= 20 ? (count > 1 ? ", " : "") + name + " (x)" : "... (+1)";
        clock.AddSeconds(86400);  // another day's log
        Load();
        EXPECT_EQ(SplitLines(Log()).front(), std::to_string(count) + " T11004 " + names);
    }
}

// A disk that spells the folder in its own way, and counts how often it is asked for a spelling.
class cSpellingDisk : public cFakeFiles {
  public:
    mutable int m_Asked = 0;
    std::string Spelling(std::string_view path) const override {
        ++m_Asked;
        return path.ends_with("\\Alarms\\") ? "C:\\App\\ALARMS\\" : cFakeFiles::Spelling(path);
    }
};

TEST_F(AlarmStore, TheSpellingOfAFolderIsAskedForOnceWhateverNumberOfFilesItHas) {
    cSpellingDisk disk;
    cAlarmStore ofDisk({disk, disk, clock, random, log, texts, settings, categories, timerSave}, kApp);
    for (const std::int32_t id : {1, 2, 3}) {
        const std::string name = PutFile(id, 1);
        disk.Put(name, files.ReadFile(name));
    }
    ofDisk.LoadAlarms();
    EXPECT_EQ(ofDisk.m_Alarms.size(), 3u);
    EXPECT_EQ(disk.m_Asked, 1);
    EXPECT_EQ(ofDisk.FileName(1), "C:\\App\\ALARMS\\A0000001.alm");
}

TEST_F(AlarmStore, AFileThatIsSpelledAnewIsKnownByThatNameBehindTheNextLoad) {
    const std::string own = PutFile(7, 1);
    const std::string odd = std::string(kApp) + "Alarms\\a0000007.ALM";
    files.RenameFile(own, odd);
    Load();
    EXPECT_EQ(store.FileName(7), odd);
    files.RenameFile(odd, own);
    Load();
    EXPECT_EQ(store.FileName(7), own);
}

TEST_F(AlarmStore, AFolderThatCannotBeListedIsNotTakenForAnEmptyOne) {
    PutFile(1, 3);
    Load();
    EXPECT_EQ(store.FolderProblem(), "");
    files.m_FolderProblems[std::string(kApp) + "Alarms\\"] = "/app/Alarms/: Permission denied";
    Load();
    EXPECT_EQ(store.FolderProblem(), "/app/Alarms/: Permission denied");
    EXPECT_TRUE(Log().ends_with("T10053 (/app/Alarms/: Permission denied)\n0 T10041\n"));
    files.m_FolderProblems.clear();
    EXPECT_EQ(AlarmFiles().size(), 1u);
}

TEST_F(AlarmStore, AFolderThatCannotBeWrittenStillLoads) {
    PutFile(1, 40);
    PutFile(2, 1);
    files.m_FolderReadOnly = true;
    Load();
    EXPECT_EQ(store.m_Alarms.size(), 1u);
    EXPECT_EQ(AlarmFiles().size(), 2u);
}

TEST_F(AlarmStore, ALeftoverTemporaryIsClearedAndNeverRead) {
    files.Put(store.FileName(1) + ".$~", "half");
    Load();
    EXPECT_TRUE(store.m_Alarms.empty());
    EXPECT_TRUE(AlarmFiles().empty());
}

TEST_F(AlarmStore, ADrawnNumberOfZeroIsAValidFileAndANewNumberAtTheNextSave) {
    random.m_Values = {0.0};
    const AlarmPtr alarm = MakeAlarm();
    store.SaveAlarm(alarm);
    EXPECT_TRUE(files.FileExists(std::string(kApp) + "Alarms\\A0000000.alm"));
    random.m_Values = {0.5};
    store.SaveAlarm(alarm);
    EXPECT_EQ(alarm->m_FileId, 5000000);
    EXPECT_EQ(AlarmFiles().size(), 2u);
}

TEST_F(AlarmStore, ATooOldAlarmIsGivenUpWithItsFileAndNotInserted) {
    std::vector<std::string> givenUp;
    store.OnGivenUp = [&](const cVigrelRecieverAlarm& alarm) { givenUp.push_back(alarm.m_Sender); };
    const AlarmPtr alarm = At(clock.Now() - 31, "old");
    store.SaveAlarm(alarm);
    EXPECT_FALSE(store.InsertAlarm(alarm, 1000));
    EXPECT_TRUE(store.m_Alarms.empty());
    EXPECT_TRUE(AlarmFiles().empty());
    EXPECT_EQ(givenUp, std::vector<std::string>{"old"});
}

TEST_F(AlarmStore, WhoIsToldThatAnAlarmIsGivenUpFindsNothingOfItAnyMore) {
    std::string seen;
    store.OnGivenUp = [&](const cVigrelRecieverAlarm& alarm) {
        EXPECT_TRUE(alarm.m_Removed);
        seen += alarm.m_Sender + " " + Senders() + " " + std::to_string(AlarmFiles().size()) + "\n";
    };
    const AlarmPtr first = At(clock.Now() - 2, "a"), second = At(clock.Now() - 1, "b"),
                   old = At(clock.Now() - 31, "o");
    for (const AlarmPtr& alarm : {first, second, old}) {
        store.SaveAlarm(alarm);
        store.InsertAlarm(alarm, 1);
    }
    EXPECT_EQ(seen, "a b 1\no b 1\n");
}

TEST_F(AlarmStore, WithNobodyToTellATooOldAlarmGoesAllTheSame) {
    store.OnGivenUp = nullptr;
    const AlarmPtr alarm = At(clock.Now() - 31, "old");
    store.SaveAlarm(alarm);
    EXPECT_FALSE(store.InsertAlarm(alarm, 1000));
    EXPECT_TRUE(store.m_Alarms.empty());
    EXPECT_TRUE(AlarmFiles().empty());
    EXPECT_TRUE(alarm->m_Removed);
}

TEST_F(AlarmStore, TheSweepStopsAtTheFirstAlarmThatIsYoungEnough) {
    settings.m_MaxDays = 0;
    for (const double age : {40.0, 35.0, 10.0, 1.0}) store.InsertAlarm(At(clock.Now() - age, "x"), 0);
    settings.m_MaxDays = 30;
    EXPECT_EQ(store.SweepOldAlarms(), 2);
    EXPECT_EQ(store.m_Alarms.size(), 2u);
    EXPECT_FALSE(timerSave.Enabled());
}

// A station of a busy plant has tens of thousands of them at midnight.
class ManyOldAlarms : public AlarmStore {
  protected:
    // All too old, and one that is not; a turn allows the removal of two files.
    void Sweep(int count) {
        TakeSome(*this, count);
        clock.Set(2026, 3, 17);
        young = Take(MakeAlarm("young"));
        settings.m_MaxDays = 1;
        files.m_OnCall = [this](std::string_view operation, std::string_view) {
            if (operation == "remove") clock.AddSeconds(0.015);
        };
        EXPECT_EQ(store.SweepOldAlarms(), count);
        EXPECT_EQ(store.m_Alarms.size(), 1u);
    }
    AlarmPtr young;
};

TEST_F(ManyOldAlarms, LeaveTheListAtOnceAndTheDiskInShortTurns) {
    Sweep(7);
    EXPECT_EQ(AlarmFiles().size(), 6u);
    EXPECT_TRUE(timerSave.Enabled());
    store.Timer_Save_Tick();
    EXPECT_EQ(AlarmFiles().size(), 4u);
    RunTimer(*this);
    EXPECT_EQ(AlarmFiles().size(), 1u);
    ExpectStored(*this, young);
}

TEST_F(ManyOldAlarms, HoldNoEndUpAndAreRemovedByTheNextStart) {
    Sweep(7);
    store.FinishSaves();
    EXPECT_FALSE(timerSave.Enabled());
    EXPECT_EQ(AlarmFiles().size(), 4u);
    files.m_OnCall = nullptr;
    EXPECT_EQ(store.LoadAlarms(), 3);
    EXPECT_EQ(AlarmFiles().size(), 1u);
}

// Somebody else tidies up at midnight too.
TEST_F(ManyOldAlarms, KeepTheirNumbersUntilTheirFilesAreGone) {
    random.m_Values = {0.1, 0.2, 0.3, 0.4, 0.5};
    Sweep(4);
    for (const std::string& name : AlarmFiles()) {
        if (name != "A5000000.alm") files.RemoveFile(std::string(kApp) + "Alarms\\" + name);
    }
    random.m_Values = {0.4, 0.6};
    const AlarmPtr fresh = Take(MakeAlarm("fresh"));
    RunTimer(*this);
    EXPECT_EQ(fresh->m_FileId, 6000000 - 1);
    ExpectStored(*this, fresh);
    ExpectStored(*this, young);
}

TEST_F(AlarmStore, AnAlarmStaysToTheLastMomentOfItsDays) {
    settings.m_MaxDays = 30;
    const AlarmPtr alarm = At(clock.Now() - 30, "at the limit");
    EXPECT_TRUE(store.InsertAlarm(alarm, 0));
    EXPECT_EQ(store.SweepOldAlarms(), 0);
    clock.AddSeconds(1);
    EXPECT_FALSE(store.InsertAlarm(At(alarm->m_CreatedTime, "a second later"), 0));
    EXPECT_EQ(store.SweepOldAlarms(), 1);
}

}  // namespace
}  // namespace vigrel::testing
