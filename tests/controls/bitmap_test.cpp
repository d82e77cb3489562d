// Pictures as bitmap files.
#include "controls/bitmap.h"

#include <gtest/gtest.h>

TEST(Bitmap, KeepsThePictureAndItsDotsToTheMetre) {
    QImage picture(3, 2, QImage::Format_RGB32);
    picture.fill(Qt::white);
    picture.setPixelColor(2, 1, Qt::red);
    picture.setDotsPerMeterX(11811);
    picture.setDotsPerMeterY(5000);
    const QByteArray file = bitmapOf(picture);
    EXPECT_TRUE(file.startsWith("BM"));
    const QImage again = pictureOf(file);
    EXPECT_EQ(again.size(), picture.size());
    EXPECT_EQ(again.pixelColor(2, 1), QColor(Qt::red));
    EXPECT_EQ(again.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(again.dotsPerMeterX(), 11811);
    EXPECT_EQ(again.dotsPerMeterY(), 5000);
}

TEST(Bitmap, IsNoPictureWhereTheBytesAreNone) {
    EXPECT_TRUE(pictureOf("no picture").isNull());
    EXPECT_TRUE(pictureOf({}).isNull());
}
