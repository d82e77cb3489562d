// The label in the colour of a cycle.
#include "controls/cycle_label.h"

#include <gtest/gtest.h>

namespace {

QColor paintedColour(const CycleLabel& label) {
    return label.palette().color(QPalette::WindowText);
}

QPalette darkPalette() {
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::black);
    return palette;
}

}  // namespace

TEST(CycleLabel, IsInTheColourOfItsCycle) {
    CycleLabel label;
    label.setCycle(CycleColour::Physical);
    EXPECT_EQ(paintedColour(label), cycleColour(CycleColour::Physical, QPalette()));
    label.setCycle(CycleColour::Average);
    EXPECT_EQ(paintedColour(label), cycleColour(CycleColour::Average, QPalette()));
}

TEST(CycleLabel, GoesWithThePaletteOfItsWindow) {
    QWidget window;
    auto* label = new CycleLabel(&window);
    label->setCycle(CycleColour::Emotional);
    window.setPalette(darkPalette());
    EXPECT_EQ(paintedColour(*label), cycleColour(CycleColour::Emotional, darkPalette()));
    EXPECT_NE(paintedColour(*label), cycleColour(CycleColour::Emotional, QPalette(Qt::white)));
}

TEST(CycleLabel, IsBoldOrNotAndKeepsTheRestOfItsFont) {
    CycleLabel label;
    const double points = label.font().pointSizeF();
    EXPECT_FALSE(label.FontBold());
    label.setFontBold(true);
    EXPECT_TRUE(label.FontBold());
    EXPECT_EQ(label.font().pointSizeF(), points);
    label.setFontBold(false);
    EXPECT_FALSE(label.FontBold());
}
