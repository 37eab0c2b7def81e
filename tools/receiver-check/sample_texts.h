#pragma once

#include <string>

#include "platform/clock.h"
#include "receiver-check/installation.h"
#include "receiver-check/machine.h"

namespace vigrel {

// What the station would show, print and play for a sample alarm of each category, for an installer to read.
// Without a machine the lengths of the sounds are left out. Text in the code page, lines end in LF.
std::string SampleTexts(const cInstallation& installation, const cMachine* machine, const cClock& clock);

}  // namespace vigrel
