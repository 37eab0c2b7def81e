#pragma once

#include <cstdint>

namespace vigrel {

// What several rooms of the receiver share while it runs. One object per receiver, built where the receiver
// is.
struct cReceiverState {
    bool m_DebugMode = false;    // the protocol trace runs
    bool m_ListChanged = false;  // the next tick of Timer_Play recounts and redraws
    std::int16_t m_SoundState =
        0;  // 0 silent, 1 single play wanted, 2 running, 3 repeat: pause, 4 repeat: play
    std::int32_t m_SoundDelayCounter = 0;  // milliseconds waited since the last repeat ended
    std::int16_t m_PopupFormCount = 0;     // loaded popup windows
    double m_DelcomDllVersion = 0;         // 0: no signal light library
};

}  // namespace vigrel
