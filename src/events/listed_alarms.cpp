#include "events/listed_alarms.h"

#include "common/failure.h"

namespace vigrel {

cListedAlarms::cListedAlarms(const cListedAlarmServices& services) : m_Services(services) {
    m_Services.store.OnGivenUp = [this](cVigrelRecieverAlarm& alarm) {
        m_Services.view.RemoveAlarmRow(alarm);
    };
}

void cListedAlarms::LoadAlarms() {
    cReportList& list = m_Services.list;
    list.SetVisible(false);
    list.RemoveAllRecords();
    const std::int32_t removed = m_Services.store.LoadAlarms();
    for (const AlarmPtr& alarm : m_Services.store.m_Alarms) m_Services.view.AddAlarmRow(alarm);
    list.TakeOverRecords();
    list.ClearSelection();
    list.SetVisible(true);
    LogRemoved(removed);
    m_Services.log.WriteLog(std::to_string(m_Services.store.m_Alarms.size()) + " " +
                            m_Services.texts.GetText(TextAlarmsLoaded));
    m_Services.state.m_ListChanged = true;
}

void cListedAlarms::TakeIn(const AlarmPtr& alarm) {
    SkipFailure([&] { m_Services.view.AddAlarmRow(alarm); });
    SkipFailure([&] { m_Services.store.SaveAlarm(alarm); });
    SkipFailure([&] { m_Services.store.InsertAlarm(alarm, m_Services.settings.m_MaxEvents); });
}

void cListedAlarms::SweepOldAlarms() {
    const std::int32_t removed = m_Services.store.SweepOldAlarms();
    m_Services.list.TakeOverRecords();
    LogRemoved(removed);
}

void cListedAlarms::LogRemoved(std::int32_t removed) {
    if (removed <= 0) return;
    m_Services.log.WriteLog(std::to_string(removed) + " " + m_Services.texts.GetText(TextAlarmsRemoved));
}

}  // namespace vigrel
