// The chart control: its properties, and the mouse.
#include "controls/chart.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>
#include <utility>

#include "controls/chart_painter.h"
#include "controls/paper.h"
#include "controls/twips.h"
#include "runtime/errors.h"

Chart::Chart(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    for (int i = 0; i < kMostSeries; ++i)
        content_.series.push_back({.colour = static_cast<CycleColour>(i % kCycleColours)});
}

void Chart::setFixedTwips(QSizeF size, const QRectF& plotArea) {
    plotMargins_.reset();
    content_.size = size;
    content_.plotArea = plotArea;
    setFixedSize(toPixels(qRound(size.width())), toPixels(qRound(size.height())));
    update();
}

void Chart::setPlotMargins(const QMarginsF& margins) {
    plotMargins_ = margins;
    fillSize();
}

void Chart::fillSize() {
    if (!plotMargins_)
        return;
    content_.size = QSizeF(toTwips(width()), toTwips(height()));
    content_.plotArea = QRectF(QPointF(), content_.size).marginsRemoved(*plotMargins_);
    update();
}

void Chart::setChartType(ChartType type) {
    content_.type = type;
    update();
}

void Chart::setChartData(ChartTable table) {
    if (table.columns.size() > kMostSeries)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    for (const std::vector<double>& column : table.columns)
        Q_ASSERT(static_cast<qsizetype>(column.size()) == table.rowLabels.size());
    content_.table = std::move(table);
    update();
}

double Chart::Data(int row, int column) const {
    const auto& [labels, columns] = content_.table;
    if (row < 1 || row > labels.size() || column < 1 ||
        static_cast<std::size_t>(column) > columns.size())
        throw RuntimeError(ErrorNumber::InvalidPropertyArrayIndex);
    return columns[static_cast<std::size_t>(column - 1)][static_cast<std::size_t>(row - 1)];
}

void Chart::setShowLegend(bool show) {
    content_.showLegend = show;
    update();
}

void Chart::setLegendLocation(LegendLocation location) {
    content_.legendLocation = location;
    update();
}

void Chart::setLegendFont(const QString& family, int points) {
    content_.fontFamily = family;
    content_.fontPoints = points;
    update();
}

ChartSeries& Chart::seriesAt(int series) {
    if (series < 1 || series > kMostSeries)
        throw RuntimeError(ErrorNumber::InvalidPropertyArrayIndex);
    return content_.series[static_cast<std::size_t>(series - 1)];
}

void Chart::setLegendText(int series, const QString& text) {
    seriesAt(series).legendText = text;
    update();
}

void Chart::setSeriesColour(int series, CycleColour colour) {
    seriesAt(series).colour = colour;
    update();
}

void Chart::setSeriesPattern(int series, PenPattern pattern) {
    seriesAt(series).pattern = pattern;
    update();
}

void Chart::setNegativeBars(bool show) {
    content_.hasNegativeBars = show;
    update();
}

void Chart::setPenColour(int series, const QColor& colour) {
    seriesAt(series).penColour = colour;
    update();
}

void Chart::setBarBrush(int series, const ChartBrush& brush) {
    seriesAt(series).brush = brush;
    update();
}

void Chart::setEdgeColour(int series, const QColor& colour) {
    seriesAt(series).edgeColour = colour;
    update();
}

void Chart::setTitle(const QString& title) {
    content_.title = title;
    update();
}

void Chart::setToolTipText(const QString& text) {
    toolTipText_ = text;
    setToolTip(Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text);
}

void Chart::setMarkedRow(int row) {
    content_.markedRow = row > 0 ? std::optional(row - 1) : std::nullopt;
    update();
}

QPixmap Chart::picture(double enlargement) const {
    QPixmap picture((QSizeF(size()) * enlargement * devicePixelRatioF()).toSize());
    picture.setDevicePixelRatio(devicePixelRatioF());
    const ChartColours colours = chartColours(palette());
    picture.fill(colours.background);
    QPainter painter(&picture);
    paintChart(painter, content_, colours, enlargement / kTwipsPerPixel);
    return picture;
}

QImage Chart::paperPicture() const {
    constexpr double kDotsPerInch = 300;
    constexpr double kDotsPerTwip = kDotsPerInch / kTwipsPerInch;
    constexpr int kDotsPerMetre = qRound(kDotsPerTwip * kTwipsPerMetre);
    QImage picture((content_.size * kDotsPerTwip).toSize(), QImage::Format_RGB32);
    picture.setDotsPerMeterX(kDotsPerMetre);
    picture.setDotsPerMeterY(kDotsPerMetre);
    QPainter painter(&picture);
    paintChart(painter, content_, chartColours(paperPalette()), kDotsPerTwip);
    return picture;
}

MousePointerShape Chart::MousePointer() const {
    return cursor().shape() == Qt::WhatsThisCursor ? MousePointerShape::ArrowQuestion
                                                   : MousePointerShape::Default;
}

void Chart::setMousePointer(MousePointerShape shape) {
    if (shape == MousePointerShape::ArrowQuestion)
        setCursor(Qt::WhatsThisCursor);
    else
        unsetCursor();
}

void Chart::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintChart(painter, content_, chartColours(palette()), 1.0 / kTwipsPerPixel);
}

void Chart::resizeEvent(QResizeEvent*) {
    fillSize();
}

void Chart::mouseMoveEvent(QMouseEvent* event) {
    Q_EMIT MouseMove(toTwips(event->position().x()), toTwips(event->position().y()));
    if (QToolTip::isVisible())
        QToolTip::showText(event->globalPosition().toPoint(), toolTip(), this);
}
