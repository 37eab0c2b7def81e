#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace vigrel {

// A sound as a stream of samples, -1 to 1, that ends by itself. Belongs to the thread that plays it.
class cSampleSource {
  public:
    virtual ~cSampleSource() = default;
    virtual int SampleRate() const = 0;  // frames a second
    virtual int Channels() const = 0;    // samples in a frame
    virtual std::int64_t Frames() const = 0;
    // Up to that many of the next frames; how many they are, 0 at the end.
    virtual std::int64_t ReadFrames(float* samples, std::int64_t frames) = 0;
};

using SourcePtr = std::unique_ptr<cSampleSource>;
// Makes a source, in the thread that is to play it. nullptr when there is nothing to be played.
using SourceMaker = std::function<SourcePtr()>;

// Reads every kind of wave file. The path is the operating system's. nullptr for a file that is missing or
// holds no sound.
SourcePtr OpenWaveFile(const std::string& path);

// A plain tone with soft edges.
SourcePtr MakeTone(double hertz, int milliseconds);

}  // namespace vigrel
