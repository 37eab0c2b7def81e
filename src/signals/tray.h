#pragma once

#include <cstdint>
#include <deque>

#include "common/receiver_state.h"
#include "common/settings.h"
#include "events/cVigrelRecieverAlarm.h"
#include "platform/notification_area.h"
#include "platform/report_list.h"
#include "platform/timer.h"
#include "platform/windows.h"

namespace vigrel {

// The notification icon: it flashes while there are alarms that nobody has observed, and its tooltip counts
// them.
class cTray {
  public:
    struct cServices {
        cNotificationArea& trayArea;
        cTimer& timerPlay;
        cReportList& list;
        cWindow& mainWindow;
        const std::deque<AlarmPtr>& alarms;
        cReceiverState& state;
        const cSettings& settings;
    };
    explicit cTray(const cServices& services);

    // Shows the icon unless the program stands in the task bar.
    void SetUp();
    // The tray part of a tick of Timer_Play.
    void TickTray();

  private:
    void Recount();
    void UpdateToolTip();
    void Click();
    void Open();

    cServices m_Services;
    bool m_FlashPhase = false;            // flips on every tick
    std::int32_t m_TipDelayCounter = 0;   // milliseconds of ticks; stops growing when it has done its work
    std::int16_t m_TrayIconIndex = 0;     // icon last set
    std::int16_t m_NotObservedCount = 0;  // stops at 32,767
};

}  // namespace vigrel
