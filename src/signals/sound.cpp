#include "signals/sound.h"

#include "common/failure.h"

namespace vigrel {
namespace {

enum eSoundState : std::int16_t {
    Silent = 0,
    PlayWanted = 1,
    Playing = 2,
    RepeatPause = 3,
    RepeatPlaying = 4
};

constexpr std::int16_t kSignalBeep = 1;
constexpr std::int16_t kSignalOnce = 2;
constexpr std::int16_t kSignalRepeat = 3;

}  // namespace

cSound::cSound(const cServices& services) : m_Services(services) {
    m_Services.device.OnDone = [this] { PlayDone(); };
}

void cSound::Prepare() {
    cWaveDevice& device = m_Services.device;
    SkipFailure([&] { device.SetNotify(false); });
    SkipFailure([&] { device.SetWait(true); });
    SkipFailure([&] { device.SetShareable(false); });
    SkipFailure([&] { device.Command("Open"); });
}

void cSound::OpenSound(const cCategorySpecificSetting& setting) {
    cWaveDevice& device = m_Services.device;
    const std::string& file = setting.m_EventSoundFile;
    if (file.empty() || file == device.FileName()) return;
    SkipFailure([&] { device.SetDeviceType("WaveAudio"); });
    SkipFailure([&] { device.Command("Close"); });
    SkipFailure([&] { device.SetFileName(file); });
    SkipFailure([&] { device.Command("Open"); });
}

void cSound::StartSignal(const cCategorySpecificSetting& setting) {
    cReceiverState& state = m_Services.state;
    OpenSound(setting);
    switch (setting.m_EventSignal) {
        case kSignalBeep:
            m_Services.beeper.Beep();
            break;
        case kSignalOnce:
            // A single play never cuts a repeat.
            if (state.m_SoundState != RepeatPause && state.m_SoundState != RepeatPlaying) {
                state.m_SoundState = PlayWanted;
            }
            break;
        case kSignalRepeat:
            state.m_SoundState = RepeatPause;
            // The pause counts as over, so that the first play starts at the next tick.
            state.m_SoundDelayCounter = m_Services.settings.m_EventSoundFileDelay;
            break;
        default:
            break;
    }
}

bool cSound::TickSound() {
    cReceiverState& state = m_Services.state;
    if (state.m_SoundState == Silent && m_SoundBusy) StopPlay();
    const bool wanted = state.m_SoundState == PlayWanted || state.m_SoundState == RepeatPause ||
                        state.m_SoundState == RepeatPlaying;
    if (!wanted) return true;
    if (!m_SoundBusy) {
        if (state.m_SoundState != PlayWanted) {
            state.m_SoundDelayCounter += m_Services.timerPlay.Interval();
            if (state.m_SoundDelayCounter < m_Services.settings.m_EventSoundFileDelay) return false;
            state.m_SoundDelayCounter = 0;
        }
        StartPlay();
    }
    // For a completion that never comes. A single play that runs is not looked at: only its completion ends
    // it.
    const bool looked = state.m_SoundState == PlayWanted || state.m_SoundState == RepeatPause ||
                        state.m_SoundState == RepeatPlaying;
    if (looked && m_SoundBusy && m_Services.device.Mode() != cWaveDevice::Playing) m_SoundBusy = false;
    return true;
}

// The timer rests while the device is told, so that no tick comes in between.
void cSound::StopPlay() {
    m_Services.timerPlay.SetEnabled(false);
    SkipFailure([&] { m_Services.device.Command("Stop"); });
    m_SoundBusy = false;
    m_Services.timerPlay.SetEnabled(true);
}

void cSound::StartPlay() {
    cReceiverState& state = m_Services.state;
    cWaveDevice& device = m_Services.device;
    m_SoundBusy = true;
    m_Services.timerPlay.SetEnabled(false);
    SkipFailure([&] { device.Command("Prev"); });
    SkipFailure([&] { device.SetNotify(true); });
    SkipFailure([&] { device.SetWait(false); });
    SkipFailure([&] { device.Command("Play"); });
    m_Services.timerPlay.SetEnabled(true);
    if (state.m_SoundState == PlayWanted) {
        state.m_SoundState = Playing;
    } else if (state.m_SoundState == RepeatPause) {
        state.m_SoundState = RepeatPlaying;
    }
}

void cSound::PlayDone() {
    cReceiverState& state = m_Services.state;
    if (state.m_SoundState == Playing) {
        state.m_SoundState = Silent;
    } else if (state.m_SoundState == RepeatPlaying) {
        state.m_SoundState = RepeatPause;
    }
    m_SoundBusy = false;
}

void cSound::Menu_StopSound() {
    m_Services.state.m_SoundState = Silent;
    m_Services.log.WriteLog(m_Services.texts.GetText(10044));
}

void cSound::Shutdown() {
    cWaveDevice& device = m_Services.device;
    SkipFailure([&] { device.SetNotify(false); });
    SkipFailure([&] { device.SetWait(true); });
    SkipFailure([&] { device.Command("Close"); });
}

}  // namespace vigrel
