// The hatches of bars.
#include "controls/chart_hatch.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

namespace {

constexpr int kSize = 60;

// A bar of sixty pixels square with a hatch, at a scale in pixels to the twip.
QImage hatched(Hatch hatch, double scale = 1.0 / 15) {
    QImage picture(kSize + 20, kSize + 20, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    paintHatch(painter, QRectF(10, 10, kSize, kSize),
               {.fill = Qt::white,
                .style = BrushStyle::Pattern,
                .hatch = hatch,
                .patternColour = Qt::black},
               scale);
    return picture;
}

bool isInked(const QImage& picture, int x, int y) {
    return picture.pixelColor(x, y).lightness() < 200;
}

// How many lines one crosses on a way along the picture.
int crossed(const QImage& picture, QPoint from, QPoint step) {
    int lines = 0;
    bool wasInked = false;
    for (QPoint at = from; picture.rect().contains(at); at += step) {
        const bool isLine = isInked(picture, at.x(), at.y());
        lines += isLine && !wasInked ? 1 : 0;
        wasInked = isLine;
    }
    return lines;
}

const QPoint kAcross(1, 0);
const QPoint kDown(0, 1);

}  // namespace

TEST(ChartHatch, LiesLevelOrStandsOrCrosses) {
    const QPoint left(12, 32);
    const QPoint top(32, 12);
    EXPECT_GT(crossed(hatched(Hatch::Level), top, kDown), 8);
    EXPECT_LE(crossed(hatched(Hatch::Level), left, kAcross), 1);
    EXPECT_GT(crossed(hatched(Hatch::Standing), left, kAcross), 8);
    EXPECT_LE(crossed(hatched(Hatch::Standing), top, kDown), 1);
    EXPECT_GT(crossed(hatched(Hatch::Crossed), left + QPoint(0, 1), kAcross), 8);
    EXPECT_GT(crossed(hatched(Hatch::Crossed), top + QPoint(1, 0), kDown), 8);
}

TEST(ChartHatch, FallsToTheRight) {
    const QPoint falling(1, 1);
    const QPoint rising(1, -1);
    EXPECT_LE(crossed(hatched(Hatch::Falling), {12, 12}, falling), 2);
    EXPECT_GT(crossed(hatched(Hatch::Falling), {12, 67}, rising), 6);
}

TEST(ChartHatch, StaysWithinTheBar) {
    for (const Hatch hatch : {Hatch::Level, Hatch::Standing, Hatch::Falling, Hatch::Crossed}) {
        const QImage picture = hatched(hatch);
        for (int at = 0; at < picture.width(); ++at) {
            EXPECT_FALSE(isInked(picture, at, 8)) << static_cast<int>(hatch);
            EXPECT_FALSE(isInked(picture, 8, at)) << static_cast<int>(hatch);
            EXPECT_FALSE(isInked(picture, at, 71)) << static_cast<int>(hatch);
            EXPECT_FALSE(isInked(picture, 71, at)) << static_cast<int>(hatch);
        }
    }
}

TEST(ChartHatch, IsAsWideApartAndAsThickAtEveryScale) {
    const auto expectHalf = [](Hatch hatch, QPoint from, QPoint step) {
        const int lines = crossed(hatched(hatch), from, step);
        EXPECT_GT(lines, 5) << static_cast<int>(hatch);
        EXPECT_NEAR(crossed(hatched(hatch, 2.0 / 15), from, step), lines / 2, 1)
            << static_cast<int>(hatch);
    };
    expectHalf(Hatch::Level, {32, 12}, kDown);
    expectHalf(Hatch::Standing, {12, 32}, kAcross);
    expectHalf(Hatch::Falling, {12, 32}, kAcross);
    const QImage thick = hatched(Hatch::Standing, 4.0 / 15);
    EXPECT_TRUE(isInked(thick, 29, 32));
    EXPECT_TRUE(isInked(thick, 30, 32));
    EXPECT_TRUE(isInked(thick, 31, 32));
}

TEST(ChartHatch, ReachesTheEndsOfTheBar) {
    constexpr double kScale = 1.1 / 15;  // a line every 5.5 pixels
    int last = 0;
    for (int y = 10; y < 10 + kSize; ++y)
        last = isInked(hatched(Hatch::Level, kScale), 32, y) ? y : last;
    EXPECT_GE(last, 10 + kSize - 6);
}

TEST(ChartHatch, HasItsOwnColourAndKeepsToWhatMayBePaintedOn) {
    QImage picture(kSize, kSize, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setClipRect(0, 0, kSize, 30);
    const QPen pen = painter.pen();
    paintHatch(painter, QRectF(0, 0, kSize, kSize),
               {.fill = Qt::white,
                .style = BrushStyle::Pattern,
                .hatch = Hatch::Standing,
                .patternColour = QColor(125, 125, 125)},
               4.0 / 15);
    EXPECT_EQ(painter.pen(), pen);
    EXPECT_EQ(picture.pixelColor(20, 20), QColor(125, 125, 125));
    EXPECT_EQ(picture.pixelColor(20, 40), QColor(Qt::white));
}
