#include "adapters/linux/linux_printer_ports.h"

#include <algorithm>
#include <utility>

namespace vigrel {
namespace {

constexpr std::string_view kSection = "PrinterPorts";

template <class Duration>
constexpr double Days(Duration duration) {
    return std::chrono::duration<double, std::ratio<86400>>(duration).count();
}

}  // namespace

cLinuxPrinterPorts::cLinuxPrinterPorts(const cIniReader& ini, const cClock& clock, Report report,
                                       std::string deviceFolder)
    : m_Ini(ini), m_Clock(clock), m_Report(std::move(report)), m_DeviceFolder(std::move(deviceFolder)) {}

std::int16_t cLinuxPrinterPorts::SendPRN(std::string_view line, std::int16_t port) {
    const int number = port + 1;
    if (number < 1) return 0;
    cPort& state = Port(number);
    if (m_Clock.Steady() < state.restUntil) return 0;
    const PrintProblem problem = Print(state, line);
    Tell(state, number, problem);
    return problem.empty() ? 1 : 0;
}

std::string cLinuxPrinterPorts::Problem() const {
    const auto failed = std::find_if(m_Ports.begin(), m_Ports.end(),
                                     [](const auto& port) { return !port.second.problem.empty(); });
    if (failed == m_Ports.end()) return "";
    return "port " + std::to_string(failed->first) + ": " + failed->second.problem;
}

cLinuxPrinterPorts::cPort& cLinuxPrinterPorts::Port(int number) {
    std::string entry = m_Ini.GetIniString(kSection, std::to_string(number), "");
    const auto found = m_Ports.find(number);
    if (found != m_Ports.end() && found->second.entry == entry) return found->second;
    cPort& port = m_Ports[number];
    port = cPort();
    port.thread = MakeThread(entry, number);
    port.entry = std::move(entry);
    return port;
}

std::unique_ptr<cPrinterThread> cLinuxPrinterPorts::MakeThread(const std::string& entry, int number) const {
    PrinterPtr printer = entry.empty() ? MakeDefaultPrinter(number, m_DeviceFolder) : MakePrinter(entry);
    return printer ? std::make_unique<cPrinterThread>(std::move(printer)) : nullptr;
}

PrintProblem cLinuxPrinterPorts::Print(cPort& port, std::string_view line) {
    if (!port.thread) {
        return "\"" + port.entry + "\" is neither a path, nor \"tcp:HOST:PORT\", nor \"cups:QUEUE\"";
    }
    const double start = m_Clock.Steady();
    PrintProblem problem = port.thread->Print(line, kLineTime);
    const double end = m_Clock.Steady();
    if (problem.empty()) {
        port.rest = 0;
    } else if (end - start >= Days(kSlow)) {
        port.rest = std::clamp(port.rest * 2, Days(kFirstRest), Days(kLongestRest));
        port.restUntil = end + port.rest;
    }
    return problem;
}

void cLinuxPrinterPorts::Tell(cPort& port, int number, const PrintProblem& problem) {
    if (std::exchange(port.problem, problem) == problem || !m_Report) return;
    m_Report(std::string(kIniFile) + ", section " + std::string(kSection) + ", port " +
             std::to_string(number) + ": " + (problem.empty() ? "prints again" : problem));
}

}  // namespace vigrel
