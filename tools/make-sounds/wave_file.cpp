#include "make-sounds/wave_file.h"

#include <cmath>
#include <fstream>

#include "common/binary.h"
#include "common/failure.h"

namespace vigrel {
namespace {

constexpr int kBytesPerSample = 2;
constexpr int kHeaderBytes = 36;  // of the RIFF chunk, before the samples
constexpr int kFormatBytes = 16;
constexpr std::int16_t kPcm = 1;
constexpr std::int16_t kChannels = 1;
constexpr double kFullScale = 32767;

void WriteFormat(cBinaryWriter& file) {
    file.Raw("fmt ");
    file.Int32(kFormatBytes);
    file.Int16(kPcm);
    file.Int16(kChannels);
    file.Int32(kSampleRate);
    file.Int32(kSampleRate * kBytesPerSample);  // bytes a second
    file.Int16(kBytesPerSample);                // bytes of all channels together
    file.Int16(kBytesPerSample * 8);
}

std::int16_t ToInteger(double value) {
    if (!(std::abs(value) <= 1)) throw cFailure(eFailure::Overflow, "A sound goes beyond full scale");
    return static_cast<std::int16_t>(std::lround(value * kFullScale));
}

}  // namespace

std::string EncodeWave(const cSamples& samples) {
    const auto dataBytes = static_cast<std::int32_t>(samples.size()) * kBytesPerSample;
    cBinaryWriter file;
    file.Raw("RIFF");
    file.Int32(kHeaderBytes + dataBytes);
    file.Raw("WAVE");
    WriteFormat(file);
    file.Raw("data");
    file.Int32(dataBytes);
    for (const double value : samples) file.Int16(ToInteger(value));
    return file.Bytes();
}

void WriteWave(const std::string& path, const cSamples& samples) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << EncodeWave(samples);
    file.close();
    if (file.fail()) throw cFailure(eFailure::PathAccess, path + ": can't be written");
}

}  // namespace vigrel
