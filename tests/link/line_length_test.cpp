#include "link/line_length.h"

#include <gtest/gtest.h>

#include <string>

namespace vigrel::testing {
namespace {

// So many bytes, a line feed at that place.
std::string Bytes(std::size_t count, std::size_t lineFeed) {
    std::string bytes(count, 'x');
    bytes[lineFeed] = '\n';
    return bytes;
}

TEST(LineLength, SoMuchAsTheLongestLineIsLookedAtTogetherMoreLineByLine) {
    const cLineLength length;
    EXPECT_EQ(length.Together(Bytes(32'767, 10)), 32'767u);
    EXPECT_EQ(length.Together(Bytes(32'768, 10)), 11u);
    EXPECT_EQ(length.Together(std::string(40'000, 'x')), 40'000u);
}

TEST(LineLength, WhatWaitsForALinesEndCountsToo) {
    cLineLength length;
    EXPECT_TRUE(length.Count(Bytes(300, 99)));
    EXPECT_EQ(length.Together(Bytes(32'567, 0)), 32'567u);
    EXPECT_EQ(length.Together(Bytes(32'568, 0)), 1u);
    length.BeginConnection();
    EXPECT_EQ(length.Together(Bytes(32'568, 0)), 32'568u);
}

TEST(LineLength, AStreamOfAMegabyteWithoutALineEndIsNoSenders) {
    cLineLength length;
    EXPECT_TRUE(length.Count(std::string(1'048'576, 'x')));
    EXPECT_FALSE(length.Count("x"));
    EXPECT_TRUE(length.Count("\n"));
    EXPECT_TRUE(length.Count(std::string(1'048'576, 'x')));
}

}  // namespace
}  // namespace vigrel::testing
