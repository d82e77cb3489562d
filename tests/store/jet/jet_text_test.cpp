// The texts of both formats.
#include "store/jet/jet_text.h"

#include <gtest/gtest.h>

#include "support/printing.h"

namespace {

QString text3(const char* hex) {
    const QByteArray bytes = QByteArray::fromHex(hex);
    return jetText(ByteView(bytes), kJet3);
}

QString text4(const char* hex) {
    const QByteArray bytes = QByteArray::fromHex(hex);
    return jetText(ByteView(bytes), kJet4);
}

}  // namespace

TEST(JetText, OfTheOlderFormatIsInTheCodePage) {
    EXPECT_EQ(text3("416ee980"), QString::fromUtf8("Ané€"));
    EXPECT_EQ(text3(""), QString());
    EXPECT_EQ(text3("fffe41"), QString::fromUtf8("ÿþA"));
}

TEST(JetText, OfTheNewerFormatHasTwoBytesForACharacter) {
    EXPECT_EQ(text4("4100e900ac200c01"), QString::fromUtf8("Aé€Č"));
    EXPECT_EQ(text4("00010000"), QString(QStringLiteral("Ā") + QChar(0)));
    EXPECT_EQ(text4(""), QString());
    EXPECT_THROW(text4("410042"), JetDamage);
    EXPECT_THROW(text4("41"), JetDamage);
}

TEST(JetText, MayBeCompressed) {
    EXPECT_EQ(text4("fffe41e942"), QString::fromUtf8("AéB"));
    EXPECT_EQ(text4("fffe"), QString());
    EXPECT_EQ(text4("fffe80"), QString(QChar(0x80)));
}

TEST(JetText, ChangesWithEveryZero) {
    EXPECT_EQ(text4("fffe41000c0161010042"), QString::fromUtf8("AČšB"));
    EXPECT_EQ(text4("fffe000c010041"), QString::fromUtf8("ČA"));
    EXPECT_EQ(text4("fffe000041"), QStringLiteral("A"));
}

TEST(JetText, MayHaveAZeroAsTheSecondByteOfACharacter) {
    EXPECT_EQ(text4("fffe00b10320002e00b203"), QString::fromUtf8("α .β"));
}

TEST(JetText, EndsWithNoHalfCharacter) {
    EXPECT_THROW(text4("fffe000c"), JetDamage);
    EXPECT_THROW(text4("fffe4100b1032e"), JetDamage);
}

TEST(JetText, OfANameIsNeverCompressed) {
    const QByteArray bytes = QByteArray::fromHex("fffe4100");
    EXPECT_EQ(jetName(ByteView(bytes), kJet4), QString(QChar(0xFEFF)) + u'A');
    EXPECT_EQ(jetName(ByteView(bytes), kJet3), QString::fromUtf8("ÿþA") + QChar(0));
}
