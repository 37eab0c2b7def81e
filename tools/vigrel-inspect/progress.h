#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "platform/clock.h"
#include "vigrel-inspect/alarm_export.h"

namespace vigrel {

// How far an export has come: one line rewritten in place ten times a second on a terminal, a line of its own
// once a second elsewhere. The first line waits as long, so that a short export says its result alone.
class cProgress {
  public:
    // What is handed in outlives the object.
    cProgress(const cClock& clock, bool terminal, std::function<void(const std::string&)> print);
    void Show(std::size_t done, std::size_t all);
    void Finish(const cExportResult& result) const;

  private:
    const cClock& m_Clock;
    bool m_Terminal;
    std::function<void(const std::string&)> m_Print;
    double m_Last;  // of the steady clock, in days
};

}  // namespace vigrel
