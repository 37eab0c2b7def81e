#include "events/alarm_maker.h"

namespace vigrel {

AlarmPtr cAlarmMaker::Make(const std::function<void(cVigrelRecieverAlarm&)>& fill) const {
    auto alarm = std::make_shared<cVigrelRecieverAlarm>(m_Clock, m_Categories.m_DefaultCategorySetting);
    fill(*alarm);
    alarm->m_CategorySpecificSetting = m_Categories.Find(alarm->m_Alarm.GetCondition(ConditionCategory));
    return alarm;
}

}  // namespace vigrel
