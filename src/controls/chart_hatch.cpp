// The lines of the hatches.
#include "controls/chart_hatch.h"

#include <QPainter>

namespace {

// In twips.
constexpr double kLineWidth = 15;
constexpr double kLevelStep = 75;
constexpr double kSlantedStep = 105;

class Hatch {
  public:
    Hatch(QPainter& painter, const QRectF& bar, double pixelsPerTwip)
        : painter_(painter), bar_(bar), scale_(pixelsPerTwip) {}

    void level() {
        for (double y = bar_.bottom(); y > bar_.top(); y -= kLevelStep * scale_)
            painter_.drawLine(QPointF(bar_.left(), y), QPointF(bar_.right(), y));
    }

    void standing() {
        for (double x = bar_.left(); x < bar_.right(); x += kLevelStep * scale_)
            painter_.drawLine(QPointF(x, bar_.top()), QPointF(x, bar_.bottom()));
    }

    // Lines across the height of the bar, each from the place where it enters to the right or to
    // the left of it.
    void slanted(double direction) {
        const double height = bar_.height();
        for (double x = bar_.left() - height; x < bar_.right() + height;
             x += kSlantedStep * scale_) {
            const double slant = direction * height / 2;
            const double middle = x + height / 2;
            painter_.drawLine(QPointF(middle - slant, bar_.top()),
                              QPointF(middle + slant, bar_.bottom()));
        }
    }

  private:
    QPainter& painter_;
    QRectF bar_;
    double scale_;
};

}  // namespace

void paintHatch(QPainter& painter, const QRectF& bar, const ChartBrush& brush,
                double pixelsPerTwip) {
    painter.save();
    painter.setClipRect(bar, Qt::IntersectClip);
    painter.setPen(QPen(brush.patternColour, kLineWidth * pixelsPerTwip));
    Hatch hatch(painter, bar, pixelsPerTwip);
    if (brush.hatch == 10 || brush.hatch == 14)
        hatch.level();
    if (brush.hatch == 11 || brush.hatch == 14)
        hatch.standing();
    if (brush.hatch == 12)
        hatch.slanted(1);
    if (brush.hatch == 13)
        hatch.slanted(-1);
    painter.restore();
}
