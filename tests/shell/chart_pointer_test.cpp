// Where the mouse is on the main chart.
#include "shell/chart_pointer.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace modCycles;

namespace {

constexpr double kInsideY = 1000;

TEST(IsOverPlot, LeavesItsEdgesOut) {
    EXPECT_TRUE(isOverPlot(721, kInsideY));
    EXPECT_FALSE(isOverPlot(720, kInsideY));
    EXPECT_TRUE(isOverPlot(4769, kInsideY));
    EXPECT_FALSE(isOverPlot(4770, kInsideY));
    EXPECT_TRUE(isOverPlot(1000, 361));
    EXPECT_FALSE(isOverPlot(1000, 360));
    EXPECT_TRUE(isOverPlot(1000, 2294));
    EXPECT_FALSE(isOverPlot(1000, 2295));
}

TEST(BandBoundary, IsHeldIn32Bits) {
    EXPECT_EQ(bandBoundary(0), 795.0F);
    EXPECT_EQ(bandBoundary(1), 920.80646F);
    EXPECT_EQ(bandBoundary(2), 1046.6129F);
    EXPECT_EQ(bandBoundary(3), 1172.4193F);
    EXPECT_EQ(bandBoundary(31), 4695.0F);
}

TEST(BandAt, FindsTheFirstAndTheLastBand) {
    EXPECT_EQ(bandAt(795), 0);
    EXPECT_EQ(bandAt(4695), 30);
    EXPECT_EQ(bandAt(2745), 15);
}

TEST(BandAt, FindsNoneBesideTheBands) {
    EXPECT_EQ(bandAt(790), std::nullopt);
    EXPECT_EQ(bandAt(std::nextafter(795.0, 0.0)), std::nullopt);
    EXPECT_EQ(bandAt(4696), std::nullopt);
    EXPECT_EQ(bandAt(4769), std::nullopt);
    EXPECT_TRUE(isOverPlot(790, kInsideY));
    EXPECT_TRUE(isOverPlot(4769, kInsideY));
}

TEST(BandAt, GivesASharedBoundaryToTheLowerBand) {
    for (Integer boundary = 1; boundary < 31; ++boundary) {
        const auto below = static_cast<Integer>(boundary - 1);
        const double x = bandBoundary(boundary);
        EXPECT_EQ(bandAt(x), below);
        EXPECT_EQ(bandAt(std::nextafter(x, 5000.0)), boundary);
    }
}

}  // namespace
