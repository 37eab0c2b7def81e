#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "categories/category_specific_setting.h"
#include "common/log.h"
#include "common/settings.h"
#include "common/texts.h"
#include "events/pending_saves.h"
#include "events/vigrel_reciever_alarm.h"
#include "platform/files.h"
#include "platform/random.h"
#include "platform/timer.h"

namespace vigrel {

// All current alarms, in memory and as one file each in the folder Alarms. The folder is the only memory
// across restarts, and its only index. File form: docs/formats/alarm-file.md.
class cAlarmStore {
  public:
    struct cServices {
        cFiles& files;
        cFiles& ownFiles;  // of exact names: the alarms' files, which the store alone names
        const cClock& clock;
        cRandom& random;
        cLog& log;
        const cTexts& texts;
        const cSettings& settings;
        const cCategorySettings& categories;
        cTimer& timerSave;  // runs while files of many alarms wait to be written or removed
    };
    // m_ApplicationPath ends in a backslash.
    cAlarmStore(const cServices& services, std::string applicationPath);
    // Writes what still waits.
    ~cAlarmStore();
    cAlarmStore(const cAlarmStore&) = delete;
    cAlarmStore& operator=(const cAlarmStore&) = delete;

    // Sorted by m_CreatedTime, oldest first.
    std::deque<AlarmPtr> m_Alarms;

    // An alarm and its file are gone for good.
    std::function<void(cVigrelRecieverAlarm&)> OnGivenUp;

    // Makes the folder where it is missing, so that it survives a crash. Never fails.
    void MakeFolder() const;
    // Rebuilds m_Alarms from the folder; how many alarms it gave up. What is known beforehand not to be
    // readable is left out, and named in the log. Throws cFailure when a file can't be read for another
    // reason.
    std::int32_t LoadAlarms();
    // Writes the alarm's file as a whole, under a free number when it has none; when the call returns it
    // survives a crash. Never fails: a file that can't be written is tried again by RetryUnsaved. An alarm
    // that the store has removed is not written.
    void SaveAlarm(const AlarmPtr& alarm);
    // The same for several, but written behind the call: in short turns, each at a tick of timerSave. One
    // alone is written at once.
    void SaveAlarms(const std::vector<AlarmPtr>& alarms);
    // What is saved from now on is written by FinishSaves, all together.
    void GatherSaves() { m_Gathers = true; }
    void Timer_Save_Tick();
    // Writes now what still waits for its turn, and what could not be written before.
    void FinishSaves();
    void DeleteAlarmFile(const cVigrelRecieverAlarm& alarm);
    // Puts the alarm in its place and enforces both limits; false when an alarm was removed for it, which can
    // be the alarm itself.
    bool InsertAlarm(const AlarmPtr& alarm, std::int32_t maxEvents);
    // Removes the alarms at the front that are older than m_MaxDays; how many they were. Their files go as
    // far as a turn allows, the rest at ticks of timerSave.
    std::int32_t SweepOldAlarms();
    // Writes what could not be written before: what a turn allows at once, the rest as SaveAlarms does.
    void RetryUnsaved();
    // The alarms whose file could not be written as they are now; since when there are any, and what stopped
    // the last try.
    std::size_t UnsavedCount() const { return m_Unsaved.size() + m_Retried.size(); }
    DateTime UnsavedSince() const { return m_UnsavedSince; }
    const std::string& UnsavedReason() const { return m_UnsavedReason; }
    // The folder, and why it could not be listed when the alarms were loaded; empty when it could. There can
    // be alarms in it then that nobody sees.
    const std::string& FolderProblem() const { return m_FolderProblem; }

    // With its folder; spelled as it lies on the disk.
    std::string FileName(std::int32_t fileId) const;

  private:
    void NoteName(const std::string& name, cVigrelRecieverAlarm& alarm, std::set<std::int32_t>& oddlyNamed);
    void RenameToFreeNumber(const std::string& name, cVigrelRecieverAlarm& alarm);
    bool IsTooOld(const cVigrelRecieverAlarm& alarm, DateTime now) const;
    std::size_t FindPlace(const cVigrelRecieverAlarm& alarm) const;
    std::string ForgetFile(const cVigrelRecieverAlarm& alarm);
    void RemoveAlarmFile(const std::string& file) const;
    void RemoveOldFiles(double until);
    void TellGivenUp(cVigrelRecieverAlarm& alarm) const;
    void GiveUp(cVigrelRecieverAlarm& alarm);
    void RemoveOldest();
    bool IsTaken(std::int32_t fileId) const;
    void DrawFileId(cVigrelRecieverAlarm& alarm);
    std::string Bytes(cVigrelRecieverAlarm& alarm);
    bool TrySave(cVigrelRecieverAlarm& alarm);
    void TellUnreadable(const std::vector<cFileReader::cUnreadable>& unreadable) const;
    std::optional<std::int32_t> FileIdOf(const std::string& name);
    // Each gives how many alarms were removed.
    std::int32_t ReadFiles(std::vector<std::string> names, std::vector<AlarmPtr>& alarms);
    std::int32_t InsertAll(const std::vector<AlarmPtr>& alarms);
    std::int32_t InsertOneByOne(const std::vector<AlarmPtr>& alarms);
    void NoteUnsaved(const AlarmPtr& alarm);
    void RetryTheRest();
    void FinishPending();

    cServices m_Services;
    std::string m_ApplicationPath, m_Folder;
    // The names of files that came from elsewhere and are not spelled as the store spells them.
    std::map<std::int32_t, std::string> m_Spellings;
    std::vector<AlarmPtr> m_Unsaved;
    std::vector<AlarmPtr> m_Retried;  // of them, what m_Pending is writing; one that fails comes back
    DateTime m_UnsavedSince = 0;
    std::string m_UnsavedReason;
    std::string m_FolderProblem;
    // Of alarms that are gone, and have still to go themselves; by number.
    std::map<std::int32_t, std::string> m_OldFiles;
    cPendingSaves m_Pending;
    bool m_Gathers = false;
};

}  // namespace vigrel
