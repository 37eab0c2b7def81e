#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "common/log.h"
#include "common/receiver_state.h"
#include "common/settings.h"
#include "common/texts.h"
#include "events/vigrel_reciever_alarm.h"
#include "platform/files.h"
#include "platform/random.h"
#include "platform/report_list.h"

namespace vigrel {

// All current alarms, in memory and as one file each in the folder Alarms. The folder is the only memory
// across restarts, and its only index. File form: docs/formats/alarm-file.md.
class cAlarmStore {
  public:
    struct cServices {
        cFiles& files;
        const cClock& clock;
        cRandom& random;
        cReportList& list;
        cLog& log;
        const cTexts& texts;
        const cSettings& settings;
        cReceiverState& state;
    };
    // m_ApplicationPath ends in a backslash.
    cAlarmStore(const cServices& services, std::string applicationPath);

    // Sorted by m_CreatedTime, oldest first.
    std::deque<AlarmPtr> m_Alarms;

    // Rebuilds m_Alarms and the list from the folder. addAlarmRow is called for each alarm that stays, in
    // order. What is known beforehand not to be readable is left out, and named in the log. Throws cFailure
    // when a file can't be read for another reason.
    void LoadAlarms(const std::function<void(const AlarmPtr&)>& addAlarmRow);
    // Writes the alarm's file as a whole, under a free number when it has none; when the call returns it
    // survives a crash. Never fails: a file that can't be written is tried again by RetryUnsaved. An alarm
    // that the store has removed is not written.
    void SaveAlarm(const AlarmPtr& alarm);
    // What the steps save is collected and written at the end with one wait for the disk.
    void SaveTogether(const std::function<void()>& steps);
    void DeleteAlarmFile(const cVigrelRecieverAlarm& alarm);
    // Puts the alarm in its place and enforces both limits; false when an alarm was removed for it, which can
    // be the alarm itself.
    bool InsertAlarm(const AlarmPtr& alarm, std::int32_t maxEvents);
    // Removes the alarms at the front that are older than m_MaxDays; how many they were.
    std::int32_t SweepOldAlarms();
    // Writes what could not be written before.
    void RetryUnsaved();
    // The alarms whose file could not be written as they are now; since when there are any, and what stopped
    // the last try.
    std::size_t UnsavedCount() const { return m_Unsaved.size(); }
    DateTime UnsavedSince() const { return m_UnsavedSince; }
    const std::string& UnsavedReason() const { return m_UnsavedReason; }

    std::string FileName(std::int32_t fileId) const;

  private:
    bool IsTooOld(const cVigrelRecieverAlarm& alarm) const;
    std::size_t FindPlace(const cVigrelRecieverAlarm& alarm) const;
    void RemoveRow(cVigrelRecieverAlarm& alarm);
    void GiveUp(cVigrelRecieverAlarm& alarm);
    void RemoveOldest();
    void DrawFileId(cVigrelRecieverAlarm& alarm);
    std::string Bytes(cVigrelRecieverAlarm& alarm);
    bool TrySave(cVigrelRecieverAlarm& alarm);
    void SaveCollected();
    std::set<std::string> TellUnreadable() const;
    AlarmPtr ReadAlarm(const std::string& name);

    cServices m_Services;
    std::string m_Folder;
    std::vector<AlarmPtr> m_Unsaved;
    DateTime m_UnsavedSince = 0;
    std::string m_UnsavedReason;
    bool m_Collecting = false;
    std::vector<AlarmPtr> m_Collected;
};

}  // namespace vigrel
