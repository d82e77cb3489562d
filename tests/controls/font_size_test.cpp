// The size of a font in points.
#include "controls/font_size.h"

#include <gtest/gtest.h>

#include <QFont>

TEST(PointsOf, AreThoseThatWereSet) {
    QFont font;
    font.setPointSizeF(10.25);
    EXPECT_EQ(pointsOf(font), 10.25);
}

TEST(PointsOf, AreMeasuredWhereTheSizeIsSetInPixels) {
    QFont small;
    small.setPixelSize(12);
    QFont large = small;
    large.setPixelSize(24);
    EXPECT_GT(pointsOf(small), 0);
    EXPECT_DOUBLE_EQ(pointsOf(large), 2 * pointsOf(small));
}
