#pragma once

#include <functional>

#include "common/log.h"
#include "common/settings.h"
#include "common/texts.h"
#include "events/alarm_list_view.h"
#include "events/listed_alarms.h"
#include "platform/windows.h"

namespace vigrel {

// The one door through which an event enters: list, file, limits, popup, sound, window, printer, list
// refresh, light. The event is on disk before anything is signalled. Each step stands alone; one that fails
// stops none behind it.
class cAlarmIntake {
  public:
    // The signals, each as one call. PrintEvent is false when the printer failed.
    struct cSignals {
        std::function<void(const AlarmPtr&)> ShowPopup;
        std::function<void(const cCategorySpecificSetting&)> StartSound;
        std::function<bool(const cVigrelRecieverAlarm&)> PrintEvent;
        std::function<void(const cVigrelRecieverAlarm&)> SignalUsbLight;
    };
    struct cServices {
        cListedAlarms& alarms;
        cAlarmListView& view;
        cWindow& mainWindow;
        cLog& log;
        const cTexts& texts;
        const cSettings& settings;
        cSignals signalling;
    };
    explicit cAlarmIntake(cServices services) : m_Services(std::move(services)) {}

    void ProcessAlarm(const AlarmPtr& alarm);

  private:
    bool OpensPopup(const cVigrelRecieverAlarm& alarm) const;
    void RestoreWindow();
    void Print(const cVigrelRecieverAlarm& alarm);

    cServices m_Services;
};

}  // namespace vigrel
