#pragma once

#include <functional>

#include "events/listed_alarm_services.h"

namespace vigrel {

// The operator has seen an alarm. Acknowledging is local to this station: it changes the alarm's icon, its
// file and the log, and can end the running sound.
class cAcknowledgement {
  public:
    explicit cAcknowledgement(const cListedAlarmServices& services) : m_Services(services) {}

    // Either may be nothing (0, null); a popup passes the alarm, the list its row.
    void AckAlarm(RecordId row, const AlarmPtr& alarm);
    void Menu_AckAll();
    // closePopups closes every open popup, skipping failures.
    void Menu_AckAll_AndClosePopups(const std::function<void()>& closePopups);

  private:
    // Ends the sound and marks the alarm; whether it was not marked before and so is to be saved.
    bool Observe(cVigrelRecieverAlarm& alarm);
    void EndSound();

    cListedAlarmServices m_Services;
};

}  // namespace vigrel
