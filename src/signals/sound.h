#pragma once

#include "categories/cCategorySpecificSetting.h"
#include "common/log.h"
#include "common/receiver_state.h"
#include "common/settings.h"
#include "common/texts.h"
#include "platform/timer.h"
#include "platform/wave_device.h"
#include "platform/windows.h"

namespace vigrel {

// The sound signal: a state machine in m_SoundState of the receiver's state, which anybody may write and this
// alone acts on, paced by Timer_Play.
class cSound {
  public:
    struct cServices {
        cWaveDevice& device;
        cTimer& timerPlay;
        cBeeper& beeper;
        cReceiverState& state;
        const cSettings& settings;
        const cTexts& texts;
        cLog& log;
    };
    explicit cSound(const cServices& services);

    // Makes the device ready for the first file.
    void Prepare();
    // Readies the device for the sound file of the setting, cutting a sound of another file. Steps that fail
    // are skipped.
    void OpenSound(const cCategorySpecificSetting& setting);
    // The sound of a new event: opens its file, then beeps or asks for a play by the setting's m_EventSignal.
    void StartSignal(const cCategorySpecificSetting& setting);
    // The sound part of a tick of Timer_Play. False when the pause of a repeat goes on: then nothing more of
    // the tick is to run.
    bool TickSound();
    void Menu_StopSound();
    // Gives the device back.
    void Shutdown();

  private:
    void StopPlay();
    void StartPlay();
    void PlayDone();

    cServices m_Services;
    bool m_SoundBusy = false;  // a play was started and not yet seen to finish
};

}  // namespace vigrel
