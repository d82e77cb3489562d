// The colours of the cycles.
#include "controls/cycle_colours.h"

#include <gtest/gtest.h>

#include <QPalette>

#include "support/contrast.h"

namespace {

QColor colourOn(const QColor& base, int cycle) {
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    return cycleColour(static_cast<CycleColour>(cycle), palette);
}

}  // namespace

TEST(CycleColours, AreLegibleOnLightAndDarkBackgrounds) {
    for (const QColor& base : {QColor(255, 255, 255), QColor(246, 246, 246), QColor(46, 46, 50),
                               QColor(30, 30, 32), QColor(0, 0, 0)}) {
        for (int cycle = 0; cycle < kCycleColours; ++cycle)
            EXPECT_GE(contrast(colourOn(base, cycle), base), kLeastContrast)
                << qPrintable(base.name()) << ' ' << cycle;
    }
}

TEST(CycleColours, AreBlueRedGreenAndPurple) {
    for (const QColor& base : {QColor(Qt::white), QColor(Qt::black)}) {
        EXPECT_NEAR(colourOn(base, 0).hue(), 220, 15);
        EXPECT_NEAR((colourOn(base, 1).hue() + 180) % 360, 180, 15);
        EXPECT_NEAR(colourOn(base, 2).hue(), 145, 15);
        EXPECT_NEAR(colourOn(base, 3).hue(), 273, 15);
    }
}
