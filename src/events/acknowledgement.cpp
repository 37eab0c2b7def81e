#include "events/acknowledgement.h"

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
    EndSound();
    if (found->m_Observed == False16) {
        m_Services.log.WriteLog(m_Services.texts.GetText(TextAcknowledged) + " " + found->SysLogText());
        found->m_Observed = True16;
        m_Services.view.UpdateAlarmRow(*found);
        m_Services.store.SaveAlarm(found);
    }
    m_Services.state.m_ListChanged = true;
}

void cAcknowledgement::Menu_AckAll() {
    m_Services.store.SaveTogether([&] {
        for (const RecordId row : m_Services.list.Rows()) {
            const AlarmPtr alarm = m_Services.view.AlarmOf(row);
            if (alarm && alarm->m_Observed == False16) AckAlarm(row, nullptr);
        }
    });
    EndSound();
}

void cAcknowledgement::Menu_AckAll_AndClosePopups(const std::function<void()>& closePopups) {
    Menu_AckAll();
    if (m_Services.state.m_PopupFormCount > 0) SkipFailure(closePopups);
    EndSound();
}

}  // namespace vigrel
