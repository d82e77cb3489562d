// The levels of a day, at both ends of every band.
#include "cycles/day_level.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace modCycles;

namespace {

using LevelOf = Integer (*)(double percent);

// The band has its lower end in and its upper end out.
void expectCriticalBand(LevelOf levelOf, double lowest, double beyond) {
    EXPECT_EQ(levelOf(std::nextafter(lowest, -101)), -1);
    EXPECT_EQ(levelOf(lowest), 0);
    EXPECT_EQ(levelOf(0), 0);
    EXPECT_EQ(levelOf(std::nextafter(beyond, -101)), 0);
    EXPECT_EQ(levelOf(beyond), 1);
    EXPECT_EQ(levelOf(-100), -1);
    EXPECT_EQ(levelOf(100), 1);
}

}  // namespace

TEST(EmotionalLevel, IsCriticalFromMinusTenToBelowTen) {
    expectCriticalBand(emotionalLevel, -10, 10);
}

TEST(PhysicalLevel, IsCriticalFromMinusTenToBelowFourteen) {
    expectCriticalBand(physicalLevel, -10, 14);
}

TEST(IntellectualLevel, IsCriticalFromMinusOneToBelowTen) {
    expectCriticalBand(intellectualLevel, -1, 10);
}

TEST(DayLevels, ReadEachCycleByABandOfItsOwn) {
    EXPECT_EQ(intellectualLevel(-0.5), 0);
    EXPECT_EQ(intellectualLevel(-1.5), -1);
    EXPECT_EQ(physicalLevel(13.9), 0);
    EXPECT_EQ(emotionalLevel(13.9), 1);
}

TEST(DayLevels, StandInTheOrderOfTheCycles) {
    EXPECT_EQ(dayLevels({.emotional = 13.9, .physical = 13.9, .intellectual = -1.5}),
              (DayLevels{1, 0, -1}));
    EXPECT_EQ(dayLevels({.emotional = -50, .physical = 50, .intellectual = 0}),
              (DayLevels{-1, 1, 0}));
}

TEST(DayLevels, AreAllCriticalOnTheDayOfBirth) {
    EXPECT_EQ(dayLevels(CalcCycles(0, 0)), (DayLevels{0, 0, 0}));
}

// The value there is a trifle above nought.
TEST(DayLevels, AreCriticalAtHalfTheEmotionalCycle) {
    const double value = CalcCycle(14, 0, kEmotionalKey);
    EXPECT_GT(value, 0);
    EXPECT_EQ(emotionalLevel(value), 0);
}
