#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "common/texts.h"
#include "platform/timer.h"

namespace vigrel {

// The label of the about box: title, version, maker, with blank lines between.
std::string AboutText(const cTexts& texts);

// Lets the about box close itself.
class cAboutBox {
  public:
    static constexpr int kTickInterval = 500;         // milliseconds
    static constexpr std::int32_t kShownFor = 10000;  // milliseconds; closed at the first tick behind them

    // Takes over the timer's tick; the box counts from now on.
    explicit cAboutBox(cTimer& timerUnload);
    ~cAboutBox();
    cAboutBox(const cAboutBox&) = delete;
    cAboutBox& operator=(const cAboutBox&) = delete;

    // The box is going, by itself or closed by the operator.
    void Unload();

    // The time is over: the window is to close.
    std::function<void()> OnClose;

  private:
    void Timer_Unload_Tick();

    cTimer& m_TimerUnload;
    std::int32_t m_Elapsed = 0;  // milliseconds
};

}  // namespace vigrel
