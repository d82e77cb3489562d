// The arithmetic of the chart's places.
#include "controls/chart_layout.h"

#include <algorithm>
#include <numbers>

#include "runtime/numbers.h"

namespace {

// The values that an axis shows, in per cent.
struct Axis {
    int lowest;
    int highest;
    int gridStep;
};

constexpr Axis kLineAxis{-100, 100, 50};
constexpr Axis kBarAxis{0, 100, 25};

constexpr int kRowsPerLabel = 5;
constexpr double kTurn = 45;  // degrees
constexpr double kTurnSine = std::numbers::sqrt2 / 2;

// In twips.
constexpr double kValueInset = 45;  // keeps a line at 100 per cent within the plot area
constexpr double kGap = 75;         // between the axis and its labels, and around the legend
constexpr double kTickRoom = 60;    // between the axis and the row labels
constexpr double kSampleLength = 270;
constexpr double kLegendSpacing = 210;

// The share that bars take, all of a row of its band and each of its place among them.
constexpr double kBarGroupShare = 0.8;
constexpr double kBarShare = 0.75;

const Axis& axisOf(const ChartContent& content) {
    return content.type == ChartType::Bars && !content.hasNegativeBars ? kBarAxis : kLineAxis;
}

int rowsOf(const ChartContent& content) {
    return static_cast<int>(content.table.rowLabels.size());
}

double bandWidth(const ChartContent& content) {
    return content.plotArea.width() / rowsOf(content);
}

std::vector<ChartGridLine> gridOf(const ChartContent& content, const TextMeasure& measure) {
    const auto& [lowest, highest, gridStep] = axisOf(content);
    std::vector<ChartGridLine> grid;
    for (int value = highest; value >= lowest; value -= gridStep) {
        const double y = valueHeight(content, value);
        grid.push_back({y, value == 0, percentText(value),
                        QRectF(0, y - measure.lineHeight / 2, content.plotArea.left() - kGap,
                               measure.lineHeight)});
    }
    return grid;
}

std::vector<QPointF> curveOf(const ChartContent& content, const std::vector<double>& column) {
    std::vector<QPointF> points;
    points.reserve(column.size());
    for (int row = 0; const double value : column)
        points.emplace_back(rowCentre(content, row++), valueHeight(content, value));
    return points;
}

// The bar of a value, from the line of 0 per cent on.
ChartBar barOf(const ChartContent& content, int row, int series) {
    const double group = bandWidth(content) * kBarGroupShare;
    const double place = group / static_cast<double>(content.table.columns.size());
    const double left =
        rowCentre(content, row) - group / 2 + place * (series + (1 - kBarShare) / 2);
    const double value =
        content.table.columns[static_cast<std::size_t>(series)][static_cast<std::size_t>(row)];
    return {series, QRectF(QPointF(left, valueHeight(content, value)),
                           QPointF(left + place * kBarShare, valueHeight(content, 0)))
                        .normalized()};
}

std::vector<ChartBar> barsOf(const ChartContent& content) {
    std::vector<ChartBar> bars;
    for (int row = 0; row < rowsOf(content); ++row) {
        for (int series = 0; series < static_cast<int>(content.table.columns.size()); ++series)
            bars.push_back(barOf(content, row, series));
    }
    return bars;
}

double entryWidth(const ChartContent& content, const TextMeasure& measure, int series) {
    return kSampleLength + kGap +
           measure.width(content.series[static_cast<std::size_t>(series)].legendText);
}

ChartLegendEntry legendEntry(const ChartContent& content, const TextMeasure& measure, int series,
                             QPointF topLeft) {
    const double middle = topLeft.y() + measure.lineHeight / 2;
    const double textLeft = topLeft.x() + kSampleLength + kGap;
    return {series,
            QLineF(topLeft.x(), middle, topLeft.x() + kSampleLength, middle),
            {textLeft, topLeft.y(), topLeft.x() + entryWidth(content, measure, series) - textLeft,
             measure.lineHeight}};
}

// The series of each line of a legend below the plot, as many to a line as fit.
std::vector<std::vector<int>> legendLines(const ChartContent& content, const TextMeasure& measure) {
    std::vector<std::vector<int>> lines;
    double right = 0;
    for (int series = 0; series < static_cast<int>(content.table.columns.size()); ++series) {
        const double width = entryWidth(content, measure, series) + kLegendSpacing;
        if (lines.empty() || right + width > content.size.width()) {
            lines.emplace_back();
            right = kGap;
        }
        lines.back().push_back(series);
        right += width;
    }
    return lines;
}

// Entries beside each other, around the middle of the plot area as far as the chart is wide enough.
void layOutLegendLine(const ChartContent& content, const TextMeasure& measure,
                      const std::vector<int>& line, double top,
                      std::vector<ChartLegendEntry>& legend) {
    double width = -kLegendSpacing;
    for (const int series : line)
        width += entryWidth(content, measure, series) + kLegendSpacing;
    const double furthestLeft = content.size.width() - kGap - width;
    double left = std::max(kGap, std::min(content.plotArea.center().x() - width / 2, furthestLeft));
    for (const int series : line) {
        legend.push_back(legendEntry(content, measure, series, {left, top}));
        left += entryWidth(content, measure, series) + kLegendSpacing;
    }
}

std::vector<ChartLegendEntry> legendBelow(const ChartContent& content, const TextMeasure& measure) {
    const std::vector<std::vector<int>> lines = legendLines(content, measure);
    const double height = static_cast<double>(lines.size()) * measure.lineHeight;
    double top = content.size.height() - kGap - height;
    std::vector<ChartLegendEntry> legend;
    for (const std::vector<int>& line : lines) {
        layOutLegendLine(content, measure, line, top, legend);
        top += measure.lineHeight;
    }
    return legend;
}

std::vector<ChartLegendEntry> legendBeside(const ChartContent& content,
                                           const TextMeasure& measure) {
    const int entries = static_cast<int>(content.table.columns.size());
    const double step = measure.lineHeight + kGap;
    const double top = content.plotArea.center().y() - (entries * step - kGap) / 2;
    std::vector<ChartLegendEntry> legend;
    legend.reserve(content.table.columns.size());
    for (int series = 0; series < entries; ++series)
        legend.push_back(
            legendEntry(content, measure, series,
                        {content.plotArea.right() + kLegendSpacing, top + series * step}));
    return legend;
}

std::vector<ChartLegendEntry> legendOf(const ChartContent& content, const TextMeasure& measure) {
    if (!content.showLegend)
        return {};
    return content.legendLocation == LegendLocation::Right ? legendBeside(content, measure)
                                                           : legendBelow(content, measure);
}

// The height between the plot area and what comes below it.
double roomForRowLabels(const ChartContent& content, const ChartLayout& layout) {
    const bool legendIsBelow =
        !layout.legend.empty() && content.legendLocation == LegendLocation::Bottom;
    const double floor =
        legendIsBelow ? layout.legend.front().textBox.top() : content.size.height();
    return floor - kGap - content.plotArea.bottom() - kTickRoom;
}

double widestRowLabel(const ChartContent& content, const TextMeasure& measure) {
    double widest = 0;
    for (int row = 0; row < rowsOf(content); row += kRowsPerLabel)
        widest = std::max(widest, measure.width(content.table.rowLabels[row]));
    return widest;
}

// The label below the axis, with its middle at the row, but within the chart.
ChartRowLabel levelLabel(const ChartContent& content, const TextMeasure& measure, int row) {
    const QString& text = content.table.rowLabels[row];
    const double width = measure.width(text);
    const double middle =
        std::max(std::min(rowCentre(content, row), content.size.width() - width / 2), width / 2);
    return {row,
            text,
            {middle, content.plotArea.bottom() + kTickRoom},
            {-width / 2, 0, width, measure.lineHeight}};
}

// The label turned so that the middle of its end is at the row.
ChartRowLabel turnedLabel(const ChartContent& content, const TextMeasure& measure, int row) {
    const QString& text = content.table.rowLabels[row];
    const double width = measure.width(text);
    const double corner = measure.lineHeight / 2 * kTurnSine;
    return {row,
            text,
            {rowCentre(content, row), content.plotArea.bottom() + kTickRoom + corner},
            {-width, -measure.lineHeight / 2, width, measure.lineHeight}};
}

// Whether labels of this width fit when they are turned: beside each other, above what comes below
// them, and the first, which reaches to the left of its row, within the chart.
bool fitTurned(const ChartContent& content, const TextMeasure& measure, double width, double room) {
    const double corner = measure.lineHeight / 2 * kTurnSine;
    const double reach = width * kTurnSine + corner;
    return reach <= rowCentre(content, 0) && corner + reach <= room &&
           kRowsPerLabel * bandWidth(content) * kTurnSine >= measure.lineHeight;
}

void layOutRowLabels(const ChartContent& content, const TextMeasure& measure, ChartLayout& layout) {
    const double widest = widestRowLabel(content, measure);
    int step = kRowsPerLabel;
    const auto fitLevel = [&] { return widest + kGap <= step * bandWidth(content); };
    const bool turned =
        !fitLevel() && fitTurned(content, measure, widest, roomForRowLabels(content, layout));
    while (!turned && !fitLevel() && step < rowsOf(content))
        step += kRowsPerLabel;

    layout.rowLabelAngle = turned ? kTurn : 0;
    for (int row = 0; row < rowsOf(content); row += step)
        layout.rowLabels.push_back(turned ? turnedLabel(content, measure, row)
                                          : levelLabel(content, measure, row));
}

void layOutCurves(const ChartContent& content, ChartLayout& layout) {
    for (int row = 0; row < rowsOf(content); row += kRowsPerLabel)
        layout.ticks.push_back(rowCentre(content, row));
    for (const std::vector<double>& column : content.table.columns)
        layout.curves.push_back(curveOf(content, column));
}

}  // namespace

double rowCentre(const ChartContent& content, int row) {
    return content.plotArea.left() + (row + 0.5) * bandWidth(content);
}

double valueHeight(const ChartContent& content, double percent) {
    const Axis& axis = axisOf(content);
    const double middle = (axis.lowest + axis.highest) / 2.0;
    const double half = content.plotArea.height() / 2 - kValueInset;
    return content.plotArea.center().y() - (percent - middle) / (axis.highest - middle) * half;
}

ChartLayout layOutChart(const ChartContent& content, const TextMeasure& measure) {
    ChartLayout layout{};
    layout.titleBox =
        QRectF(QPointF(kGap, kGap), QPointF(content.size.width() - kGap, content.plotArea.top()));
    layout.grid = gridOf(content, measure);
    layout.legend = legendOf(content, measure);
    layOutRowLabels(content, measure, layout);
    if (content.type == ChartType::Bars)
        layout.bars = barsOf(content);
    else
        layOutCurves(content, layout);
    if (content.markedRow && *content.markedRow < rowsOf(content)) {
        const double left = content.plotArea.left() + *content.markedRow * bandWidth(content);
        layout.markedBand =
            QRectF(left, content.plotArea.top(), bandWidth(content), content.plotArea.height());
    }
    return layout;
}
