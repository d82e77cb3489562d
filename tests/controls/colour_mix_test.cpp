// A colour between two.
#include "controls/colour_mix.h"

#include <gtest/gtest.h>

TEST(Mixed, GivesEachColourItsShare) {
    EXPECT_EQ(mixed(Qt::black, Qt::white, 0).rgb(), QColor(Qt::black).rgb());
    EXPECT_EQ(mixed(Qt::black, Qt::white, 1).rgb(), QColor(Qt::white).rgb());
    EXPECT_EQ(mixed(QColor(0, 100, 200), QColor(100, 0, 0), 0.5).rgb(), QColor(50, 50, 100).rgb());
}
