#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "adapters/linux/printer_thread.h"
#include "common/ini.h"
#include "platform/clock.h"
#include "platform/suite_library.h"

namespace vigrel {

// The printers behind the printer ports. Section "PrinterPorts" of the configuration names the printer of
// each port ("1=tcp:10.0.0.9:9100"; docs/devices.md), and is read at each line.
//
// A line holds up the caller for kLineTime at most. After a line that took longer than kSlow and failed, the
// lines that follow fail at once for a while that doubles from kFirstRest to kLongestRest until a line is
// printed: a dead printer must not hold up the alarms.
class cLinuxPrinterPorts : public cPrinterPorts {
  public:
    static constexpr std::chrono::milliseconds kLineTime{2000};
    static constexpr std::chrono::milliseconds kSlow{500};
    static constexpr std::chrono::seconds kFirstRest{5};
    static constexpr std::chrono::seconds kLongestRest{60};

    // report gets a line of text whenever the state of a port changes for the worse or the better.
    using Report = std::function<void(const std::string& text)>;
    cLinuxPrinterPorts(const cIniReader& ini, const cClock& clock, Report report = nullptr,
                       std::string deviceFolder = "/dev");

    std::int16_t SendPRN(std::string_view line, std::int16_t port) override;
    std::string Problem() const override;

  private:
    struct cPort {
        std::string entry;
        std::unique_ptr<cPrinterThread> thread;  // nullptr for an entry that names no printer
        PrintProblem problem;
        double restUntil = 0, rest = 0;  // days on the steady clock
    };

    // The port as the configuration has it now.
    cPort& Port(int number);
    std::unique_ptr<cPrinterThread> MakeThread(const std::string& entry, int number) const;
    PrintProblem Print(cPort& port, std::string_view line);
    void Tell(cPort& port, int number, const PrintProblem& problem);

    const cIniReader& m_Ini;
    const cClock& m_Clock;
    Report m_Report;
    std::string m_DeviceFolder;
    std::map<int, cPort> m_Ports;  // by number, counted from 1
};

}  // namespace vigrel
