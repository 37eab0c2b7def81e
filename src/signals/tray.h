#pragma once

#include <cstdint>
#include <deque>
#include <string>

#include "common/receiver_state.h"
#include "common/settings.h"
#include "events/vigrel_reciever_alarm.h"
#include "platform/notification_area.h"
#include "platform/report_list.h"
#include "platform/timer.h"
#include "platform/windows.h"

namespace vigrel {

// The notification icon: it flashes as long as there are alarms that nobody has looked at, and its tooltip
// counts them. The flashing follows from the alarms alone, not from the sound.
class cTray {
  public:
    // Numbers of the images.
    static constexpr std::int16_t kFlashIcon = 1, kRestingIcon = 2;

    struct cServices {
        cNotificationArea& trayArea;
        cTimer& timerPlay;
        cReportList& list;
        cWindow& mainWindow;
        const std::deque<AlarmPtr>& alarms;
        cReceiverState& state;
        const cSettings& settings;
    };
    // Listens to the icon's three notices from now on.
    explicit cTray(const cServices& services);

    // At start: shows the icon, unless the program stands in the task bar.
    void SetUp();
    // The tray part of a tick, behind the sound part.
    void TickTray();

  private:
    void Recount();
    std::int16_t NextIcon() const;
    void UpdateToolTip();
    void Click();
    void Open();

    cServices m_Services;
    bool m_FlashPhase = false;
    std::int32_t m_TipDelayCounter = 0;  // milliseconds of ticks; see TickTray
    std::int16_t m_TrayIconIndex = 0;    // the image last set; 0: none yet
    std::int16_t m_NotObservedCount = 0;
};

}  // namespace vigrel
