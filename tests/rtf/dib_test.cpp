// Bitmaps without their file header.
#include "rtf/dib.h"

#include <gtest/gtest.h>

#include <QtEndian>

#include "support/printing.h"

namespace {

// A bitmap with a header of 40 bytes: bits a pixel, compression, and colours used.
QByteArray bitmap(quint16 bits, quint32 compression = 0, quint32 colours = 0) {
    QByteArray dib(200, '\0');
    qToLittleEndian<quint32>(40, dib.data());
    qToLittleEndian(bits, dib.data() + 14);
    qToLittleEndian(compression, dib.data() + 16);
    qToLittleEndian(colours, dib.data() + 32);
    return dib;
}

quint32 placeOfPixels(const QByteArray& dib) {
    return qFromLittleEndian<quint32>(bmpFile(dib).constData() + 10);
}

}  // namespace

TEST(Dib, IsAFileWithoutItsHeader) {
    const QByteArray dib = bitmap(24);
    const QByteArray file = bmpFile(dib);
    EXPECT_TRUE(isBmpFile(file));
    EXPECT_EQ(qFromLittleEndian<quint32>(file.constData() + 2), 214U);
    EXPECT_EQ(dibOf(file), dib);
}

TEST(Dib, HasItsPixelsBehindItsHeaderAndPalette) {
    EXPECT_EQ(placeOfPixels(bitmap(24)), 54U);
    EXPECT_EQ(placeOfPixels(bitmap(1)), 54U + 2 * 4);
    EXPECT_EQ(placeOfPixels(bitmap(8)), 54U + 256 * 4);
    EXPECT_EQ(placeOfPixels(bitmap(8, 0, 10)), 54U + 10 * 4);
    EXPECT_EQ(placeOfPixels(bitmap(32, 3)), 54U + 12);
    EXPECT_EQ(placeOfPixels(bitmap(8, 0, 0xFFFFFFFF)), 54U + 256 * 4);
}

TEST(Dib, HasItsMasksWithinAHeaderLongEnough) {
    QByteArray dib = bitmap(32, 3);
    dib[0] = 108;
    EXPECT_EQ(placeOfPixels(dib), 14U + 108);
}

TEST(Dib, MayHaveTheOldHeader) {
    QByteArray dib(40, '\0');
    dib[0] = 12;
    dib[10] = 4;
    EXPECT_EQ(placeOfPixels(dib), 14U + 12 + 16 * 3);
    dib[10] = 24;
    EXPECT_EQ(placeOfPixels(dib), 14U + 12);
}

TEST(Dib, IsNoneWithAHeaderThatMakesNoSense) {
    EXPECT_EQ(bmpFile({}), QByteArray());
    EXPECT_EQ(bmpFile(QByteArray(11, '\x0C')), QByteArray());
    EXPECT_EQ(bmpFile(QByteArray(200, '\0')), QByteArray());
    EXPECT_EQ(bmpFile(QByteArray(200, '\xFF')), QByteArray());
    EXPECT_EQ(bmpFile(bitmap(24).first(39)), QByteArray());
}
