#pragma once

#include "events/listed_alarm_services.h"

namespace vigrel {

// Keeps the store and the list together: every alarm that the store holds has its row, and the row of one
// that the store gives up goes with it.
class cListedAlarms {
  public:
    explicit cListedAlarms(const cListedAlarmServices& services);
    ~cListedAlarms() { m_Services.store.OnGivenUp = nullptr; }
    cListedAlarms(const cListedAlarms&) = delete;
    cListedAlarms& operator=(const cListedAlarms&) = delete;

    // Builds both anew from the folder, and logs how many alarms there are. Throws as the store does.
    void LoadAlarms();
    // A new alarm: its row, its file, its place in the order. The row comes first, since the limits can take
    // the alarm at once. A step that fails is skipped; the list takes the row over when told to.
    void TakeIn(const AlarmPtr& alarm);
    // Removes what is too old, and logs how many that were.
    void SweepOldAlarms();

  private:
    void LogRemoved(std::int32_t removed);

    cListedAlarmServices m_Services;
};

}  // namespace vigrel
