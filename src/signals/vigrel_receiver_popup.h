#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "common/ini.h"
#include "common/log.h"
#include "common/receiver_state.h"
#include "common/setting_keys.h"
#include "common/settings.h"
#include "common/texts.h"
#include "events/vigrel_reciever_alarm.h"
#include "platform/clock.h"
#include "platform/popup_window.h"

namespace vigrel {

// What popups need of the receiver.
struct cPopupServices {
    const cSettings& settings;
    cReceiverState& state;
    const cIniReader& ini;
    const cTexts& texts;
    cLog& log;
    const cClock& clock;
    const cScreen& screen;
    cWindowList& windows;
    cPopupMaker& maker;
    // The text of an event by a template; never fails.
    std::function<std::string(const cVigrelRecieverAlarm&, std::string_view eventTemplate,
                              std::string_view extraText)>
        expandEventText;
    std::function<void(const AlarmPtr&)> ackAlarm;
};

// Priority of a popup whose category is not listed in m_PopupFormTopMostCategory.
inline constexpr std::int16_t kUnlistedPriority = 9999;

// One popup and what happens to it. Loaded when it is made; its window is the maker's.
class Vigrel_Receiver_Popup {
  public:
    Vigrel_Receiver_Popup(cPopupServices& services, cPopupWindow& window)
        : m_Window(window), m_Services(services) {}

    void Load();
    void QueryUnload(eCloseReason reason) { m_UnloadMode = reason; }
    void Resize();
    void Picture_Alarm_Click();
    // Tells selectNext to bring the next popup to view while this one still counts. Does not fail: each step
    // whose failure could stop the next one is skipped then, so that the count of popups stays right.
    void Unload(const std::function<void()>& selectNext);

    cPopupWindow& m_Window;
    AlarmPtr m_Alarm;                                  // none until ShowPopup got that far
    DateTime m_TimeStamp = 0;                          // when the popup was created
    std::int32_t m_FormId = 0;                         // for identification only
    std::int16_t m_PriorityIndex = kUnlistedPriority;  // a lower number stands higher
    eCloseReason m_UnloadMode = eCloseReason::Control;

  private:
    void LogClose(eText text);

    cPopupServices& m_Services;
};

}  // namespace vigrel
