// The label with a colour of its own.
#include "controls/coloured_label.h"

#include <gtest/gtest.h>

#include "controls/text_colours.h"

namespace {

constexpr Long kNavy = 0x800000;

QColor paintedColour(const ColouredLabel& label) {
    return label.palette().color(QPalette::WindowText);
}

// Its boxes are darker than its windows.
QPalette darkPalette() {
    QPalette palette(QColor(46, 46, 50));
    palette.setColor(QPalette::Base, Qt::black);
    return palette;
}

}  // namespace

TEST(ColouredLabel, HasThePalettesColourAtFirstAndForNone) {
    ColouredLabel label;
    const QColor before = paintedColour(label);
    EXPECT_EQ(label.ForeColor(), 0);
    label.setForeColor(kNavy);
    EXPECT_NE(paintedColour(label), before);
    label.setForeColor(0);
    EXPECT_EQ(paintedColour(label), before);
}

TEST(ColouredLabel, HasItsVeryColourOnALightDesktop) {
    ColouredLabel label;
    label.setForeColor(kNavy);
    EXPECT_EQ(label.ForeColor(), kNavy);
    EXPECT_EQ(paintedColour(label), QColor(0, 0, 0x80));
}

TEST(ColouredLabel, GoesWithThePaletteOfItsWindow) {
    QWidget window;
    auto* label = new ColouredLabel(&window);
    label->setForeColor(kNavy);
    window.setPalette(darkPalette());
    EXPECT_EQ(paintedColour(*label),
              textColour(kNavy, darkPalette(), QPalette::Window, QPalette::WindowText));
    EXPECT_NE(paintedColour(*label), textColour(kNavy, darkPalette()));
    EXPECT_NE(paintedColour(*label), QColor(0, 0, 0x80));
}

TEST(ColouredLabel, IsBoldOrNotAndKeepsTheRestOfItsFont) {
    ColouredLabel label;
    const double points = label.font().pointSizeF();
    EXPECT_FALSE(label.FontBold());
    label.setFontBold(true);
    EXPECT_TRUE(label.FontBold());
    EXPECT_EQ(label.font().pointSizeF(), points);
    label.setFontBold(false);
    EXPECT_FALSE(label.FontBold());
}
