#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "categories/cCategorySpecificSetting.h"
#include "common/log.h"
#include "common/receiver_state.h"
#include "common/texts.h"
#include "events/cVigrelRecieverAlarm.h"
#include "platform/signal_light.h"
#include "platform/windows.h"

namespace vigrel {

// The USB signal lights: each event programs the devices that its category names for its status, and the
// light goes on by itself. No device stays open longer than a step.
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

    // Looks for the library and its devices, logs them and sets m_DelcomDllVersion. The number of devices.
    std::int16_t ScanDevices();
    void SignalUsbLight(const cVigrelRecieverAlarm& alarm);
    // Switches off every light that a category names.
    void Menu_StopLight();

  private:
    void ScanType(std::int32_t type, std::int16_t& devices);
    // closed is called for each device that was open, behind its closing.
    void ForEachDevice(const std::string& names, const std::function<void(std::int32_t handle)>& steps,
                       const std::function<void()>& closed);
    void Program(std::int32_t handle, const cCategorySpecificSetting& setting, int status);
    void ProgramLed(std::int32_t handle, std::int16_t led, const cCategorySpecificSetting& setting,
                    int status);

    cServices m_Services;
};

}  // namespace vigrel
