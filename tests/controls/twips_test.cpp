// Twips and pixels.
#include "controls/twips.h"

#include <gtest/gtest.h>

TEST(Twips, BecomeTheNearestWholePixels) {
    EXPECT_EQ(toPixels(9075), 605);
    EXPECT_EQ(toPixels(3700), 247);
    EXPECT_EQ(toPixels(7), 0);
    EXPECT_EQ(toPixels(8), 1);
    EXPECT_EQ(toPixels(7.4), 0);
    EXPECT_EQ(toPixels(7.6), 1);
}

TEST(Twips, AreFifteenToThePixel) {
    EXPECT_EQ(toTwips(53), 795);
    EXPECT_EQ(toTwips(0.5), 7.5);
}
