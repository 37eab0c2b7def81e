#include "adapters/linux/hid_signal_light.h"

#include <hidapi.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>
#include <tuple>
#include <utility>

#include "common/failure.h"

namespace vigrel {
namespace {

constexpr unsigned short kVendor = 0x0FC5, kProduct = 0xB080;
constexpr std::size_t kPacketSize = 8;
using Packet = std::array<std::uint8_t, kPacketSize>;

// Major commands.
constexpr std::uint8_t kWrite = 101, kReadFirmware = 10;
// Minor commands of kWrite; those of one LED are numbered on from that of LED 0.
constexpr std::uint8_t kPins = 12;        // LSB: pins to switch on, MSB: pins to switch off
constexpr std::uint8_t kPreScalar = 19;   // LSB: the value
constexpr std::uint8_t kFlash = 20;       // LSB: pins that stop flashing, MSB: pins that flash
constexpr std::uint8_t kFreqDuty = 21;    // LSB: time on, MSB: time off
constexpr std::uint8_t kSync = 25;        // LSB: pins, MSB: their values at the start
constexpr std::uint8_t kPhaseDelay = 26;  // LSB: the delay
constexpr std::uint8_t kPower = 34;       // LSB: the LED, MSB: the value
constexpr std::uint8_t kAllPins = 0x0F;

constexpr std::int32_t kLeds = 4;
constexpr double kSecondsOfDay = 86400;

using Device = std::unique_ptr<hid_device, void (*)(hid_device*)>;

int Pin(std::int32_t led) {
    if (led < 0 || led >= kLeds) throw cFailure(eFailure::OutOfBounds, "signal light: no such LED");
    return 1 << led;
}

// "1-1.2" of ".../usb1/1-1/1-1.2/1-1.2:1.0/0003:0FC5:B080.0001", the last part of that form; empty without
// one.
std::string UsbPort(const std::filesystem::path& device) {
    std::string port;
    for (const auto& part : device) {
        const std::string name = part.string();
        const std::size_t colon = name.find(':');
        if (colon != std::string::npos && name.find('-') < colon) port = name.substr(0, colon);
    }
    return port;
}

}  // namespace

class cHidSignalLight::cStopwatch {
  public:
    // Goes on from an earlier reading.
    cStopwatch(cHidSignalLight& lights, std::string port, double earlier = 0)
        : m_Lights(lights), m_Port(std::move(port)), m_Start(lights.m_Clock.Steady() - earlier) {}
    ~cStopwatch() {
        if (IsSlow(Reading())) m_Lights.m_RestUntil[m_Port] = m_Lights.m_Clock.Steady() + kRest;
    }
    cStopwatch(const cStopwatch&) = delete;
    cStopwatch& operator=(const cStopwatch&) = delete;
    double Reading() const { return m_Lights.m_Clock.Steady() - m_Start; }
    static bool IsSlow(double reading) { return reading * kSecondsOfDay >= kSlowSeconds; }

  private:
    static constexpr double kRest = kRestSeconds / kSecondsOfDay;

    cHidSignalLight& m_Lights;
    std::string m_Port;
    double m_Start;
};

cHidSignalLight::cHidSignalLight(const cClock& clock, std::string systemFolder)
    : m_Clock(clock), m_SystemFolder(std::move(systemFolder)) {}

cHidSignalLight::~cHidSignalLight() {
    for (const auto& [handle, light] : m_Open) hid_close(light.device);
    hid_exit();
}

double cHidSignalLight::DelcomGetDLLVersion() {
    return hid_init() == 0 ? kVersion : 0;
}

// --- finding lights

std::vector<cHidSignalLight::cLightPlace> cHidSignalLight::Lights() const {
    const std::unique_ptr<hid_device_info, void (*)(hid_device_info*)> list(hid_enumerate(kVendor, kProduct),
                                                                            hid_free_enumeration);
    std::vector<cLightPlace> lights;
    for (const hid_device_info* info = list.get(); info != nullptr; info = info->next) {
        lights.push_back({info->path, PortName(info->path)});
    }
    const auto order = [](const cLightPlace& light) { return std::tie(light.port, light.path); };
    std::sort(lights.begin(), lights.end(),
              [&](const cLightPlace& a, const cLightPlace& b) { return order(a) < order(b); });
    // A device is listed once for each use that it tells of.
    const auto same = [](const cLightPlace& a, const cLightPlace& b) { return a.path == b.path; };
    lights.erase(std::unique(lights.begin(), lights.end(), same), lights.end());
    return lights;
}

std::string cHidSignalLight::PortName(const std::string& path) const {
    std::error_code error;
    const auto node = std::filesystem::path(path).filename();
    const auto device = std::filesystem::canonical(
        std::filesystem::path(m_SystemFolder) / "class" / "hidraw" / node / "device", error);
    const std::string port = error ? std::string() : UsbPort(device);
    return "port-" + (port.empty() ? node.string() : port);
}

std::string cHidSignalLight::SerialName(const cLightPlace& light) {
    const Device device(Open(light), hid_close);
    if (!device) return {};
    const cStopwatch stopwatch(*this, light.port);
    Packet packet{kReadFirmware};
    if (hid_get_feature_report(device.get(), packet.data(), packet.size()) < 4) return {};
    std::uint32_t serial = 0;
    for (std::size_t i = 4; i-- > 0;) serial = serial << 8 | packet[i];
    // What an empty memory holds is no number.
    return serial == 0 || serial == 0xFFFFFFFF ? std::string() : "serial-" + std::to_string(serial);
}

bool cHidSignalLight::Rests(const std::string& port) const {
    const auto found = m_RestUntil.find(port);
    return found != m_RestUntil.end() && m_Clock.Steady() < found->second;
}

hid_device* cHidSignalLight::Open(const cLightPlace& light) {
    if (Rests(light.port)) return nullptr;
    const cStopwatch stopwatch(*this, light.port);
    return hid_open_path(light.path.c_str());
}

hid_device* cHidSignalLight::OpenNamed(const cLightPlace& light, std::string_view name) {
    // A light that tells no number has an empty one.
    if (name.empty()) return nullptr;
    return light.port == name || SerialName(light) == name ? Open(light) : nullptr;
}

std::int32_t cHidSignalLight::DelcomGetDeviceCount(std::int32_t type) {
    return type == kDeviceType ? static_cast<std::int32_t>(Lights().size()) : 0;
}

void cHidSignalLight::DelcomGetNthDevice(std::int32_t type, std::int32_t index, std::string& buffer) {
    if (type != kDeviceType || index < 0) return;
    const auto lights = Lights();
    if (static_cast<std::size_t>(index) >= lights.size()) return;
    const cLightPlace& light = lights[static_cast<std::size_t>(index)];
    const std::string serial = SerialName(light);
    std::string name = serial.empty() ? light.port : serial;
    name.push_back('\0');
    std::copy_n(name.begin(), std::min(name.size(), buffer.size()), buffer.begin());
}

std::int32_t cHidSignalLight::DelcomOpenDevice(std::string_view name, std::int32_t /*mode*/) {
    for (const cLightPlace& light : Lights()) {
        hid_device* device = OpenNamed(light, name);
        if (device == nullptr) continue;
        m_Open[++m_LastHandle] = {device, light.port};
        return m_LastHandle;
    }
    return 0;
}

void cHidSignalLight::DelcomCloseDevice(std::int32_t handle) {
    const auto found = m_Open.find(handle);
    if (found == m_Open.end()) return;
    hid_close(found->second.device);
    m_Open.erase(found);
}

// --- packets

void cHidSignalLight::Send(std::int32_t handle, std::uint8_t minor, int lsb, int msb) {
    const auto found = m_Open.find(handle);
    if (found == m_Open.end()) throw cFailure(eFailure::InvalidCall, "signal light: no such handle");
    cOpenLight& light = found->second;
    if (cStopwatch::IsSlow(light.wasted))
        throw cFailure(eFailure::Device, light.port + ": the light has failed before");
    const cStopwatch stopwatch(*this, light.port, light.wasted);
    const Packet packet{kWrite, minor, static_cast<std::uint8_t>(lsb), static_cast<std::uint8_t>(msb)};
    if (hid_write(light.device, packet.data(), packet.size()) >= 0) return;
    light.wasted = stopwatch.Reading();
    throw cFailure(eFailure::Device, light.port + ": the light takes no packet");
}

void cHidSignalLight::DelcomLoadPreScalar(std::int32_t handle, std::uint8_t value) {
    Send(handle, kPreScalar, value, 0);
}

void cHidSignalLight::DelcomLoadLedFreqDuty(std::int32_t handle, std::uint8_t led, std::uint8_t on,
                                            std::uint8_t off) {
    Pin(led);
    Send(handle, static_cast<std::uint8_t>(kFreqDuty + led), on, off);
}

void cHidSignalLight::DelcomLoadInitialPhaseDelay(std::int32_t handle, std::uint8_t led, std::uint8_t delay) {
    Pin(led);
    Send(handle, static_cast<std::uint8_t>(kPhaseDelay + led), delay, 0);
}

void cHidSignalLight::DelcomLEDPower(std::int32_t handle, std::int32_t led, std::int32_t power) {
    constexpr std::int32_t kFullPower = 100;
    Pin(led);
    if (power < 0 || power > kFullPower)
        throw cFailure(eFailure::Overflow, "signal light: power is 0 to 100");
    Send(handle, kPower, led, power);
}

// A pin that is reset lights its LED; one that flashes must be reset too.
void cHidSignalLight::DelcomLEDControl(std::int32_t handle, std::int32_t led, std::int32_t mode) {
    constexpr std::int32_t kOff = 0, kFlashing = 2;  // 1: on
    const int pin = Pin(led);
    if (mode < kOff || mode > kFlashing) throw cFailure(eFailure::OutOfBounds, "signal light: no such mode");
    const auto failure =
        CatchFailure([&] { Send(handle, kFlash, mode == kFlashing ? 0 : pin, mode == kFlashing ? pin : 0); });
    Send(handle, kPins, mode == kOff ? 0 : pin, mode == kOff ? pin : 0);
    if (failure) throw *failure;
}

void cHidSignalLight::DelcomSyncLeds(std::int32_t handle) {
    Send(handle, kSync, kAllPins, kAllPins);
}

}  // namespace vigrel
