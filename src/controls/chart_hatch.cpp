// The lines of the hatches.
#include "controls/chart_hatch.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// In twips.
constexpr double kLineWidth = 15;
constexpr double kLevelStep = 75;
constexpr double kSlantedStep = 105;

// Where lines lie between two places, a step apart from the first on.
std::vector<double> placesOfLines(double first, double end, double step) {
    const int lines = std::max(0, static_cast<int>(std::ceil((end - first) / step)));
    std::vector<double> places;
    places.reserve(static_cast<std::size_t>(lines));
    for (int line = 0; line < lines; ++line)
        places.push_back(first + line * step);
    return places;
}

class HatchLines {
  public:
    HatchLines(QPainter& painter, const QRectF& bar, double pixelsPerTwip)
        : painter_(painter), bar_(bar), scale_(pixelsPerTwip) {}

    void level() {
        for (const double y : placesOfLines(bar_.top(), bar_.bottom(), kLevelStep * scale_))
            painter_.drawLine(QPointF(bar_.left(), y), QPointF(bar_.right(), y));
    }

    void standing() {
        for (const double x : placesOfLines(bar_.left(), bar_.right(), kLevelStep * scale_))
            painter_.drawLine(QPointF(x, bar_.top()), QPointF(x, bar_.bottom()));
    }

    // Lines as high as the bar that go as far to the right as they are high; the first and the last
    // of them only touch it.
    void falling() {
        const double reach = bar_.height() / 2;
        for (const double middle :
             placesOfLines(bar_.left() - reach, bar_.right() + reach, kSlantedStep * scale_))
            painter_.drawLine(QPointF(middle - reach, bar_.top()),
                              QPointF(middle + reach, bar_.bottom()));
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
    HatchLines lines(painter, bar, pixelsPerTwip);
    if (brush.hatch == Hatch::Level || brush.hatch == Hatch::Crossed)
        lines.level();
    if (brush.hatch == Hatch::Standing || brush.hatch == Hatch::Crossed)
        lines.standing();
    if (brush.hatch == Hatch::Falling)
        lines.falling();
    painter.restore();
}
