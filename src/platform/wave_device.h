#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace vigrel {

// A device that plays one wave file at a time.
//
// No call blocks for longer than a few milliseconds, whatever state the machine's sound is in: a command is
// handed on and carried out beside the event loop. One that can't be carried out (a file that is missing or
// damaged, no sound on the machine) leaves the device silent, and a play that can't start ends at once. The
// next play tries anew. Throws cFailure for a command that it doesn't know.
class cWaveDevice {
  public:
    // Value of Mode() while a file plays.
    static constexpr int Playing = 526;

    virtual ~cWaveDevice() = default;
    virtual void SetDeviceType(std::string_view type) = 0;
    virtual std::string FileName() const = 0;
    // Takes effect at the next "Open".
    virtual void SetFileName(std::string_view path) = 0;
    // "Open", "Close", "Play", "Prev" (back to the start of the file), "Stop".
    virtual void Command(std::string_view command) = 0;
    // An event tells when a play has ended.
    virtual void SetNotify(bool on) = 0;
    // Whether the caller would wait for the end of a command. A device whose commands are handed on need not.
    virtual void SetWait(bool on) = 0;
    virtual void SetShareable(bool on) = 0;
    // Playing from "Play" on until the play has ended; any other value otherwise.
    virtual int Mode() const = 0;

    // The latest play has ended, by itself, by "Stop", "Prev" or "Close", or because it failed; only with
    // notification on. Delivered from the event loop, never for a play that a later one has followed.
    std::function<void()> OnDone;
};

}  // namespace vigrel
