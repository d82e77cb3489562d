// The colours of a grid's cells.
#include "controls/cell_colours.h"

#include <gtest/gtest.h>

#include <QPalette>

namespace {

constexpr Long kWhite = 0xFFFFFF;
constexpr Long kGrey = 0xC0C0C0;

QColor backgroundOn(Long colour, const QColor& base, const QColor& ink) {
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, ink);
    return cellBackground(colour, palette);
}

}  // namespace

TEST(ColourOf, FindsRedInTheLowByte) {
    EXPECT_EQ(colourOf(0x0000FF), QColor(Qt::red));
    EXPECT_EQ(colourOf(0xFF0000), QColor(Qt::blue));
    EXPECT_EQ(colourOf(0x102030), QColor(0x30, 0x20, 0x10));
}

TEST(CellBackground, IsTheVeryColourOnALightPalette) {
    EXPECT_EQ(backgroundOn(kGrey, Qt::white, Qt::black), QColor(0xC0, 0xC0, 0xC0));
    EXPECT_EQ(backgroundOn(kWhite, QColor(250, 250, 240), Qt::black), QColor(Qt::white));
}

TEST(CellBackground, IsThePalettesOwnBaseForWhiteOnADarkOne) {
    EXPECT_EQ(backgroundOn(kWhite, QColor(30, 30, 32), Qt::white).rgb(), QColor(30, 30, 32).rgb());
}

TEST(CellBackground, StandsOutFromADarkPaletteByAsMuchAsTheGreyDoesFromWhite) {
    EXPECT_EQ(backgroundOn(kGrey, Qt::black, Qt::white).rgb(), QColor(0x3F, 0x3F, 0x3F).rgb());
    EXPECT_LT(backgroundOn(kGrey, QColor(46, 46, 50), QColor(220, 220, 220)).lightness(), 100);
}
