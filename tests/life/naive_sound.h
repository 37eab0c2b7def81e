#pragma once

#include <string>

#include "life/plan.h"

namespace vigrel::testing {

// The sound of the plain station, and its device.
class cNaiveSound {
  public:
    void Restart(const cPlan& plan);
    void Signal(const cPlan::cCategory& category, int status);
    void Silence() { m_State = eState::Silent; }
    // Twice a second. Whether the tick went to its end.
    bool Tick();
    void PlayEnds();
    // The end of a play that a command has cut is told when the event is over.
    void EventIsOver();
    bool IsSilent() const { return m_State == eState::Silent; }

    // What the device was told since the last call, and beeps.
    std::string Take();

  private:
    enum class eState { Silent, OnceWanted, OncePlays, Pause, RepeatPlays };
    void Open(const std::string& file);
    void Tell(const std::string& command) { m_Told += command + "\n"; }
    void Cut();

    cPlan m_Plan;
    eState m_State = eState::Silent;
    bool m_Busy = false;  // a play was started, and no end was seen
    int m_Waited = 0;     // milliseconds
    std::string m_File, m_Told;
    bool m_Plays = false, m_EndIsNews = false, m_Tells = false;  // the device's
};

}  // namespace vigrel::testing
