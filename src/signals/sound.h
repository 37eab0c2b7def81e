#pragma once

#include "categories/category_specific_setting.h"
#include "common/log.h"
#include "common/receiver_state.h"
#include "common/settings.h"
#include "common/texts.h"
#include "platform/timer.h"
#include "platform/wave_device.h"
#include "platform/windows.h"

namespace vigrel {

// The sound signal: a wave file played once, or again and again while an event is unanswered.
//
// m_SoundState of cReceiverState is the whole machine. Everybody who starts or ends a signal only writes it;
// the tick of Timer_Play alone drives the device, so a wish and its command are up to one tick apart.
//
// A device that fails does nothing: no failure of the sound leaves this class.
class cSound {
  public:
    struct cServices {
        cWaveDevice& device;
        cTimer& timerPlay;  // off while a command is waited for
        cBeeper& beeper;
        cReceiverState& state;
        const cSettings& settings;
        const cTexts& texts;
        cLog& log;
    };
    // Listens to the device's completion event from now on.
    explicit cSound(const cServices& services);

    // At start: sets the device's flags and opens it.
    void Prepare();
    // Makes the device ready for the sound file of a category; one without a file changes nothing.
    void OpenSound(const cCategorySpecificSetting& setting);
    // An event has come that may signal: opens its file, with or without a signal, then beeps or asks for the
    // sound. A single play never cuts a repeat.
    void StartSignal(const cCategorySpecificSetting& setting);
    // The sound part of a tick. False while the pause between two plays runs: nothing else is done in such a
    // tick.
    bool TickSound();
    // The command of the menu; the only end of a signal that is logged.
    void Menu_StopSound();
    // At the program's end: closes the device.
    void Shutdown();

  private:
    void Command(std::string_view command);
    void StopSilenced();
    bool PauseRuns();
    void StartPlay();
    void PlayHasEnded();

    cServices m_Services;
    bool m_SoundBusy = false;  // a play was started and not yet seen to finish
};

}  // namespace vigrel
