#include "make-sounds/sounds.h"

namespace vigrel {
namespace {

// Odd multiples sound hollow and sharp, like a horn; they carry through a noisy room and small loudspeakers.
const cTimbre kHorn{1.0, 0.0, 0.35, 0.0, 0.15};
const cTimbre kBeep{1.0, 0.25, 0.1};
const cTimbre kBell{1.0, 0.15, 0.08, 0.0, 0.03};

}  // namespace

cSamples AlarmSound() {
    constexpr double kTurn = 0.2;
    cSamples samples = Silence(1.6);
    for (int turn = 0; turn < 8; ++turn) {
        AddTone(samples, {turn * kTurn, kTurn, turn % 2 == 0 ? 988.0 : 784.0, 0}, kHorn);
    }
    SetPeak(samples, 0.85);
    return samples;
}

cSamples WarningSound() {
    cSamples samples = Silence(1.2);
    for (const double start : {0.0, 0.4, 0.8}) AddTone(samples, {start, 0.25, 659.0, 0}, kBeep);
    SetPeak(samples, 0.6);
    return samples;
}

cSamples NoticeSound() {
    cSamples samples = Silence(1.4);
    AddTone(samples, {0.0, 1.0, 523.0, 0.12}, kBell);
    AddTone(samples, {0.3, 1.1, 392.0, 0.18}, kBell);
    SetPeak(samples, 0.4);
    return samples;
}

std::vector<cNamedSound> DeliveredSounds() {
    return {{"alarm.wav", AlarmSound()}, {"warning.wav", WarningSound()}, {"notice.wav", NoticeSound()}};
}

}  // namespace vigrel
