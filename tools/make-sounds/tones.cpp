#include "make-sounds/tones.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vigrel {
namespace {

constexpr double kFade = 0.012;  // seconds; much shorter and it is heard as a click

std::size_t SampleCount(double seconds) {
    return static_cast<std::size_t>(std::lround(seconds * kSampleRate));
}

// Half a cosine from 0 to 1 within the fade.
double Ramp(double seconds) {
    const double part = std::clamp(seconds / kFade, 0.0, 1.0);
    return 0.5 - 0.5 * std::cos(std::numbers::pi * part);
}

double Loudness(const cTone& tone, double at) {
    const double decay = tone.halfLife > 0 ? std::exp2(-at / tone.halfLife) : 1.0;
    return Ramp(at) * Ramp(tone.length - at) * decay;
}

double Wave(double frequency, const cTimbre& timbre, double at) {
    double value = 0;
    for (std::size_t i = 0; i < timbre.size(); ++i) {
        const double multiple = static_cast<double>(i + 1);
        value += timbre[i] * std::sin(2 * std::numbers::pi * frequency * multiple * at);
    }
    return value;
}

}  // namespace

cSamples Silence(double seconds) {
    return cSamples(SampleCount(seconds), 0.0);
}

void AddTone(cSamples& samples, const cTone& tone, const cTimbre& timbre) {
    const std::size_t first = SampleCount(tone.start);
    const std::size_t end = std::min(samples.size(), first + SampleCount(tone.length));
    for (std::size_t i = first; i < end; ++i) {
        const double at = static_cast<double>(i - first) / kSampleRate;
        samples[i] += Loudness(tone, at) * Wave(tone.frequency, timbre, at);
    }
}

void SetPeak(cSamples& samples, double peak) {
    double loudest = 0;
    for (const double value : samples) loudest = std::max(loudest, std::abs(value));
    if (loudest == 0) return;
    for (double& value : samples) value *= peak / loudest;
}

}  // namespace vigrel
