// The pens, texts and curves of the chart.
#include "controls/chart_painter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <algorithm>
#include <cmath>

#include "controls/chart_hatch.h"
#include "controls/chart_layout.h"
#include "controls/colour_mix.h"
#include "controls/twips.h"

namespace {

// In twips.
constexpr double kHairline = 15;
constexpr double kCurveWidth = 27;
constexpr double kBarSampleWidth = 120;
constexpr double kTickLength = 45;
constexpr double kMarkerRadius = 45;

// Strokes and gaps of a pattern, in widths of the pen.
QList<qreal> dashes(PenPattern pattern) {
    switch (pattern) {
        case PenPattern::Solid:
            return {};
        case PenPattern::Dashed:
            return {5, 3};
        case PenPattern::Dotted:
            return {0.1, 2.4};
        case PenPattern::Ditted:
            return {2, 2.6};
    }
    Q_UNREACHABLE();
}

// One picture of a chart: turns twips into the painter's pixels.
class ChartSketch {
  public:
    ChartSketch(QPainter& painter, const ChartContent& content, const ChartColours& colours,
                double pixelsPerTwip);

    void paint();

  private:
    double pixels(double twips) const { return twips * scale_; }
    QPointF pixels(QPointF twips) const { return twips * scale_; }
    QRectF pixels(const QRectF& twips) const {
        return {twips.topLeft() * scale_, twips.size() * scale_};
    }

    // The middle of the pixel in which a straight line is sharp.
    double sharp(double twips) const { return std::floor(pixels(twips)) + 0.5; }

    QFont font() const;
    TextMeasure measure() const;
    QPen hairline(const QColor& colour) const;
    const QColor& colourOf(std::size_t series) const;
    QPen penOf(std::size_t series) const;

    void paintMark();
    void paintGrid();
    void paintRowAxis();
    void paintBars();
    void paintBar(const QRectF& box, std::size_t series);
    void paintCurves();
    void paintMarkers();
    void paintLegend();
    void paintSample(const QLineF& sample, std::size_t series);
    void paintTitle();

    QPainter& painter_;
    const ChartContent& content_;
    const ChartColours& colours_;
    double scale_;
    ChartLayout layout_;
};

ChartSketch::ChartSketch(QPainter& painter, const ChartContent& content,
                         const ChartColours& colours, double pixelsPerTwip)
    : painter_(painter),
      content_(content),
      colours_(colours),
      scale_(pixelsPerTwip),
      layout_(layOutChart(content, measure())) {}

void ChartSketch::paint() {
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setFont(font());
    painter_.fillRect(pixels(QRectF(QPointF(), content_.size)), colours_.background);
    paintMark();
    paintGrid();
    paintRowAxis();
    paintBars();
    paintCurves();
    paintMarkers();
    paintLegend();
    paintTitle();
}

QFont ChartSketch::font() const {
    QFont font;
    if (!content_.fontFamily.isEmpty())
        font.setFamily(content_.fontFamily);
    font.setPixelSize(std::max(1, qRound(pixels(content_.fontPoints * kTwipsPerPoint))));
    return font;
}

TextMeasure ChartSketch::measure() const {
    const QFontMetricsF metrics(font());
    return {metrics.height() / scale_, [metrics, scale = scale_](const QString& text) {
                return metrics.horizontalAdvance(text) / scale;
            }};
}

QPen ChartSketch::hairline(const QColor& colour) const {
    return QPen(colour, pixels(kHairline), Qt::SolidLine, Qt::FlatCap);
}

const QColor& ChartSketch::colourOf(std::size_t series) const {
    const ChartSeries& drawn = content_.series[series];
    return drawn.penColour ? *drawn.penColour
                           : colours_.cycles[static_cast<std::size_t>(drawn.colour)];
}

QPen ChartSketch::penOf(std::size_t series) const {
    QPen pen(colourOf(series), pixels(kCurveWidth), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (const QList<qreal> pattern = dashes(content_.series[series].pattern); !pattern.isEmpty())
        pen.setDashPattern(pattern);
    return pen;
}

void ChartSketch::paintMark() {
    if (layout_.markedBand)
        painter_.fillRect(pixels(*layout_.markedBand), colours_.mark);
}

void ChartSketch::paintGrid() {
    const double left = pixels(content_.plotArea.left());
    const double right = pixels(content_.plotArea.right());
    for (const ChartGridLine& line : layout_.grid) {
        painter_.setPen(hairline(line.isZero ? colours_.zeroLine : colours_.grid));
        painter_.drawLine(QPointF(left, sharp(line.y)), QPointF(right, sharp(line.y)));
        painter_.setPen(colours_.text);
        painter_.drawText(pixels(line.labelBox), Qt::AlignRight | Qt::AlignVCenter, line.label);
    }
}

void ChartSketch::paintRowAxis() {
    const double bottom = pixels(content_.plotArea.bottom());
    painter_.setPen(hairline(colours_.zeroLine));
    for (const double x : layout_.ticks)
        painter_.drawLine(QPointF(sharp(x), bottom),
                          QPointF(sharp(x), bottom + pixels(kTickLength)));
    painter_.setPen(colours_.text);
    for (const ChartRowLabel& label : layout_.rowLabels) {
        painter_.save();
        painter_.translate(pixels(label.anchor));
        painter_.rotate(-layout_.rowLabelAngle);
        painter_.drawText(pixels(label.box), Qt::AlignCenter | Qt::TextDontClip, label.text);
        painter_.restore();
    }
}

// A smooth line through all points: each piece leaves its point in the direction from the one
// before it to the one after.
QPainterPath smoothLine(const std::vector<QPointF>& points) {
    constexpr double kTension = 1.0 / 6;
    QPainterPath line;
    if (points.empty())
        return line;
    line.moveTo(points.front());
    for (std::size_t i = 1; i < points.size(); ++i) {
        const QPointF& before = points[i > 1 ? i - 2 : 0];
        const QPointF& from = points[i - 1];
        const QPointF& to = points[i];
        const QPointF& after = points[i + 1 < points.size() ? i + 1 : i];
        line.cubicTo(from + (to - before) * kTension, to - (after - from) * kTension, to);
    }
    return line;
}

void ChartSketch::paintBars() {
    painter_.save();
    painter_.setClipRect(pixels(content_.plotArea));
    for (const ChartBar& bar : layout_.bars)
        paintBar(pixels(bar.box), static_cast<std::size_t>(bar.series));
    painter_.restore();
}

void ChartSketch::paintBar(const QRectF& box, std::size_t series) {
    const std::optional<ChartBrush>& brush = content_.series[series].brush;
    painter_.fillRect(box, brush ? brush->fill : colourOf(series));
    if (brush && brush->style == BrushStyle::Pattern)
        paintHatch(painter_, box, *brush, scale_);
    if (const std::optional<QColor>& edge = content_.series[series].edgeColour) {
        painter_.setPen(
            QPen(*edge, pixels(kHairline), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter_.setBrush(Qt::NoBrush);
        painter_.drawRect(box);
    }
}

void ChartSketch::paintCurves() {
    painter_.save();
    painter_.setClipRect(pixels(content_.plotArea));
    painter_.setBrush(Qt::NoBrush);
    for (std::size_t series = layout_.curves.size(); series-- > 0;) {
        std::vector<QPointF> points;
        for (const QPointF& point : layout_.curves[series])
            points.push_back(pixels(point));
        painter_.setPen(penOf(series));
        painter_.drawPath(smoothLine(points));
    }
    painter_.restore();
}

// Dots where the curves cross the marked row.
void ChartSketch::paintMarkers() {
    if (!layout_.markedBand)
        return;
    const double radius = pixels(kMarkerRadius);
    painter_.setPen(QPen(colours_.background, pixels(kHairline)));
    for (std::size_t series = layout_.curves.size(); series-- > 0;) {
        painter_.setBrush(colourOf(series));
        const auto row = static_cast<std::size_t>(*content_.markedRow);
        painter_.drawEllipse(pixels(layout_.curves[series][row]), radius, radius);
    }
}

void ChartSketch::paintLegend() {
    for (const ChartLegendEntry& entry : layout_.legend) {
        const auto series = static_cast<std::size_t>(entry.series);
        paintSample(entry.sample, series);
        painter_.setPen(colours_.text);
        painter_.drawText(pixels(entry.textBox),
                          Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip,
                          content_.series[series].legendText);
    }
}

void ChartSketch::paintSample(const QLineF& sample, std::size_t series) {
    if (content_.type == ChartType::Bars) {
        const QPointF half(0, kBarSampleWidth / 2);
        paintBar(pixels(QRectF(sample.p1() - half, sample.p2() + half)), series);
    } else {
        painter_.setPen(penOf(series));
        painter_.drawLine(pixels(sample.p1()), pixels(sample.p2()));
    }
}

void ChartSketch::paintTitle() {
    const QRectF box = pixels(layout_.titleBox);
    painter_.setPen(colours_.text);
    painter_.drawText(
        box, Qt::AlignHCenter | Qt::AlignTop,
        QFontMetricsF(font()).elidedText(content_.title, Qt::ElideRight, box.width()));
}

}  // namespace

ChartColours chartColours(const QPalette& palette) {
    constexpr double kGridShare = 0.12;
    constexpr double kZeroLineShare = 0.45;
    constexpr double kTextShare = 0.75;
    constexpr double kMarkShare = 0.07;
    const QColor base = palette.color(QPalette::Base);
    const QColor ink = palette.color(QPalette::Text);
    ChartColours colours{.background = base,
                         .text = mixed(base, ink, kTextShare),
                         .grid = mixed(base, ink, kGridShare),
                         .zeroLine = mixed(base, ink, kZeroLineShare),
                         .mark = mixed(base, ink, kMarkShare),
                         .cycles = {}};
    for (int i = 0; i < kCycleColours; ++i)
        colours.cycles[static_cast<std::size_t>(i)] =
            cycleColour(static_cast<CycleColour>(i), palette);
    return colours;
}

void paintChart(QPainter& painter, const ChartContent& content, const ChartColours& colours,
                double pixelsPerTwip) {
    ChartSketch(painter, content, colours, pixelsPerTwip).paint();
}
