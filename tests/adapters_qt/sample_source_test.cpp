#include "adapters/sound/sample_source.h"

#include <gtest/gtest.h>
#include <sndfile.h>
#include <sys/stat.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

constexpr int kFrames = 3000;

std::vector<float> ReadAll(cSampleSource& source) {
    std::vector<float> all;
    std::vector<float> some(static_cast<std::size_t>(1000 * source.Channels()));
    while (const auto frames = source.ReadFrames(some.data(), 1000)) {
        all.insert(all.end(), some.begin(), some.begin() + frames * source.Channels());
    }
    return all;
}

// A file of half loudness, in a form of the library's numbers.
std::string MakeFile(const cTemporaryFolder& folder, int format, int rate, int channels) {
    std::string path = (folder.Path() / "a.wav").string();
    SF_INFO info{};
    info.format = SF_FORMAT_WAV | format;
    info.samplerate = rate;
    info.channels = channels;
    SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
    const std::vector<float> samples(static_cast<std::size_t>(kFrames * channels), 0.5f);
    EXPECT_EQ(sf_writef_float(file, samples.data(), kFrames), kFrames) << format;
    sf_close(file);
    return path;
}

TEST(SampleSource, WhatIsNoFileIsNotWaitedFor) {
    cTemporaryFolder folder;
    const std::string pipe = (folder.Path() / "a.wav").string();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0666), 0);
    EXPECT_EQ(OpenWaveFile(pipe), nullptr);
    EXPECT_EQ(OpenWaveFile("/dev/zero"), nullptr);
}

TEST(SampleSource, EveryKindOfWaveFileIsReadAtItsLoudness) {
    const cTemporaryFolder folder;
    for (const int format :
         {SF_FORMAT_PCM_U8, SF_FORMAT_PCM_16, SF_FORMAT_PCM_24, SF_FORMAT_PCM_32, SF_FORMAT_FLOAT,
          SF_FORMAT_DOUBLE, SF_FORMAT_ULAW, SF_FORMAT_ALAW, SF_FORMAT_MS_ADPCM, SF_FORMAT_IMA_ADPCM}) {
        const SourcePtr source = OpenWaveFile(MakeFile(folder, format, 22050, 1));
        ASSERT_TRUE(source) << format;
        EXPECT_EQ(source->SampleRate(), 22050);
        EXPECT_EQ(source->Channels(), 1);
        const auto samples = ReadAll(*source);
        EXPECT_GE(samples.size(), std::size_t{kFrames}) << format;  // some forms fill up a block
        EXPECT_EQ(static_cast<std::int64_t>(samples.size()), source->Frames());
        EXPECT_NEAR(samples[1500], 0.5f, 0.02f) << format;
    }
}

TEST(SampleSource, RatesAndChannelsAreTheFiles) {
    const cTemporaryFolder folder;
    for (const int rate : {8000, 11127, 96000}) {
        for (const int channels : {1, 2, 6}) {
            const SourcePtr source = OpenWaveFile(MakeFile(folder, SF_FORMAT_PCM_16, rate, channels));
            ASSERT_TRUE(source);
            EXPECT_EQ(source->SampleRate(), rate);
            EXPECT_EQ(source->Channels(), channels);
            EXPECT_EQ(ReadAll(*source).size(), static_cast<std::size_t>(kFrames * channels));
        }
    }
}

TEST(SampleSource, WhatIsNoWaveFileIsNone) {
    const cTemporaryFolder folder;
    EXPECT_FALSE(OpenWaveFile(""));
    EXPECT_FALSE(OpenWaveFile(folder.Path().string()));
    EXPECT_FALSE(OpenWaveFile((folder.Path() / "missing.wav").string()));
}

TEST(SampleSource, ATonesEdgesAreSoft) {
    const SourcePtr tone = MakeTone(880, 200);
    EXPECT_EQ(tone->Frames(), 8820);
    const auto samples = ReadAll(*tone);
    ASSERT_EQ(samples.size(), 8820u);
    const auto loudest = [&](int from, int to) {
        float most = 0;
        for (int i = from; i < to; ++i)
            most = std::max(most, std::fabs(samples[static_cast<std::size_t>(i)]));
        return most;
    };
    EXPECT_LT(loudest(0, 10), 0.02f);
    EXPECT_NEAR(loudest(1000, 8000), 0.5f, 0.01f);
    EXPECT_LT(loudest(8810, 8820), 0.02f);
}

}  // namespace
}  // namespace vigrel::testing
