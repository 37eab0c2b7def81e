#pragma once

#include <vector>

namespace vigrel {

constexpr int kSampleRate = 44100;  // per second

// One channel, kSampleRate values a second; full scale is -1 to 1.
using cSamples = std::vector<double>;

// How loud the multiples of a tone's frequency are beside it: once, twice, three times the frequency and so
// on.
using cTimbre = std::vector<double>;

struct cTone {
    double start;      // seconds from the beginning of the sound
    double length;     // seconds, fades included
    double frequency;  // hertz
    double halfLife;   // seconds after which it is half as loud; 0 for a tone that holds
};

cSamples Silence(double seconds);
// Adds a tone on top of what is there. It fades in and out, so that it neither clicks at its ends nor, at the
// ends of a sound, in the loudspeaker. What reaches beyond the end is left out.
void AddTone(cSamples& samples, const cTone& tone, const cTimbre& timbre);
// Scales all so that the loudest value is the given one. Silence stays silence.
void SetPeak(cSamples& samples, double peak);

}  // namespace vigrel
