// The cycle arithmetic: factors, values, averages and compatibility.
#include "cycles/cycle.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

#include "support/properties.h"

using namespace modCycles;

namespace {

struct Cycle {
    std::string_view key;
    Long length;
    Integer index;
};

constexpr std::array<Cycle, 3> kCycles{{{"emot", 28, 0}, {"phys", 23, 1}, {"intel", 33, 2}}};

// What a caller may brace as an offset: an Integer, or a constant that fits one.
template <class T>
concept Offset = requires(T value) {
    Integer{value};
};
template <Long value>
concept ConstantOffset = requires {
    Integer{value};
};

static_assert(Offset<Integer>);
static_assert(!Offset<Long>);
static_assert(ConstantOffset<32767> && !ConstantOffset<32768>);
static_assert(ConstantOffset<-32768> && !ConstantOffset<-32769>);

static_assert(CycleValues{1, 2, 6}.average() == 3);

}  // namespace

TEST(CycleFactor, HasThePrintedValueInEveryBit) {
    EXPECT_EQ(EmotionalFactor, 0.2243994752564138);
    EXPECT_EQ(PhysicalFactor, 0.2731819698773733);
    EXPECT_EQ(IntellectualFactor, 0.19039955476301776);
}

TEST(CycleFactor, IsWhatTheArcTangentGivesAtRunTime) {
    volatile double one = 1.0;
    const double pi = 4 * std::atan(one);
    EXPECT_EQ(PhysicalFactor, (pi / 180) * (360 / 23.0));
    EXPECT_EQ(IntellectualFactor, (pi / 180) * (360 / 33.0));
    EXPECT_EQ(EmotionalFactor, (pi / 180) * (360 / 28.0));
}

TEST(CycleFactor, DividesBeforeItMultiplies) {
    EXPECT_NE(IntellectualFactor, std::numbers::pi * (360 / 33.0) / 180);
}

TEST(CalcCycle, IsZeroOnTheDayOfBirth) {
    for (const Cycle& cycle : kCycles)
        EXPECT_EQ(CalcCycle(0, 0, cycle.key), 0.0) << cycle.key;
}

TEST(CalcCycle, RisesOnTheDayOfBirth) {
    for (const Cycle& cycle : kCycles)
        EXPECT_GT(CalcCycle(0, 1, cycle.key), 0.0) << cycle.key;
}

TEST(CalcCycle, HasThePrintedValuesInEveryBit) {
    EXPECT_EQ(CalcCycle(10000, 0, "emot"), 78.18314824680299);
    EXPECT_EQ(CalcCycle(10000, 0, "phys"), -97.9084087682323);
    EXPECT_EQ(CalcCycle(10000, 0, "intel"), 18.925124436041017);
    EXPECT_EQ(CalcCycle(10000, 7, "emot"), 62.34898018587336);
    EXPECT_EQ(CalcCycle(10000, 7, "phys"), 51.95839500354331);
    EXPECT_EQ(CalcCycle(10000, 7, "intel"), 99.88673391830079);
}

TEST(CycleSine, IsTheValueBeforeItBecomesAPercentage) {
    for (const std::string_view key : {kEmotionalKey, kPhysicalKey, kIntellectualKey})
        for (Integer day = 0; day < 100; ++day)
            EXPECT_EQ(cycleSine(10000, day, key) * 100, CalcCycle(10000, day, key));
    EXPECT_EQ(cycleSine(7, 0, kEmotionalKey), std::sin(7 * EmotionalFactor));
    EXPECT_EQ(cycleSine(7, 0, "average"), 0.0);
}

TEST(CalcCycle, KnowsItsKeysLetterForLetter) {
    for (const auto key : {"Emot", "EMOT", "", "average", "emo", "emot ", "Phys", "Intel"})
        EXPECT_EQ(CalcCycle(10000, 0, key), 0.0) << key;
}

TEST(CalcCycle, AddsTheOffsetAfterTheRemainder) {
    EXPECT_NEAR(CalcCycle(10000, 7, "phys"), CalcCycle(10007, 0, "phys"), 1e-11);
    EXPECT_NE(CalcCycle(10000, 7, "phys"), CalcCycle(10007, 0, "phys"));
}

TEST(CalcCycle, IsNotQuiteZeroWhereItsAngleIsNotQuiteAHalfOrWholeTurn) {
    EXPECT_NEAR(CalcCycle(14, 0, "emot"), 1.2246e-14, 1e-18);
    EXPECT_NEAR(CalcCycle(0, 28, "emot"), -2.4493e-14, 1e-18);
}

TEST(CalcCycle, TakesANegativeDayCountsRemainderWithItsSign) {
    for (const Cycle& cycle : kCycles) {
        EXPECT_EQ(CalcCycle(-1, 0, cycle.key), -CalcCycle(1, 0, cycle.key)) << cycle.key;
        EXPECT_EQ(CalcCycle(-cycle.length, 0, cycle.key), 0.0) << cycle.key;
        EXPECT_EQ(CalcCycle(-cycle.length - 1, 0, cycle.key), CalcCycle(-1, 0, cycle.key));
    }
}

TEST(CalcCycle, TakesTheEndsOfItsArguments) {
    constexpr Long kMostDays = std::numeric_limits<Long>::max();
    constexpr Long kLeastDays = std::numeric_limits<Long>::min();
    constexpr Integer kMostOffset = std::numeric_limits<Integer>::max();
    constexpr Integer kLeastOffset = std::numeric_limits<Integer>::min();
    EXPECT_EQ(CalcCycle(kMostDays, kMostOffset, "emot"),
              std::sin((kMostDays % 28 + 32767) * EmotionalFactor) * 100);
    EXPECT_EQ(CalcCycle(kLeastDays, kLeastOffset, "emot"),
              std::sin((kLeastDays % 28 - 32768) * EmotionalFactor) * 100);
}

TEST(CalcCycle, RepeatsEveryPhaseOfEveryCycle) {
    for (const Cycle& cycle : kCycles) {
        for (Long day = 0; day < cycle.length; ++day) {
            const double value = CalcCycle(day, 0, cycle.key);
            const auto length = static_cast<Integer>(cycle.length);
            EXPECT_EQ(CalcCycle(day + cycle.length, 0, cycle.key), value) << cycle.key << day;
            EXPECT_NEAR(CalcCycle(day, length, cycle.key), value, 1e-11) << cycle.key << day;
            EXPECT_NEAR(CalcCycle(cycle.length - day, 0, cycle.key), -value, 1e-11);
        }
    }
}

TEST(CalcCycle, IsPositiveInTheFirstHalfOfACycleAndNegativeInTheSecond) {
    for (const Cycle& cycle : kCycles) {
        for (Long day = 1; day < cycle.length; ++day) {
            const double value = CalcCycle(day, 0, cycle.key);
            if (2 * day != cycle.length) {
                EXPECT_EQ(value > 0, 2 * day < cycle.length) << cycle.key << day;
                EXPECT_NE(value, 0) << cycle.key << day;
            }
        }
    }
}

#ifdef RC_GTEST_PROP

RC_GTEST_PROP(CalcCycle, StaysBetweenMinusAndPlusAHundred, (Long days, Integer offset)) {
    for (const Cycle& cycle : kCycles)
        RC_ASSERT(std::abs(CalcCycle(days, offset, cycle.key)) <= 100.0);
}

RC_GTEST_PROP(CalcCycle, DependsOnThePhaseOfTheDayCountAlone, (Integer offset)) {
    const Long days = *rc::gen::inRange(0, 3'000'000);
    for (const Cycle& cycle : kCycles) {
        RC_ASSERT(CalcCycle(days, offset, cycle.key) ==
                  CalcCycle(days % cycle.length, offset, cycle.key));
    }
}

#endif

TEST(CalcCycles, GivesTheThreeValuesOfADay) {
    const CycleValues values = CalcCycles(10000, 7);
    EXPECT_EQ(values.emotional, CalcCycle(10000, 7, "emot"));
    EXPECT_EQ(values.physical, CalcCycle(10000, 7, "phys"));
    EXPECT_EQ(values.intellectual, CalcCycle(10000, 7, "intel"));
}

TEST(Average, HasThePrintedValuesInEveryBit) {
    EXPECT_EQ(CalcCycles(0, 0).average(), 0.0);
    EXPECT_EQ(CalcCycles(10000, 0).average(), -0.2667120284627676);
    EXPECT_EQ(CalcCycles(10000, 7).average(), 71.39803636923915);
}

TEST(Average, IsTakenOfTheUnroundedValues) {
    const CycleValues values{.emotional = 0.4, .physical = 0.4, .intellectual = 0.4};
    EXPECT_NEAR(values.average(), 0.4, 1e-15);
}

TEST(Average, AddsInTheOrderEmotionalPhysicalIntellectual) {
    const CycleValues values{.emotional = 1e16, .physical = -1e16, .intellectual = 3};
    EXPECT_EQ(values.average(), 1.0);
}

TEST(CalcCompat, IsAHundredForTheSameDay) {
    for (const Cycle& cycle : kCycles)
        EXPECT_EQ(CalcCompat(0, cycle.index), 100.0) << cycle.key;
}

TEST(CalcCompat, IsZeroForAnUnknownIndex) {
    EXPECT_EQ(CalcCompat(100, 3), 0.0);
    EXPECT_EQ(CalcCompat(100, -1), 0.0);
}

TEST(CalcCompat, HasThePrintedValues) {
    struct Row {
        Long dayDifference;
        std::array<double, 3> percent;
    };
    for (const Row& row :
         {Row{0, {100, 100, 100}}, Row{14, {0, 21.7391, 15.1515}},
          Row{27, {92.8571, 65.2174, 63.6364}}, Row{100, {14.2857, 30.4348, 93.9394}}}) {
        for (const Cycle& cycle : kCycles) {
            EXPECT_NEAR(CalcCompat(row.dayDifference, cycle.index),
                        row.percent[static_cast<std::size_t>(cycle.index)], 0.00005)
                << row.dayDifference << cycle.key;
        }
    }
}

TEST(CalcCompat, StopsShortOfZeroWhereHalfACycleIsNoWholeDay) {
    EXPECT_NEAR(CalcCompat(11, 1), 4.3478260869565, 1e-12);
    EXPECT_NEAR(CalcCompat(12, 1), 4.3478260869565, 1e-12);
    EXPECT_NEAR(CalcCompat(16, 2), 3.0303030303030, 1e-12);
    EXPECT_NEAR(CalcCompat(17, 2), 3.0303030303030, 1e-12);
}

TEST(CalcCompat, IsZeroAtHalfTheEmotionalCycleAlone) {
    for (const Cycle& cycle : kCycles) {
        for (Long difference = 0; difference < cycle.length; ++difference) {
            const bool isOpposition = cycle.index == 0 && difference == 14;
            EXPECT_EQ(CalcCompat(difference, cycle.index) == 0.0, isOpposition)
                << cycle.key << difference;
        }
    }
}

TEST(CalcCompat, ClimbsInTheSecondHalfOfTheEmotionalCycleAsItsRemainderByFourteen) {
    for (Long difference = 14; difference < 28; ++difference)
        EXPECT_EQ(CalcCompat(difference, 0), ((difference % 14) / 14.0) * 100) << difference;
}

TEST(CalcCompats, GivesThePercentagesOfTheThreeCycles) {
    const CycleValues values = CalcCompats(27);
    EXPECT_EQ(values.emotional, CalcCompat(27, 0));
    EXPECT_EQ(values.physical, CalcCompat(27, 1));
    EXPECT_EQ(values.intellectual, CalcCompat(27, 2));
}

TEST(CalcCompat, FallsAndClimbsInAStraightLine) {
    for (const Cycle& cycle : kCycles) {
        const double step = 200.0 / cycle.length;
        for (Long difference = 0; 2 * difference < cycle.length; ++difference) {
            EXPECT_NEAR(CalcCompat(difference, cycle.index), 100 - difference * step, 1e-11);
            EXPECT_NEAR(CalcCompat(cycle.length - difference, cycle.index), 100 - difference * step,
                        1e-11);
        }
    }
}

TEST(CalcCompat, IsAboveAHundredForANegativeDifference) {
    for (const Cycle& cycle : kCycles)
        EXPECT_GT(CalcCompat(-1, cycle.index), 100.0) << cycle.key;
}

#ifdef RC_GTEST_PROP

RC_GTEST_PROP(CalcCompat, RepeatsWithTheCycle, ()) {
    const Long difference = *rc::gen::inRange(0, 3'000'000);
    for (const Cycle& cycle : kCycles) {
        const double percent = CalcCompat(difference, cycle.index);
        RC_ASSERT(percent >= 0.0 && percent <= 100.0);
        RC_ASSERT(percent == CalcCompat(difference + cycle.length, cycle.index));
    }
}

#endif
