#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <numbers>
#include <string>
#include <vector>

// The files as a station plays them, read here without the code that wrote them.

namespace vigrel::testing {
namespace {

constexpr int kRate = 44100;
const std::vector<std::string> kFiles{"alarm.wav", "warning.wav", "notice.wav"};

std::string ReadSound(const std::string& name) {
    std::ifstream file(std::string(VIGREL_SHARE_DIR) + "/Sounds/" + name, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

std::uint32_t Number(const std::string& bytes, std::size_t at, int count) {
    std::uint32_t value = 0;
    for (int i = count - 1; i >= 0; --i) {
        value = value << 8 | static_cast<unsigned char>(bytes.at(at + static_cast<std::size_t>(i)));
    }
    return value;
}

// -32,768 to 32,767.
std::vector<int> Samples(const std::string& name) {
    const std::string bytes = ReadSound(name);
    std::vector<int> samples;
    for (std::size_t at = 44; at + 1 < bytes.size(); at += 2) {
        samples.push_back(static_cast<std::int16_t>(Number(bytes, at, 2)));
    }
    return samples;
}

int Loudest(const std::vector<int>& samples, std::size_t first, std::size_t count) {
    int loudest = 0;
    for (std::size_t i = first; i < std::min(first + count, samples.size()); ++i) {
        loudest = std::max(loudest, std::abs(samples[i]));
    }
    return loudest;
}

int Peak(const std::vector<int>& samples) {
    return Loudest(samples, 0, samples.size());
}

double Strength(const std::vector<int>& samples, double frequency) {
    double real = 0;
    double imaginary = 0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double angle = 2 * std::numbers::pi * frequency * static_cast<double>(i) / kRate;
        real += samples[i] * std::cos(angle);
        imaginary += samples[i] * std::sin(angle);
    }
    return std::hypot(real, imaginary);
}

double StrongestFrequency(const std::vector<int>& samples) {
    double strongest = 0;
    double best = 0;
    for (double frequency = 200; frequency < 2000; frequency += 4) {
        const double strength = Strength(samples, frequency);
        if (strength > best) strongest = frequency;
        best = std::max(best, strength);
    }
    return strongest;
}

// Stretches of sound between stretches of silence, in steps of 50 ms.
int Bursts(const std::vector<int>& samples) {
    constexpr std::size_t kStep = kRate / 20;
    int bursts = 0;
    bool sounding = false;
    for (std::size_t at = 0; at < samples.size(); at += kStep) {
        const bool loud = Loudest(samples, at, kStep) > 1000;
        if (loud && !sounding) ++bursts;
        sounding = loud;
    }
    return bursts;
}

TEST(DeliveredSounds, AreWaveFilesOfOneChannelAnd16Bits) {
    for (const std::string& name : kFiles) {
        const std::string bytes = ReadSound(name);
        ASSERT_GT(bytes.size(), 44U) << name;
        EXPECT_EQ(bytes.substr(0, 4), "RIFF") << name;
        EXPECT_EQ(Number(bytes, 4, 4), bytes.size() - 8) << name;
        EXPECT_EQ(bytes.substr(8, 8), "WAVEfmt ") << name;
        EXPECT_EQ(Number(bytes, 16, 4), 16U) << name;
        EXPECT_EQ(Number(bytes, 20, 2), 1U) << name;
        EXPECT_EQ(Number(bytes, 22, 2), 1U) << name;
        EXPECT_EQ(Number(bytes, 24, 4), 44100U) << name;
        EXPECT_EQ(Number(bytes, 28, 4), 88200U) << name;
        EXPECT_EQ(Number(bytes, 32, 2), 2U) << name;
        EXPECT_EQ(Number(bytes, 34, 2), 16U) << name;
        EXPECT_EQ(bytes.substr(36, 4), "data") << name;
        EXPECT_EQ(Number(bytes, 40, 4), bytes.size() - 44) << name;
    }
}

TEST(DeliveredSounds, LastOneToTwoSeconds) {
    for (const std::string& name : kFiles) {
        const double seconds = static_cast<double>(Samples(name).size()) / kRate;
        EXPECT_GE(seconds, 1.0) << name;
        EXPECT_LE(seconds, 2.0) << name;
    }
}

TEST(DeliveredSounds, StayBelowFullScale) {
    for (const std::string& name : kFiles) {
        EXPECT_LT(Peak(Samples(name)), 30000) << name;
        EXPECT_GT(Peak(Samples(name)), 10000) << name;
    }
}

TEST(DeliveredSounds, BeginAndEndNearZero) {
    for (const std::string& name : kFiles) {
        const std::vector<int> samples = Samples(name);
        ASSERT_GT(samples.size(), 88U) << name;
        EXPECT_LT(Loudest(samples, 0, 22), 300) << name << ": the first half millisecond";
        EXPECT_LT(Loudest(samples, samples.size() - 22, 22), 300) << name << ": the last half millisecond";
    }
}

// A step between neighbours beyond what the highest part of these tones makes is heard as a click.
TEST(DeliveredSounds, DoNotClick) {
    for (const std::string& name : kFiles) {
        const std::vector<int> samples = Samples(name);
        int steepest = 0;
        for (std::size_t i = 1; i < samples.size(); ++i) {
            steepest = std::max(steepest, std::abs(samples[i] - samples[i - 1]));
        }
        EXPECT_GT(steepest, 0) << name;
        EXPECT_LT(steepest, Peak(samples) / 2) << name;
    }
}

TEST(DeliveredSounds, AreToldApartByRhythm) {
    EXPECT_EQ(Bursts(Samples("alarm.wav")), 1);
    EXPECT_EQ(Bursts(Samples("warning.wav")), 3);
    EXPECT_EQ(Bursts(Samples("notice.wav")), 1);
}

TEST(DeliveredSounds, AreToldApartByPitch) {
    const double alarm = StrongestFrequency(Samples("alarm.wav"));
    const double warning = StrongestFrequency(Samples("warning.wav"));
    const double notice = StrongestFrequency(Samples("notice.wav"));
    EXPECT_GT(alarm, 1.15 * warning);
    EXPECT_GT(warning, 1.15 * notice);
}

TEST(DeliveredSounds, AreTheLouderTheMoreTheyPress) {
    EXPECT_GT(Peak(Samples("alarm.wav")), 1.2 * Peak(Samples("warning.wav")));
    EXPECT_GT(Peak(Samples("warning.wav")), 1.2 * Peak(Samples("notice.wav")));
}

}  // namespace
}  // namespace vigrel::testing
