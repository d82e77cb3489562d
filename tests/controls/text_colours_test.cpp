// The colours of texts on light and dark.
#include "controls/text_colours.h"

#include <gtest/gtest.h>

#include <QPalette>

#include "controls/cell_colours.h"
#include "support/contrast.h"

namespace {

constexpr Long kRed = 255;
constexpr Long kGreen = 0x00FF00;
constexpr Long kBlue = 0xFF0000;

QPalette paletteOf(const QColor& base, const QColor& ink) {
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, ink);
    return palette;
}

const QColor kInk(20, 30, 40);
const QColor kChalk(230, 240, 250);

QColor onLight(Long colour) {
    return textColour(colour, paletteOf(Qt::white, kInk));
}

QColor onDark(Long colour) {
    return textColour(colour, paletteOf(QColor(43, 43, 43), kChalk));
}

}  // namespace

TEST(TextColours, AreThePalettesOwnForBlack) {
    EXPECT_EQ(onLight(0), kInk);
    EXPECT_EQ(onDark(0), kChalk);
}

TEST(TextColours, AreTheVeryColoursOnLight) {
    EXPECT_EQ(onLight(kRed), QColor(Qt::red));
    EXPECT_EQ(onLight(kBlue), QColor(Qt::blue));
    EXPECT_EQ(onLight(kGreen), QColor(Qt::green));
}

TEST(TextColours, AreTheVeryColoursOnDarkWhereTheseCanBeRead) {
    EXPECT_EQ(onDark(kGreen), QColor(Qt::green));
    EXPECT_EQ(onDark(0x00FFFF), QColor(Qt::yellow));
}

TEST(TextColours, AreLighterWhereTheyAreTooDark) {
    const QColor blue = onDark(kBlue);
    EXPECT_GT(blue.lightness(), QColor(Qt::blue).lightness());
    EXPECT_NEAR(blue.hue(), 240, 15);
}

TEST(TextColours, AreThePalettesOwnWhereNoShadeCanBeRead) {
    EXPECT_EQ(textColour(kRed, paletteOf(QColor(200, 0, 0), QColor(210, 10, 0))),
              QColor(210, 10, 0));
}

TEST(TextColours, CanBeReadOnDark) {
    const QColor ground(43, 43, 43);
    for (const Long colour : {kRed, kBlue, Long{0x800000}, Long{0x400040}, Long{0x008000}})
        EXPECT_GE(contrast(onDark(colour), ground), kLeastContrast) << colour;
}

TEST(TextColours, KeepTheirTintWhereTheInkItselfIsHardlyRead) {
    const QColor ground(48, 140, 198);
    const QPalette palette = paletteOf(ground, Qt::white);
    ASSERT_LT(contrast(Qt::white, ground), kLeastContrast);
    for (const Long colour : {kRed, kBlue}) {
        EXPECT_GE(contrast(textColour(colour, palette), ground), 3) << colour;
        EXPECT_NE(textColour(colour, palette), QColor(Qt::white)) << colour;
    }
}

TEST(TextColours, GoByTheGroundAndTheInkThatAreNamed) {
    QPalette palette = paletteOf(Qt::white, kInk);
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::WindowText, kChalk);
    EXPECT_EQ(textColour(0, palette, QPalette::Window, QPalette::WindowText), kChalk);
    EXPECT_NE(textColour(kBlue, palette, QPalette::Window, QPalette::WindowText), onLight(kBlue));
}
