// The bar that hangs in its window by twips.
#include "controls/bar_shape.h"

#include <gtest/gtest.h>

#include <QImage>

#include "controls/text_colours.h"

namespace {

constexpr int kBarLeft = 30;  // pixels from the window's edge
constexpr int kBarRow = 15;
constexpr Long kRed = 0x0000FF;

class BarShapeTest : public testing::Test {
  protected:
    BarShapeTest() {
        window_.resize(200, 40);
        bar_.setGeometry(kBarLeft, 10, 100, 20);
        bar_.setColour(kRed);
    }

    // The first pixel of the window that has the bar's colour, and the one behind the last.
    std::pair<int, int> painted() {
        const QColor colour =
            textColour(kRed, window_.palette(), QPalette::Window, QPalette::WindowText);
        const QImage image = window_.grab().toImage();
        int from = -1;
        int to = -1;
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, kBarRow) != colour)
                continue;
            from = from < 0 ? x : from;
            to = x + 1;
        }
        return {from, to};
    }

    void place(double left, double width) {
        bar_.setLeft(left);
        bar_.setWidth(width);
    }

    QWidget window_;
    BarShape& bar_ = *new BarShape(&window_);
};

using Pixels = std::pair<int, int>;

}  // namespace

TEST_F(BarShapeTest, CountsItsTwipsFromTheEdgeOfTheWindow) {
    place(600, 300);
    EXPECT_EQ(painted(), Pixels(40, 60));
    bar_.move(kBarLeft - 10, 10);
    EXPECT_EQ(painted(), Pixels(40, 60));
}

TEST_F(BarShapeTest, RoundsItsEndsAndNotItsLength) {
    place(607, 300);
    EXPECT_EQ(painted(), Pixels(40, 60));
    place(607, 301);
    EXPECT_EQ(painted(), Pixels(40, 61));
    EXPECT_EQ(bar_.Left(), 607);
    EXPECT_EQ(bar_.Width(), 301);
}

TEST_F(BarShapeTest, IsNotToBeSeenWithoutAWidth) {
    place(600, 0);
    EXPECT_EQ(painted(), Pixels(-1, -1));
}

TEST_F(BarShapeTest, EndsWhereTheWidgetEnds) {
    place(0, 3000);
    EXPECT_EQ(painted(), Pixels(kBarLeft, kBarLeft + 100));
}

TEST_F(BarShapeTest, IsALineBetweenGroundAndInkWithoutAColour) {
    BarShape line(&window_);
    line.setGeometry(bar_.geometry());
    line.setLeft(600);
    line.setWidth(15);
    const QImage image = window_.grab().toImage();
    const int lightness = image.pixelColor(40, kBarRow).lightness();
    EXPECT_LT(lightness, window_.palette().color(QPalette::Window).lightness());
    EXPECT_GT(lightness, window_.palette().color(QPalette::WindowText).lightness());
    EXPECT_EQ(image.pixelColor(41, kBarRow), image.pixelColor(39, kBarRow));
}
