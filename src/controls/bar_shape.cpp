// The painting of the bar.
#include "controls/bar_shape.h"

#include <QPainter>

#include "controls/colour_mix.h"
#include "controls/text_colours.h"
#include "controls/twips.h"

namespace {

constexpr double kLine = 0.4;

QColor lineColour(const QPalette& palette) {
    return mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), kLine);
}

}  // namespace

BarShape::BarShape(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void BarShape::setLeft(double left) {
    left_ = left;
    update();
}

void BarShape::setWidth(double width) {
    width_ = width;
    update();
}

void BarShape::setColour(Long colour) {
    colour_ = colour;
    update();
}

// Both ends are rounded, not the length: so bars that end on one line end on one pixel.
void BarShape::paintEvent(QPaintEvent*) {
    const int origin = mapTo(window(), QPoint(0, 0)).x();
    const int from = toPixels(left_) - origin;
    const int to = toPixels(left_ + width_) - origin;
    const QColor colour =
        colour_ != 0 ? textColour(colour_, palette(), QPalette::Window, QPalette::WindowText)
                     : lineColour(palette());
    QPainter(this).fillRect(from, 0, to - from, height(), colour);
}
