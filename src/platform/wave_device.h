#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace vigrel {

// A device that plays one wave file at a time. No call blocks for longer than a few milliseconds, whatever
// state the machine's sound is in; a command that fails throws cFailure and leaves the device as it was.
class cWaveDevice {
  public:
    // Value of Mode() while a file plays.
    static constexpr int Playing = 526;

    virtual ~cWaveDevice() = default;
    virtual void SetDeviceType(std::string_view type) = 0;
    virtual std::string FileName() const = 0;
    virtual void SetFileName(std::string_view path) = 0;
    // "Open", "Close", "Play", "Prev" (back to the start of the file), "Stop".
    virtual void Command(std::string_view command) = 0;
    // An event tells when the command has ended.
    virtual void SetNotify(bool on) = 0;
    // The call returns only when the command has ended.
    virtual void SetWait(bool on) = 0;
    virtual void SetShareable(bool on) = 0;
    virtual int Mode() const = 0;

    // A play has ended, by itself or by "Stop"; only with notification on. Delivered from the event loop.
    std::function<void()> OnDone;
};

}  // namespace vigrel
