#pragma once

#include <QSocketNotifier>
#include <array>
#include <functional>
#include <memory>

namespace vigrel {

// Turns the signals by which a program is told to stop (terminate, hang up, interrupt) into a call from the
// event loop. One object at a time.
class cStopSignals {
  public:
    cStopSignals();
    // The signals end the program again.
    ~cStopSignals();

    // Called for each signal.
    std::function<void()> OnStop;

  private:
    std::unique_ptr<QSocketNotifier> m_Notifier;
};

}  // namespace vigrel
