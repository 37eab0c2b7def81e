#pragma once

#include <functional>

#include "adapters/qt/sound_player.h"

namespace vigrel {

// A short tone of our own in place of the desktop's bell, which is silent on many machines.
class cTonePlayer {
  public:
    cTonePlayer();
    // Starts the tone without waiting for its end.
    void Play();

    // The tone could not be played. Called from the event loop.
    std::function<void()> OnSilent;

  private:
    cSoundPlayer m_Player;
};

}  // namespace vigrel
