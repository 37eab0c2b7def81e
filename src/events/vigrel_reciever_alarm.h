#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "categories/category_specific_setting.h"
#include "events/alarm.h"
#include "platform/report_list.h"

namespace vigrel {

// One alarm as the receiver holds it. Every received record becomes one new object; objects are never merged
// or updated from a later record. m_Observed alone moves, from false to true, once.
class cVigrelRecieverAlarm {
  public:
    cVigrelRecieverAlarm(const cClock& clock, const cCategorySpecificSetting& setting)
        : m_Alarm(clock), m_CreatedTime(clock.Now()), m_CategorySpecificSetting(setting) {}

    cAlarm m_Alarm;
    std::string m_Sender;
    Boolean16 m_Observed = False16;
    DateTime m_CreatedTime;     // when the object came into being here; the key of the store's order
    std::int32_t m_FileId = 0;  // number of the alarm's file; 0 while it has none
    RecordId m_Record = 0;      // the list record that shows the alarm; 0 while it has none; not stored
    // The settings of its category (cAlarmMaker); shared with other alarms, not owned, not stored.
    std::reference_wrapper<const cCategorySpecificSetting> m_CategorySpecificSetting;
    // What the list shows as its category, where that is translated; the list's own, not stored.
    const std::string* m_CategoryText = nullptr;
    // The store has given it up: it has no file any more, and a popup that still shows it brings none back.
    // Not stored.
    bool m_Removed = false;

    // The alarm as log lines show it: "Active - t0 (t1/t2/t3/t4)". The state word is never translated.
    std::string SysLogText() const;
    void WriteToDisk(cBinaryWriter& file) const;
    void ReadFromDisk(cBinaryReader& file);
};

// An alarm lives as long as the store, the list or a popup refers to it.
using AlarmPtr = std::shared_ptr<cVigrelRecieverAlarm>;

}  // namespace vigrel
