#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "categories/category_specific_setting.h"
#include "common/log.h"
#include "common/receiver_state.h"
#include "common/texts.h"
#include "events/vigrel_reciever_alarm.h"
#include "platform/signal_light.h"
#include "platform/windows.h"

namespace vigrel {

// The USB signal lights. An event programs the lights that its category names for its status, and they go on
// by themselves; there is no notion of a light that is on. No handle outlives a call.
//
// A light that fails is passed over: no failure leaves this class, and none is logged.
class cLight {
  public:
    struct cServices {
        cSignalLight& library;
        cMenus& menus;
        const cCategorySettings& categories;
        cReceiverState& state;
        const cTexts& texts;
        cLog& log;
    };
    explicit cLight(const cServices& services) : m_Services(services) {}

    // At start: notes the library's version, 0 when it is absent, and logs the devices that are there. How
    // many they are.
    std::int16_t ScanDevices();
    // Programs the lights and enables the menu entry when one could be opened.
    void SignalUsbLight(const cVigrelRecieverAlarm& alarm);
    // Switches off all lights that a category names, and disables its own menu entry. Lights that only the
    // default settings name are not reached.
    void Menu_StopLight();

  private:
    void LogNames(std::int32_t type);
    std::string DeviceName(std::int32_t type, std::int32_t index);
    // Opens the devices of a comma-separated list one by one, up to an empty name, and calls with each
    // handle.
    void ForEachDevice(const cCategorySpecificSetting& setting, int status,
                       const std::function<void(std::int32_t handle)>& visit);
    void Programme(std::int32_t handle, const cCategorySpecificSetting& setting, int status);
    void ProgrammeLed(std::int32_t handle, std::uint8_t led, const cCategorySpecificSetting& setting,
                      int status);

    cServices m_Services;
};

}  // namespace vigrel
