#pragma once

#include <functional>

#include "adapters/sound/sample_source.h"

namespace vigrel {

// A sound server that does nothing for this long counts as gone.
inline constexpr int kServerPatienceMilliseconds = 3000;

// Plays a sound to its end through the desktop's sound server (PulseAudio, or PipeWire in its place), over a
// connection of its own: whatever became of the server before plays no part. Returns when the sound has been
// heard, and within a fiftieth of a second once goesOn says no; then the sound is cut. A connection that is
// being made then has a fifth of a second to be made whole. False when it could not be played whole.
//
// Nothing here waits for the server without a bound, so that one that hangs, dies or is replaced, or a device
// that is unplugged, ends the play and no more.
bool PlayThroughServer(cSampleSource& source, const std::function<bool()>& goesOn);

}  // namespace vigrel
