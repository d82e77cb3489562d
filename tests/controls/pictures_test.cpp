// The pictures by key.
#include "controls/pictures.h"

#include <gtest/gtest.h>

namespace {

const QString kPisces = QStringLiteral("pisces");

QRgb accentOf(const QPixmap& picture) {
    return picture.toImage().pixel(picture.rect().center());
}

}  // namespace

TEST(Pictures, ComeInTheSizeOfARowAndOfACard) {
    EXPECT_EQ(smallPicture(kPisces).deviceIndependentSize(), QSizeF(24, 24));
    EXPECT_EQ(largePicture(kPisces).deviceIndependentSize(), QSizeF(48, 48));
}

TEST(Pictures, AreTheSameInBothSizes) {
    EXPECT_EQ(accentOf(smallPicture(kPisces)), accentOf(largePicture(kPisces)));
    EXPECT_NE(accentOf(smallPicture(kPisces)), accentOf(smallPicture(QStringLiteral("taurus"))));
}
