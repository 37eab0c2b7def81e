#include "events/acknowledgement.h"

#include <vector>

#include "common/failure.h"

namespace vigrel {

void cAcknowledgement::EndSound() {
    if (!m_Services.settings.m_EventSignalUntilNoMorePopupForms || m_Services.state.m_PopupFormCount == 0) {
        m_Services.state.m_SoundState = SoundSilent;
    }
}

void cAcknowledgement::AckAlarm(RecordId row, const AlarmPtr& alarm) {
    const AlarmPtr found = alarm ? alarm : m_Services.view.AlarmOf(row);
    if (!found) return;
    if (Observe(*found)) m_Services.store.SaveAlarm(found);
}

bool cAcknowledgement::Observe(cVigrelRecieverAlarm& alarm) {
    EndSound();
    m_Services.state.m_ListChanged = true;
    if (alarm.m_Observed != False16) return false;
    m_Services.log.WriteLog(m_Services.texts.GetText(TextAcknowledged) + " " + alarm.SysLogText());
    alarm.m_Observed = True16;
    m_Services.view.UpdateAlarmRow(alarm);
    return true;
}

void cAcknowledgement::Menu_AckAll() {
    std::vector<AlarmPtr> observed;
    const auto observeAll = [&] {
        for (const RecordId row : m_Services.list.Rows()) {
            const AlarmPtr alarm = m_Services.view.AlarmOf(row);
            if (alarm->m_Observed != False16) continue;
            Observe(*alarm);
            observed.push_back(alarm);
        }
    };
    // What was answered in front of a failure is answered.
    CleanUpBehind(observeAll, [&] { m_Services.store.SaveAlarms(observed); });
    m_Services.store.SaveAlarms(observed);
    EndSound();
}

void cAcknowledgement::Menu_AckAll_AndClosePopups(const std::function<void()>& closePopups) {
    Menu_AckAll();
    if (m_Services.state.m_PopupFormCount > 0) SkipFailure(closePopups);
    EndSound();
}

}  // namespace vigrel
