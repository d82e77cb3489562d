// What a test program says of the properties that it was built without.
#include <gtest/gtest.h>

TEST(Properties, AreLeftOutWhereThereIsNoRapidCheck) {
    GTEST_SKIP() << "There is no RapidCheck for this system";
}
