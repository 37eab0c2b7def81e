#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/signal_light.h"

struct hid_device_;

namespace vigrel {

// USB signal lights as HID devices (vendor 0FC5, product B080), driven by packets of 8 bytes:
// docs/devices.md has them.
//
// A light has up to two names: "serial-12345", where it tells its number, and "port-1-1.2", the place where
// it is plugged in; both open it. Lights are looked for anew at each opening, so they can come and go.
//
// A packet that the light refuses costs that call alone. The kernel waits for a light that doesn't answer, up
// to 5 s a packet: one that kept the caller waiting for kSlowSeconds, by one call or by several refused
// packets of a handle, is passed over for kRestSeconds, and the handle whose packets did so tries no more.
class cHidSignalLight : public cSignalLight {
  public:
    static constexpr std::int32_t kDeviceType = 1;  // all lights are of this type
    static constexpr double kVersion = 1;
    static constexpr int kSlowSeconds = 1;
    static constexpr int kRestSeconds = 60;

    // systemFolder is where the kernel tells of its devices.
    explicit cHidSignalLight(const cClock& clock, std::string systemFolder = "/sys");
    ~cHidSignalLight() override;
    cHidSignalLight(const cHidSignalLight&) = delete;
    cHidSignalLight& operator=(const cHidSignalLight&) = delete;

    double DelcomGetDLLVersion() override;
    std::int32_t DelcomGetDeviceCount(std::int32_t type) override;
    void DelcomGetNthDevice(std::int32_t type, std::int32_t index, std::string& buffer) override;
    std::int32_t DelcomOpenDevice(std::string_view name, std::int32_t mode) override;
    void DelcomCloseDevice(std::int32_t handle) override;
    // The following throw cFailure for an unknown handle, a LED, power or mode that the light hasn't got, and
    // when the light doesn't take the packet.
    void DelcomLoadPreScalar(std::int32_t handle, std::uint8_t value) override;
    void DelcomLoadLedFreqDuty(std::int32_t handle, std::uint8_t led, std::uint8_t on,
                               std::uint8_t off) override;
    void DelcomLoadInitialPhaseDelay(std::int32_t handle, std::uint8_t led, std::uint8_t delay) override;
    void DelcomLEDPower(std::int32_t handle, std::int32_t led, std::int32_t power) override;
    void DelcomLEDControl(std::int32_t handle, std::int32_t led, std::int32_t mode) override;
    void DelcomSyncLeds(std::int32_t handle) override;

  private:
    struct cLightPlace {
        std::string path;  // of its node
        std::string port;  // "port-1-1.2"
    };
    struct cOpenLight {
        hid_device_* device;
        std::string port;
        double wasted = 0;  // with packets that it refused, in days
    };
    // Notes how long the light of a port keeps the caller waiting.
    class cStopwatch;

    // The lights that are plugged in, in the order of their ports.
    std::vector<cLightPlace> Lights() const;
    std::string PortName(const std::string& path) const;
    std::string SerialName(const cLightPlace& light);
    bool Rests(const std::string& port) const;
    // nullptr when it can't be opened.
    hid_device_* Open(const cLightPlace& light);
    // The light when it bears the name, opened; otherwise nullptr.
    hid_device_* OpenNamed(const cLightPlace& light, std::string_view name);
    void Send(std::int32_t handle, std::uint8_t minor, int lsb, int msb);

    const cClock& m_Clock;
    std::string m_SystemFolder;
    std::map<std::int32_t, cOpenLight> m_Open;
    std::int32_t m_LastHandle = 0;
    std::map<std::string, double> m_RestUntil;  // by port; on the steady clock
};

}  // namespace vigrel
