#pragma once

#include "platform/timer.h"
#include "support/transcript.h"

namespace vigrel::testing {

// With a transcript it notes when it is switched.
class cFakeTimer : public cTimer {
  public:
    explicit cFakeTimer(int interval = 500, cTranscript* transcript = nullptr)
        : m_Interval(interval), m_Transcript(transcript) {}
    int Interval() const override { return m_Interval; }
    void SetInterval(int milliseconds) override { m_Interval = milliseconds; }
    bool Enabled() const override { return m_Enabled; }
    void SetEnabled(bool enabled) override {
        m_Enabled = enabled;
        if (m_Transcript) m_Transcript->Add(enabled ? "timer on" : "timer off");
    }
    // One tick, when the timer is enabled and somebody listens.
    void Tick() {
        if (m_Enabled && OnTick) OnTick();
    }

  private:
    int m_Interval;
    cTranscript* m_Transcript;
    bool m_Enabled = true;
};

}  // namespace vigrel::testing
