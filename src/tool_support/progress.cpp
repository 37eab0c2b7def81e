#include "tool_support/progress.h"

#include <utility>

namespace vigrel {
namespace {

constexpr double kDay = 86400;  // seconds
constexpr double kTerminalPause = 0.1 / kDay, kPause = 1.0 / kDay;

}  // namespace

cProgress::cProgress(const cClock& clock, bool terminal, std::function<void(const std::string&)> print)
    : m_Clock(clock), m_Terminal(terminal), m_Print(std::move(print)), m_Last(clock.Steady()) {}

// A line that is shorter than the one it replaces is filled up with blanks.
void cProgress::PrintLine(const std::string& text, bool last) {
    const std::size_t rest = m_Shown > text.size() ? m_Shown - text.size() : 0;
    const bool ends = last || !m_Terminal;
    m_Print((m_Terminal ? "\r" : "") + text + std::string(rest, ' ') + (ends ? "\n" : ""));
    m_Shown = ends ? 0 : text.size();
}

void cProgress::Show(std::size_t done, std::size_t all, const std::string& what) {
    const double now = m_Clock.Steady();
    if (now - m_Last < (m_Terminal ? kTerminalPause : kPause)) return;
    m_Last = now;
    PrintLine(std::to_string(done) + " of " + std::to_string(all) + " " + what, false);
}

void cProgress::End() {
    if (m_Shown > 0) m_Print("\r" + std::string(m_Shown, ' ') + "\r");
    m_Shown = 0;
}

void cProgress::Finish(const std::string& result) {
    PrintLine(result, true);
}

}  // namespace vigrel
