#include "signals/sound.h"

#include <cstdint>

#include "common/failure.h"

namespace vigrel {
namespace {

// Values of m_EventSignal; any other is no signal.
constexpr std::int16_t kSignalBeep = 1, kSignalOnce = 2, kSignalRepeated = 3;

bool IsRepeating(std::int16_t state) {
    return state == SoundRepeatPause || state == SoundRepeatPlaying;
}

// A single play that is running is left out: only the device's word ends it.
bool WantsPlay(std::int16_t state) {
    return state == SoundPlayOnce || IsRepeating(state);
}

}  // namespace

cSound::cSound(const cServices& services) : m_Services(services) {
    m_Services.device.OnDone = [this] { PlayHasEnded(); };
}

void cSound::Command(std::string_view command) {
    SkipFailure([&] { m_Services.device.Command(command); });
}

void cSound::Prepare() {
    SkipFailure([&] { m_Services.device.SetNotify(false); });
    SkipFailure([&] { m_Services.device.SetWait(true); });
    SkipFailure([&] { m_Services.device.SetShareable(false); });
    Command("Open");
}

void cSound::OpenSound(const cCategorySpecificSetting& setting) {
    const std::string& file = setting.m_EventSoundFile;
    if (file.empty() || file == m_Services.device.FileName()) return;
    SkipFailure([&] { m_Services.device.SetDeviceType("WaveAudio"); });
    Command("Close");
    SkipFailure([&] { m_Services.device.SetFileName(file); });
    Command("Open");
}

void cSound::StartSignal(const cCategorySpecificSetting& setting) {
    OpenSound(setting);
    cReceiverState& state = m_Services.state;
    if (setting.m_EventSignal == kSignalBeep) {
        SkipFailure([&] { m_Services.beeper.Beep(); });
    } else if (setting.m_EventSignal == kSignalOnce) {
        if (!IsRepeating(state.m_SoundState)) state.m_SoundState = SoundPlayOnce;
    } else if (setting.m_EventSignal == kSignalRepeated) {
        state.m_SoundState = SoundRepeatPause;
        // The pause counts as over, so that the first play starts at the next tick.
        state.m_SoundDelayCounter = m_Services.settings.m_EventSoundFileDelay;
    }
}

bool cSound::TickSound() {
    StopSilenced();
    if (WantsPlay(m_Services.state.m_SoundState) && !m_SoundBusy) {
        if (PauseRuns()) return false;
        StartPlay();
    }
    // For a completion event that never comes.
    if (WantsPlay(m_Services.state.m_SoundState) && m_SoundBusy) {
        SkipFailure([&] { m_SoundBusy = m_Services.device.Mode() == cWaveDevice::Playing; });
    }
    return true;
}

void cSound::StopSilenced() {
    if (m_Services.state.m_SoundState != SoundSilent || !m_SoundBusy) return;
    m_Services.timerPlay.SetEnabled(false);
    Command("Stop");
    m_SoundBusy = false;
    m_Services.timerPlay.SetEnabled(true);
}

// Counts the pause of repeat mode. The sum is formed in 64 bits: a delay near the end of the 32-bit range
// must not overflow.
bool cSound::PauseRuns() {
    cReceiverState& state = m_Services.state;
    if (!IsRepeating(state.m_SoundState)) return false;
    const std::int64_t waited = std::int64_t{state.m_SoundDelayCounter} + m_Services.timerPlay.Interval();
    const bool runs = waited < m_Services.settings.m_EventSoundFileDelay;
    state.m_SoundDelayCounter = runs ? static_cast<std::int32_t>(waited) : 0;
    return runs;
}

void cSound::StartPlay() {
    m_SoundBusy = true;
    m_Services.timerPlay.SetEnabled(false);
    Command("Prev");
    SkipFailure([&] { m_Services.device.SetNotify(true); });
    SkipFailure([&] { m_Services.device.SetWait(false); });
    Command("Play");
    m_Services.timerPlay.SetEnabled(true);
    std::int16_t& state = m_Services.state.m_SoundState;
    if (state == SoundPlayOnce) state = SoundPlayingOnce;
    if (state == SoundRepeatPause) state = SoundRepeatPlaying;
}

void cSound::PlayHasEnded() {
    std::int16_t& state = m_Services.state.m_SoundState;
    if (state == SoundPlayingOnce) state = SoundSilent;
    if (state == SoundRepeatPlaying) state = SoundRepeatPause;
    m_SoundBusy = false;
}

void cSound::Menu_StopSound() {
    m_Services.state.m_SoundState = SoundSilent;
    m_Services.log.WriteLog(m_Services.texts.GetText(TextSoundStopped));
}

void cSound::Shutdown() {
    SkipFailure([&] { m_Services.device.SetNotify(false); });
    SkipFailure([&] { m_Services.device.SetWait(true); });
    Command("Close");
}

}  // namespace vigrel
