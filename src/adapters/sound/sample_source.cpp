#include "adapters/sound/sample_source.h"

#include <sndfile.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <numbers>
#include <utility>

namespace vigrel {
namespace {

using SoundFile = std::unique_ptr<SNDFILE, int (*)(SNDFILE*)>;

class cWaveFile : public cSampleSource {
  public:
    cWaveFile(SoundFile file, const SF_INFO& info) : m_File(std::move(file)), m_Info(info) {}
    int SampleRate() const override { return m_Info.samplerate; }
    int Channels() const override { return m_Info.channels; }
    std::int64_t Frames() const override { return m_Info.frames; }
    std::int64_t ReadFrames(float* samples, std::int64_t frames) override {
        return sf_readf_float(m_File.get(), samples, frames);
    }

  private:
    SoundFile m_File;
    SF_INFO m_Info;
};

class cTone : public cSampleSource {
  public:
    cTone(double hertz, int milliseconds)
        : m_Step(2 * std::numbers::pi * hertz / kRate), m_Frames(std::int64_t{kRate} * milliseconds / 1000) {}
    int SampleRate() const override { return kRate; }
    int Channels() const override { return 1; }
    std::int64_t Frames() const override { return m_Frames; }
    std::int64_t ReadFrames(float* samples, std::int64_t frames) override {
        const std::int64_t count = std::min(frames, m_Frames - m_At);
        for (std::int64_t i = 0; i < count; ++i, ++m_At) samples[i] = Sample();
        return count;
    }

  private:
    static constexpr int kRate = 44100;
    static constexpr double kEdgeFrames = kRate * 0.01;
    static constexpr double kVolume = 0.5;

    float Sample() const {
        const auto at = static_cast<double>(m_At);
        const double edge =
            std::min({1.0, at / kEdgeFrames, (static_cast<double>(m_Frames) - at) / kEdgeFrames});
        return static_cast<float>(kVolume * edge * std::sin(m_Step * at));
    }

    double m_Step;
    std::int64_t m_Frames, m_At = 0;
};

}  // namespace

SourcePtr OpenWaveFile(const std::string& path) {
    // Anything else can make the sound wait for ever.
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return nullptr;
    SF_INFO info{};
    SoundFile file(sf_open(path.c_str(), SFM_READ, &info), sf_close);
    const bool usable = file && info.samplerate > 0 && info.channels > 0 && info.frames > 0;
    return usable ? std::make_unique<cWaveFile>(std::move(file), info) : nullptr;
}

SourcePtr MakeTone(double hertz, int milliseconds) {
    return std::make_unique<cTone>(hertz, milliseconds);
}

}  // namespace vigrel
