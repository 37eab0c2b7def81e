#pragma once

#include <string>
#include <vector>

#include "make-sounds/tones.h"

namespace vigrel {

// The sounds are told apart by rhythm as well as by pitch, and are the louder the more they press.

cSamples AlarmSound();    // siren: two high, sharp tones in turn
cSamples WarningSound();  // three beeps
cSamples NoticeSound();   // chime: two soft notes, falling

struct cNamedSound {
    std::string fileName;
    cSamples samples;
};
// All that is delivered, by file name.
std::vector<cNamedSound> DeliveredSounds();

}  // namespace vigrel
