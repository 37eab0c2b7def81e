#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vigrel {

// What a check asks of the machine that the station runs on. Nothing here changes anything.
class cMachine {
  public:
    virtual ~cMachine() = default;

    enum class ePort { Free, InUse, Failed };
    struct cPortTrial {
        ePort port = ePort::Free;
        std::string reason;  // of a failure, in the operating system's words
    };
    // Whether this user could listen on a TCP port now, at the address of that number; empty: at all. The
    // port is let go at once.
    virtual cPortTrial TryPort(const std::string& address, std::int32_t port) const = 0;

    // Why a printer ("/dev/usb/lp0", "tcp:HOST:PORT", "cups:QUEUE") doesn't answer; none when it does.
    // Nothing is printed.
    virtual std::optional<std::string> WhyNotPrinting(std::string_view device) const = 0;
    // How long a sound file plays; none for one that can't be decoded.
    virtual std::optional<double> SecondsOfSound(std::string_view path) const = 0;

    virtual bool FolderExists(std::string_view path) const = 0;
    // Why this user can't create, replace and remove files in a folder; none when he can.
    virtual std::optional<std::string> WhyNotWritable(std::string_view folder) const = 0;
    // Why this user can't list a folder; none when he can.
    virtual std::optional<std::string> WhyNotReadable(std::string_view folder) const = 0;
};

}  // namespace vigrel
