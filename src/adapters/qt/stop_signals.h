#pragma once

#include <QSocketNotifier>
#include <array>
#include <functional>
#include <memory>

#include "platform/windows.h"

namespace vigrel {

// Turns the signals by which a program is told to stop (terminate, hang up, interrupt) into a call from the
// event loop. One object at a time.
class cStopSignals {
  public:
    cStopSignals();
    // The signals end the program again.
    ~cStopSignals();

    // Called for each signal. An interrupt comes from somebody at the terminal, and is a close like any
    // other; the others end the session that the program runs in.
    std::function<void(eCloseReason)> OnStop;

  private:
    std::unique_ptr<QSocketNotifier> m_Notifier;
};

}  // namespace vigrel
