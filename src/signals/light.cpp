#include "signals/light.h"

#include "common/failure.h"
#include "common/numbers.h"
#include "common/text.h"

namespace vigrel {
namespace {

constexpr std::int16_t kLeds = 4;
constexpr std::int32_t kDeviceTypes = 4;
constexpr std::int32_t kMostDevices = 255;
constexpr std::size_t kNameBuffer = 512;
constexpr std::int32_t kModeOff = 0;

// The number of the LED's entry; a missing one reads as 0.
double Number(const std::string& entries, std::int16_t led) {
    return Val(GetField(entries, led, "/"));
}

}  // namespace

std::int16_t cLight::ScanDevices() {
    cReceiverState& state = m_Services.state;
    std::int16_t devices = 0;
    state.m_DelcomDllVersion = 0;
    SkipFailure([&] { state.m_DelcomDllVersion = m_Services.library.DelcomGetDLLVersion(); });
    if (state.m_DelcomDllVersion == 0) return 0;
    std::string version = NumberText(state.m_DelcomDllVersion);
    ReplaceText(version, ",", ".");
    m_Services.log.WriteLog(m_Services.texts.GetText(10027) + " " + version);
    for (std::int32_t type = 1; type <= kDeviceTypes; ++type) {
        SkipFailure([&] { ScanType(type, devices); });
    }
    if (devices == 0) m_Services.log.WriteLog(m_Services.texts.GetText(10046));
    return devices;
}

void cLight::ScanType(std::int32_t type, std::int16_t& devices) {
    const std::int32_t count = m_Services.library.DelcomGetDeviceCount(type);
    if (count <= 0) return;
    devices = ToInt16(devices + count);
    for (std::int32_t index = 0; index < kMostDevices; ++index) {
        std::string buffer(kNameBuffer, '\0');
        m_Services.library.DelcomGetNthDevice(type, index, buffer);
        const std::string name = buffer.substr(0, buffer.find('\0'));
        if (name.empty()) break;
        m_Services.log.WriteLog(m_Services.texts.GetText(10047) + " (type " + std::to_string(type) +
                                "): " + name);
    }
}

// Opens each named device, up to the first empty name, for the steps; one that can't be opened is passed
// over.
void cLight::ForEachDevice(const std::string& names, const std::function<void(std::int32_t)>& steps,
                           const std::function<void()>& closed) {
    if (m_Services.state.m_DelcomDllVersion == 0) return;
    for (std::int16_t index = 0;; ++index) {
        const std::string name = Trim(GetField(names, index, ","));
        if (name.empty()) return;
        std::int32_t handle = 0;
        SkipFailure([&] { handle = m_Services.library.DelcomOpenDevice(name, 0); });
        if (handle <= 0) continue;
        steps(handle);
        SkipFailure([&] { m_Services.library.DelcomCloseDevice(handle); });
        closed();
    }
}

void cLight::SignalUsbLight(const cVigrelRecieverAlarm& alarm) {
    const cCategorySpecificSetting& setting = *alarm.m_CategorySpecificSetting;
    const int status = alarm.m_Alarm.m_Status;
    ForEachDevice(
        setting.Get_USBLED_DeviceName(status), [&](std::int32_t handle) { Program(handle, setting, status); },
        [&] { m_Services.menus.SetEnabled("Menu_StopLight", true); });
}

void cLight::Program(std::int32_t handle, const cCategorySpecificSetting& setting, int status) {
    SkipFailure([&] {
        m_Services.library.DelcomLoadPreScalar(handle, ToByte(setting.Get_USBLED_PreScalar(status)));
    });
    for (std::int16_t led = 0; led < kLeds; ++led) ProgramLed(handle, led, setting, status);
    if (setting.Get_USBLED_SyncLeds(status) != False16) {
        SkipFailure([&] { m_Services.library.DelcomSyncLeds(handle); });
    }
}

// A number that doesn't fit costs the one call that it stands in.
void cLight::ProgramLed(std::int32_t handle, std::int16_t led, const cCategorySpecificSetting& setting,
                        int status) {
    cSignalLight& library = m_Services.library;
    const auto number = static_cast<std::uint8_t>(led);
    SkipFailure([&] {
        const std::string pair = GetField(setting.Get_USBLED_FreqDuty(status), led, "/");
        library.DelcomLoadLedFreqDuty(handle, number, ToByte(Val(GetField(pair, 0, ","))),
                                      ToByte(Val(GetField(pair, 1, ","))));
    });
    SkipFailure([&] {
        library.DelcomLoadInitialPhaseDelay(
            handle, number, ToByte(Number(setting.Get_USBLED_InitialPhaseDelay(status), led)));
    });
    SkipFailure(
        [&] { library.DelcomLEDPower(handle, led, ToInt32(Number(setting.Get_USBLED_Power(status), led))); });
    SkipFailure([&] {
        library.DelcomLEDControl(handle, led, ToInt32(Number(setting.Get_USBLED_Control(status), led)));
    });
}

void cLight::Menu_StopLight() {
    const auto switchOff = [&](std::int32_t handle) {
        for (std::int16_t led = 0; led < kLeds; ++led) {
            SkipFailure([&] { m_Services.library.DelcomLEDControl(handle, led, kModeOff); });
        }
    };
    for (const cCategorySpecificSetting& setting : m_Services.categories.m_CategorySettings) {
        for (int status = 0; status < 4; ++status) {
            ForEachDevice(setting.Get_USBLED_DeviceName(status), switchOff, [] {});
        }
    }
    m_Services.menus.SetEnabled("Menu_StopLight", false);
}

}  // namespace vigrel
