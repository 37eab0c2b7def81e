#pragma once

#include <string>

#include "make-sounds/tones.h"

namespace vigrel {

// A wave file: RIFF, format PCM, one channel, kSampleRate, 16 bits. A value of 1 becomes 32,767; values
// beyond full scale throw cFailure (Overflow), as a sound that is cut off is a mistake of its composer.
std::string EncodeWave(const cSamples& samples);

// Throws cFailure naming the file when it can't be written.
void WriteWave(const std::string& path, const cSamples& samples);

}  // namespace vigrel
