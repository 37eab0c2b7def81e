#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vigrel {

// What the suite's programs know of each other. This program is application number 8. Throws cFailure when
// the library can't be reached.
class cRunningApps {
  public:
    virtual ~cRunningApps() = default;
    virtual std::int32_t GetRunningApps(std::int32_t application) = 0;
    virtual void SetRunningApps(std::int32_t application, std::int32_t state) = 0;
};

// The printer ports of the suite.
class cPrinterPorts {
  public:
    virtual ~cPrinterPorts() = default;
    // Prints the line as it stands, line end included, on a port counted from 0. Not 0 on success; a port
    // below 0 fails. Every wait is bounded. Each line stands alone: one that failed is lost, the next is
    // tried.
    virtual std::int16_t SendPRN(std::string_view line, std::int16_t port) = 0;
    // The port, counted from 1, that failed at its last line, and why; empty when none did.
    virtual std::string Problem() const = 0;
};

}  // namespace vigrel
