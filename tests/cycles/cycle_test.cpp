// The cycle arithmetic.
#include "cycles/cycle.h"

#include <gtest/gtest.h>

using namespace modCycles;

TEST(CalcCycle, IsZeroOnTheDayOfBirth) {
    for (const auto key : {kEmotionalKey, kPhysicalKey, kIntellectualKey})
        EXPECT_EQ(CalcCycle(0, 0, key), 0.0) << key;
}
