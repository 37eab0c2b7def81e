#include "make-sounds/tones.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace vigrel::testing {
namespace {

const cTimbre kPure{1.0};

double Loudest(const cSamples& samples, double from, double to) {
    double loudest = 0;
    for (auto i = static_cast<std::size_t>(from * kSampleRate);
         i < static_cast<std::size_t>(to * kSampleRate); ++i) {
        loudest = std::max(loudest, std::abs(samples.at(i)));
    }
    return loudest;
}

TEST(Tones, SilenceLastsAsLongAsAskedFor) {
    EXPECT_EQ(Silence(1.5).size(), 66150U);
    EXPECT_EQ(Loudest(Silence(1.5), 0, 1.5), 0);
}

TEST(Tones, SoundOnlyWithinTheirTime) {
    cSamples samples = Silence(1.0);
    AddTone(samples, {0.25, 0.5, 440, 0}, kPure);
    EXPECT_EQ(Loudest(samples, 0, 0.25), 0);
    EXPECT_NEAR(Loudest(samples, 0.3, 0.7), 1, 0.001);
    EXPECT_EQ(Loudest(samples, 0.75, 1.0), 0);
}

TEST(Tones, FadeAtBothEnds) {
    cSamples samples = Silence(1.0);
    AddTone(samples, {0, 1.0, 4410, 0}, kPure);
    for (const double from : {0.0, 0.999}) EXPECT_LT(Loudest(samples, from, from + 0.001), 0.03) << from;
    for (const double from : {0.012, 0.986}) EXPECT_GT(Loudest(samples, from, from + 0.002), 0.9) << from;
}

TEST(Tones, HalveTheirLoudnessAsTold) {
    cSamples samples = Silence(1.0);
    AddTone(samples, {0, 1.0, 2000, 0.1}, kPure);
    EXPECT_NEAR(Loudest(samples, 0.3, 0.302) / Loudest(samples, 0.2, 0.202), 0.5, 0.02);
}

TEST(Tones, ReachingBeyondTheEndAreCut) {
    cSamples samples = Silence(0.5);
    AddTone(samples, {0.4, 0.3, 440, 0}, kPure);
    EXPECT_EQ(samples.size(), 22050U);
    EXPECT_GT(Loudest(samples, 0.45, 0.5), 0.9);
}

TEST(Tones, LieOnTopOfEachOther) {
    cSamples once = Silence(0.2);
    AddTone(once, {0, 0.2, 440, 0}, kPure);
    cSamples twice = once;
    AddTone(twice, {0, 0.2, 440, 0}, kPure);
    EXPECT_NEAR(Loudest(twice, 0, 0.2), 2 * Loudest(once, 0, 0.2), 1e-9);
}

TEST(Tones, TakeTheWantedPeak) {
    cSamples samples{0.0, 0.5, -2.0};
    SetPeak(samples, 0.8);
    EXPECT_DOUBLE_EQ(samples[1], 0.2);
    EXPECT_DOUBLE_EQ(samples[2], -0.8);
    cSamples silence{0.0, 0.0};
    SetPeak(silence, 0.8);
    EXPECT_EQ(silence, (cSamples{0.0, 0.0}));
}

}  // namespace
}  // namespace vigrel::testing
