#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vigrel {

// The operations of the signal light's library. A device is known by the name that the library hands out. A
// handle is above 0; it belongs to the caller until it is closed, and none comes twice. A call with a handle
// that isn't open throws cFailure; so may every call with an open one, when the light fails. Results that are
// not stated carry no meaning.
class cSignalLight {
  public:
    virtual ~cSignalLight() = default;
    // 0 when there is no library; throws cFailure when it can't be reached.
    virtual double DelcomGetDLLVersion() = 0;
    virtual std::int32_t DelcomGetDeviceCount(std::int32_t type) = 0;
    // Fills the buffer with the name, ended by a character of code 0; an empty name beyond the last device.
    virtual void DelcomGetNthDevice(std::int32_t type, std::int32_t index, std::string& buffer) = 0;
    virtual std::int32_t DelcomOpenDevice(std::string_view name, std::int32_t mode) = 0;
    // Does nothing for a handle that isn't open.
    virtual void DelcomCloseDevice(std::int32_t handle) = 0;
    virtual void DelcomLoadPreScalar(std::int32_t handle, std::uint8_t value) = 0;
    virtual void DelcomLoadLedFreqDuty(std::int32_t handle, std::uint8_t led, std::uint8_t on,
                                       std::uint8_t off) = 0;
    virtual void DelcomLoadInitialPhaseDelay(std::int32_t handle, std::uint8_t led, std::uint8_t delay) = 0;
    virtual void DelcomLEDPower(std::int32_t handle, std::int32_t led, std::int32_t power) = 0;
    virtual void DelcomLEDControl(std::int32_t handle, std::int32_t led, std::int32_t mode) = 0;
    virtual void DelcomSyncLeds(std::int32_t handle) = 0;
};

}  // namespace vigrel
