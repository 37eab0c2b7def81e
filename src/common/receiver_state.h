#pragma once

#include <cstdint>

namespace vigrel {

// Values of m_SoundState. A single play is wanted, then it runs; a repeated one goes back and forth between
// its pause and its play.
enum eSoundState : std::int16_t {
    SoundSilent = 0,
    SoundPlayOnce = 1,
    SoundPlayingOnce = 2,
    SoundRepeatPause = 3,
    SoundRepeatPlaying = 4
};

// What several rooms of the receiver share while it runs. One object per receiver, built where the receiver
// is.
struct cReceiverState {
    bool m_DebugMode = false;    // the protocol trace runs
    bool m_ListChanged = false;  // the next tick of Timer_Play recounts and redraws
    std::int16_t m_SoundState = SoundSilent;
    std::int32_t m_SoundDelayCounter = 0;  // milliseconds waited since the last repeat ended
    std::int16_t m_PopupFormCount = 0;     // loaded popup windows
    double m_DelcomDllVersion = 0;         // 0: no signal light library
};

}  // namespace vigrel
