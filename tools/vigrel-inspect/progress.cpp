#include "vigrel-inspect/progress.h"

#include <utility>

namespace vigrel {
namespace {

constexpr double kDay = 86400;  // seconds
constexpr double kTerminalPause = 0.1 / kDay, kPause = 1.0 / kDay;

}  // namespace

cProgress::cProgress(const cClock& clock, bool terminal, std::function<void(const std::string&)> print)
    : m_Clock(clock), m_Terminal(terminal), m_Print(std::move(print)), m_Last(clock.Steady()) {}

void cProgress::Show(std::size_t done, std::size_t all) {
    const double now = m_Clock.Steady();
    if (now - m_Last < (m_Terminal ? kTerminalPause : kPause)) return;
    m_Last = now;
    const std::string text = std::to_string(done) + " of " + std::to_string(all) + " files read";
    m_Print(m_Terminal ? "\r" + text : text + "\n");
}

void cProgress::Finish(const cExportResult& result) const {
    m_Print((m_Terminal ? "\r" : "") + std::to_string(result.files) + " files read, " +
            std::to_string(result.alarms) + " alarms exported, " + std::to_string(result.damaged) +
            " files damaged\n");
}

}  // namespace vigrel
