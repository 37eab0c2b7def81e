#include <gtest/gtest.h>

#include "categories/colours.h"

namespace vigrel::testing {
namespace {

TEST(Contrast, BlackOnWhiteIs21AndOfAColourWithItself1) {
    EXPECT_NEAR(Contrast(0, 0xFFFFFF), 21, 0.001);
    EXPECT_NEAR(Contrast(0xFFFFFF, 0), 21, 0.001);
    EXPECT_EQ(Contrast(0x123456, 0x123456), 1);
}

TEST(Contrast, GreyOnWhiteIsAsPublished) {
    EXPECT_NEAR(Contrast(0x767676, 0xFFFFFF), 4.54, 0.01);
}

TEST(Contrast, ADarkGreyOnBlackIsAsPublished) {
    // Below 0.03928 a part counts for a 12.92th: 10 / 255 / 12.92 / 0.05 + 1.
    EXPECT_NEAR(Contrast(0x0A0A0A, 0), 1.0607, 0.0001);
}

TEST(Contrast, RedGreenAndBlueWeighAsPublished) {
    EXPECT_NEAR(Contrast(0x0000FF, 0xFFFFFF), 4.00, 0.01) << "red is the low byte";
    EXPECT_NEAR(Contrast(0x00FF00, 0xFFFFFF), 1.37, 0.01);
    EXPECT_NEAR(Contrast(0xFF0000, 0xFFFFFF), 8.59, 0.01);
}

}  // namespace
}  // namespace vigrel::testing
