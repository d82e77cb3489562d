// The colours of the cycles.
#include "controls/cycle_colours.h"

#include <gtest/gtest.h>

#include <QPalette>
#include <cmath>

namespace {

constexpr double kLeastContrast = 4.5;

double linear(float part) {
    return part <= 0.04045F ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

// As the guidelines for accessible web content define it: 1 to 21.
double contrast(const QColor& a, const QColor& b) {
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

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
