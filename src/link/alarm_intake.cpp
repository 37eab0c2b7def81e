#include "link/alarm_intake.h"

#include "common/failure.h"
#include "common/text.h"

namespace vigrel {

void cAlarmIntake::ProcessAlarm(const AlarmPtr& alarm) {
    const cSettings& settings = m_Services.settings;
    const bool active = alarm->m_Alarm.m_Status == StatusActive;
    m_Services.alarms.TakeIn(alarm);
    if (OpensPopup(*alarm)) SkipFailure([&] { m_Services.signalling.ShowPopup(alarm); });
    if (active || !settings.m_EventSignalOnlyForActive) {
        SkipFailure([&] { m_Services.signalling.StartSound(alarm->m_CategorySpecificSetting); });
    }
    if (settings.m_EventRestore && (active || !settings.m_EventRestoreOnlyForActive)) RestoreWindow();
    if (settings.m_PrinterPort > 0) Print(*alarm);
    SkipFailure([&] { m_Services.view.ShowNewAlarm(*alarm); });
    SkipFailure([&] { m_Services.signalling.SignalUsbLight(*alarm); });
}

bool cAlarmIntake::OpensPopup(const cVigrelRecieverAlarm& alarm) const {
    const cSettings& settings = m_Services.settings;
    if (!settings.m_ViewPopupForm) return false;
    const std::string& categories = settings.m_ViewOnlyPopupFormForCategory;
    // The list is enclosed in commas, so that only whole names match.
    const std::string wanted = "," + alarm.m_Alarm.GetCondition(ConditionCategory) + ",";
    if (!categories.empty() && FindNoCase(categories, wanted) == 0) return false;
    return alarm.m_Alarm.m_Status == StatusActive || !settings.m_PopupFormOnlyForActive;
}

void cAlarmIntake::RestoreWindow() {
    cWindow& window = m_Services.mainWindow;
    SkipFailure([&] {
        if (window.State() == eWindowState::Minimised) window.SetState(eWindowState::Normal);
    });
    // Fails for a window that hides in the notification area; showing it is what counts then.
    SkipFailure([&] { window.SetFocus(); });
    SkipFailure([&] { window.Show(); });
}

void cAlarmIntake::Print(const cVigrelRecieverAlarm& alarm) {
    bool printed = true;
    SkipFailure([&] { printed = m_Services.signalling.PrintEvent(alarm); });
    if (!printed)
        m_Services.log.WriteLog(m_Services.texts.GetText(TextPrintFailed) + " " + alarm.SysLogText());
}

}  // namespace vigrel
