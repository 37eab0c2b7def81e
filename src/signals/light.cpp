#include "signals/light.h"

#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

constexpr std::string_view kMenu = "Menu_StopLight";
constexpr std::int32_t kDeviceTypes = 4;
constexpr std::int32_t kMostDevices = 255;  // of one type
constexpr std::size_t kNameBuffer = 512;
constexpr int kStatuses = 4;
constexpr std::uint8_t kLeds = 4;
constexpr std::int32_t kModeOff = 0;

// The number of a LED's entry; 0 where there are fewer.
double Entry(const std::string& entries, std::uint8_t led) {
    return Val(GetField(entries, led, "/"));
}

}  // namespace

std::int16_t cLight::ScanDevices() {
    double version = 0;
    SkipFailure([&] { version = m_Services.library.DelcomGetDLLVersion(); });
    m_Services.state.m_DelcomDllVersion = version;
    if (version == 0) return 0;
    m_Services.log.WriteLog(m_Services.texts.GetText(TextLightLibrary) + " " + NumberText(version));
    std::int16_t devices = 0;
    for (std::int32_t type = 1; type <= kDeviceTypes; ++type) {
        std::int32_t count = 0;
        SkipFailure([&] { count = m_Services.library.DelcomGetDeviceCount(type); });
        if (count <= 0) continue;
        SkipFailure([&] { devices = ToInt16(static_cast<double>(count) + devices); });
        LogNames(type);
    }
    if (devices == 0) m_Services.log.WriteLog(m_Services.texts.GetText(TextNoLight));
    return devices;
}

void cLight::LogNames(std::int32_t type) {
    for (std::int32_t index = 0; index < kMostDevices; ++index) {
        const std::string name = DeviceName(type, index);
        if (name.empty()) return;
        m_Services.log.WriteLog(m_Services.texts.GetText(TextLightFound) + " (type " + std::to_string(type) +
                                "): " + name);
    }
}

std::string cLight::DeviceName(std::int32_t type, std::int32_t index) {
    std::string buffer(kNameBuffer, '\0');
    SkipFailure([&] { m_Services.library.DelcomGetNthDevice(type, index, buffer); });
    return buffer.substr(0, buffer.find('\0'));
}

void cLight::ForEachDevice(const cCategorySpecificSetting& setting, int status,
                           const std::function<void(std::int32_t handle)>& visit) {
    if (m_Services.state.m_DelcomDllVersion == 0) return;
    const std::string& names = setting.Get_USBLED_DeviceName(status);
    for (std::int16_t index = 0;; ++index) {
        const std::string name = Trim(GetField(names, index, ","));
        if (name.empty()) return;
        std::int32_t handle = 0;
        SkipFailure([&] { handle = m_Services.library.DelcomOpenDevice(name, 0); });
        if (handle <= 0) continue;
        visit(handle);
        SkipFailure([&] { m_Services.library.DelcomCloseDevice(handle); });
    }
}

void cLight::SignalUsbLight(const cVigrelRecieverAlarm& alarm) {
    const cCategorySpecificSetting& setting = alarm.m_CategorySpecificSetting;
    const int status = alarm.m_Alarm.m_Status;
    SkipFailure([&] {
        bool opened = false;
        ForEachDevice(setting, status, [&](std::int32_t handle) {
            Programme(handle, setting, status);
            opened = true;
        });
        if (opened) m_Services.menus.SetEnabled(kMenu, true);
    });
}

void cLight::Programme(std::int32_t handle, const cCategorySpecificSetting& setting, int status) {
    cSignalLight& library = m_Services.library;
    SkipFailure([&] { library.DelcomLoadPreScalar(handle, ToByte(setting.Get_USBLED_PreScalar(status))); });
    for (std::uint8_t led = 0; led < kLeds; ++led) ProgrammeLed(handle, led, setting, status);
    if (setting.Get_USBLED_SyncLeds(status) != False16) SkipFailure([&] { library.DelcomSyncLeds(handle); });
}

// A number that doesn't fit its argument costs that one call.
void cLight::ProgrammeLed(std::int32_t handle, std::uint8_t led, const cCategorySpecificSetting& setting,
                          int status) {
    cSignalLight& library = m_Services.library;
    SkipFailure([&] {
        const std::string pair = GetField(setting.Get_USBLED_FreqDuty(status), led, "/");
        library.DelcomLoadLedFreqDuty(handle, led, ToByte(Val(GetField(pair, 0, ","))),
                                      ToByte(Val(GetField(pair, 1, ","))));
    });
    SkipFailure([&] {
        library.DelcomLoadInitialPhaseDelay(handle, led,
                                            ToByte(Entry(setting.Get_USBLED_InitialPhaseDelay(status), led)));
    });
    SkipFailure(
        [&] { library.DelcomLEDPower(handle, led, ToInt32(Entry(setting.Get_USBLED_Power(status), led))); });
    SkipFailure([&] {
        library.DelcomLEDControl(handle, led, ToInt32(Entry(setting.Get_USBLED_Control(status), led)));
    });
}

void cLight::Menu_StopLight() {
    for (const cCategorySpecificSetting& setting : m_Services.categories.m_CategorySettings) {
        for (int status = 0; status < kStatuses; ++status) {
            ForEachDevice(setting, status, [this](std::int32_t handle) {
                for (std::int32_t led = 0; led < kLeds; ++led) {
                    SkipFailure([&] { m_Services.library.DelcomLEDControl(handle, led, kModeOff); });
                }
            });
        }
    }
    m_Services.menus.SetEnabled(kMenu, false);
}

}  // namespace vigrel
