// The day states, at both ends of every band.
#include "cycles/day_state.h"

#include <gtest/gtest.h>

#include <cmath>

#include "cycles/cycle.h"

using namespace modCycles;

namespace {

using StateOf = DayState (*)(double sine);

double above(double value) {
    return std::nextafter(value, 2);
}

double below(double value) {
    return std::nextafter(value, -2);
}

// The band has both its ends in, and what lies next to them is ordinary.
void expectCriticalBand(StateOf stateOf, double lowest, double highest) {
    EXPECT_EQ(stateOf(below(lowest)), DayState::Ordinary);
    EXPECT_EQ(stateOf(lowest), DayState::Critical);
    EXPECT_EQ(stateOf(above(lowest)), DayState::Critical);
    EXPECT_EQ(stateOf(0), DayState::Critical);
    EXPECT_EQ(stateOf(below(highest)), DayState::Critical);
    EXPECT_EQ(stateOf(highest), DayState::Critical);
    EXPECT_EQ(stateOf(above(highest)), DayState::Ordinary);
}

}  // namespace

static_assert(emotionalState(0.14) == DayState::Ordinary);
static_assert(physicalState(0.14) == DayState::Critical);
static_assert(intellectualState(-0.1) == DayState::Ordinary);

TEST(EmotionalState, IsCriticalFromMinusToPlusATenth) {
    expectCriticalBand(emotionalState, -0.1, 0.1);
}

TEST(PhysicalState, IsCriticalFromMinusATenthToFourteenHundredths) {
    expectCriticalBand(physicalState, -0.1, 0.14);
}

TEST(IntellectualState, IsCriticalFromMinusAHundredthToATenth) {
    expectCriticalBand(intellectualState, -0.01, 0.1);
}

TEST(DayState, IsNeitherPeakNorLowAtTheBoundItself) {
    for (const StateOf stateOf : {emotionalState, physicalState, intellectualState}) {
        EXPECT_EQ(stateOf(0.99), DayState::Ordinary);
        EXPECT_EQ(stateOf(-0.99), DayState::Ordinary);
    }
}

TEST(DayState, IsPeakOrLowJustBeyondTheBound) {
    for (const StateOf stateOf : {emotionalState, physicalState}) {
        EXPECT_EQ(stateOf(above(0.99)), DayState::Peak);
        EXPECT_EQ(stateOf(below(-0.99)), DayState::Low);
    }
}

// Next to 0.99 stands a sine that is beyond it, and whose product with 10 is not beyond 9.9.
TEST(IntellectualState, IsReadOnTheSineTimesTen) {
    EXPECT_EQ(intellectualState(above(0.99)), DayState::Ordinary);
    EXPECT_EQ(intellectualState(below(-0.99)), DayState::Ordinary);
    EXPECT_EQ(intellectualState(above(above(0.99))), DayState::Peak);
    EXPECT_EQ(intellectualState(below(below(-0.99))), DayState::Low);
}

TEST(DayState, IsPeakAtTheTopAndLowAtTheBottom) {
    for (const StateOf stateOf : {emotionalState, physicalState, intellectualState}) {
        EXPECT_EQ(stateOf(1), DayState::Peak);
        EXPECT_EQ(stateOf(-1), DayState::Low);
        EXPECT_EQ(stateOf(0.5), DayState::Ordinary);
        EXPECT_EQ(stateOf(-0.5), DayState::Ordinary);
    }
}

TEST(DayState, IsCriticalOnTheDayOfBirthAndAtHalfTheEmotionalCycle) {
    EXPECT_EQ(emotionalState(std::sin(0 * EmotionalFactor)), DayState::Critical);
    EXPECT_EQ(emotionalState(std::sin(14 * EmotionalFactor)), DayState::Critical);
    EXPECT_EQ(emotionalState(std::sin(7 * EmotionalFactor)), DayState::Peak);
    EXPECT_EQ(emotionalState(std::sin(21 * EmotionalFactor)), DayState::Low);
}
