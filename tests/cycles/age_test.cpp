// The age of a person.
#include "cycles/age.h"

#include <gtest/gtest.h>

using namespace modCycles;

namespace {

constexpr Date kLeapDay = DateSerial(1972, 2, 29);

}  // namespace

TEST(AgeOn, GrowsOnTheBirthdayItself) {
    const Date born = DateSerial(1972, 10, 20);
    EXPECT_EQ(ageOn(DateSerial(2000, 10, 19), born), 27);
    EXPECT_EQ(ageOn(DateSerial(2000, 10, 20), born), 28);
    EXPECT_EQ(ageOn(DateSerial(2000, 12, 31), born), 28);
    EXPECT_EQ(ageOn(DateSerial(2001, 1, 1), born), 28);
}

TEST(AgeOn, OfALeapDayGrowsOnTheFirstOfMarchInACommonYear) {
    EXPECT_EQ(ageOn(DateSerial(2001, 2, 28), kLeapDay), 28);
    EXPECT_EQ(ageOn(DateSerial(2001, 3, 1), kLeapDay), 29);
}

TEST(AgeOn, OfALeapDayGrowsOnThatDayInALeapYear) {
    EXPECT_EQ(ageOn(DateSerial(2000, 2, 28), kLeapDay), 27);
    EXPECT_EQ(ageOn(DateSerial(2000, 2, 29), kLeapDay), 28);
}

TEST(AgeOn, IsNoughtOnTheDayOfBirthAndNegativeBefore) {
    const Date born = DateSerial(2000, 10, 20);
    EXPECT_EQ(ageOn(born, born), 0);
    EXPECT_EQ(ageOn(DateSerial(2000, 10, 19), born), -1);
    EXPECT_EQ(ageOn(DateSerial(1999, 10, 20), born), -1);
    EXPECT_EQ(ageOn(DateSerial(1998, 1, 1), born), -3);
}

TEST(AgeOn, HasNoEyeForTheTimeOfDay) {
    const Date bornAtNoon = DateSerial(1972, 10, 20) + 0.5;
    EXPECT_EQ(ageOn(DateSerial(2000, 10, 20), bornAtNoon), 28);
    EXPECT_EQ(ageOn(DateSerial(2000, 10, 19) + 0.9, bornAtNoon), 27);
}
