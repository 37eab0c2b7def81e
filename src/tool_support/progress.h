#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "platform/clock.h"

namespace vigrel {

// How far long work has come: one line rewritten in place ten times a second on a terminal, a line of its own
// once a second elsewhere. The first line waits as long, so that short work says its result alone.
class cProgress {
  public:
    // What is handed in outlives the object.
    cProgress(const cClock& clock, bool terminal, std::function<void(const std::string&)> print);
    // "3 of 10 " and what is counted.
    void Show(std::size_t done, std::size_t all, const std::string& what);
    // Takes back what was rewritten on a terminal; for work whose result is told elsewhere.
    void End();
    // The result, in place of the line that was rewritten.
    void Finish(const std::string& result);

  private:
    void PrintLine(const std::string& text, bool last);

    const cClock& m_Clock;
    bool m_Terminal;
    std::function<void(const std::string&)> m_Print;
    double m_Last;            // of the steady clock, in days
    std::size_t m_Shown = 0;  // characters of the line that stands on the terminal
};

}  // namespace vigrel
