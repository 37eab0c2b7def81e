#include "make-sounds/wave_file.h"

#include <gtest/gtest.h>

#include <limits>

#include "common/failure.h"
#include "support/bytes.h"
#include "support/temporary_folder.h"

namespace vigrel::testing {
namespace {

TEST(WaveFile, IsOneChannelOf16BitsAt44100) {
    EXPECT_EQ(
        EncodeWave({0, 1, -1, 0.5}),
        Bytes("52 49 46 46 (RIFF)  2C 00 00 00 (44 bytes follow)  57 41 56 45 (WAVE)"
              "66 6D 74 20 (fmt)  10 00 00 00 (16 bytes)  01 00 (PCM)  01 00 (one channel)"
              "44 AC 00 00 (44100 a second)  88 58 01 00 (88200 bytes)  02 00 (per sample)  10 00 (bits)"
              "64 61 74 61 (data)  08 00 00 00 (8 bytes)"
              "00 00  FF 7F  01 80  00 40"));
}

TEST(WaveFile, RefusesSoundBeyondFullScale) {
    const double noNumber = std::numeric_limits<double>::quiet_NaN();
    for (const double value : {1.001, -1.001, noNumber}) {
        const auto failure = CatchFailure([&] { EncodeWave({0, value}); });
        ASSERT_TRUE(failure) << value;
        EXPECT_EQ(failure->Number(), eFailure::Overflow);
    }
}

TEST(WaveFile, NamesTheFileThatCannotBeWritten) {
    const cTemporaryFolder folder;
    const std::string path = (folder.Path() / "missing" / "alarm.wav").string();
    const auto failure = CatchFailure([&] { WriteWave(path, {0, 0}); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(std::string(failure->what()), path + ": can't be written");
}

}  // namespace
}  // namespace vigrel::testing
