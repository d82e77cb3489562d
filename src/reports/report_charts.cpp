// The tables and styles of the charts.
#include "reports/report_charts.h"

#include <array>

#include "reports/report_colour.h"

namespace {

const std::array<QColor, kReportSeries> kFills{QColor(0, 0, 255), QColor(255, 0, 0),
                                               QColor(0, 255, 0), QColor(125, 125, 125)};
constexpr std::array kHatches{Hatch::Standing, Hatch::Falling, Hatch::Crossed, Hatch::Level};
constexpr std::array kNames{"Emotional", "Physical", "Intellectual", "Average"};
constexpr std::array kPatterns{PenPattern::Dashed, PenPattern::Ditted, PenPattern::Dotted};

std::size_t indexOf(int series) {
    Q_ASSERT(series >= 1 && series <= kReportSeries);
    return static_cast<std::size_t>(series - 1);
}

}  // namespace

QString reportSeriesName(int series) {
    return QLatin1String(kNames[indexOf(series)]);
}

ChartTable dailyChart(const modCycles::CycleValues& values, double average) {
    return {.rowLabels = {QStringLiteral("Cycle")},
            .columns = {{values.emotional}, {values.physical}, {values.intellectual}, {average}}};
}

ChartBrush dailyBrush(int series, Integer colour) {
    if (colour == kInColour)
        return {.fill = kFills[indexOf(series)]};
    return {.fill = QColor(255, 255, 255),
            .style = BrushStyle::Pattern,
            .hatch = kHatches[indexOf(series)],
            .patternColour = QColor(125, 125, 125)};
}

ChartPen monthlyPen(int series, Integer colour) {
    Q_ASSERT(series <= kReportCycles);
    if (colour == kInColour)
        return {kFills[indexOf(series)], PenPattern::Solid};
    return {QColor(0, 0, 0), kPatterns[indexOf(series)]};
}
