// The tables and styles of the charts.
#include "reports/report_charts.h"

#include <array>

#include "reports/report_pieces.h"
#include "shell/chart_table.h"

namespace {

const std::array<QColor, kReportSeries> kFills{QColor(0, 0, 255), QColor(255, 0, 0),
                                               QColor(0, 255, 0), QColor(125, 125, 125)};
constexpr std::array<int, kReportSeries> kHatches{11, 12, 14, 10};
constexpr std::array kPatterns{PenPattern::Dashed, PenPattern::Ditted, PenPattern::Dotted};

std::size_t indexOf(int series) {
    return static_cast<std::size_t>(series - 1);
}

}  // namespace

ChartTable dailyChart(const modCycles::CycleValues& values, double average) {
    return {.rowLabels = {QStringLiteral("Cycle")},
            .columns = {{values.emotional}, {values.physical}, {values.intellectual}, {average}}};
}

ChartTable monthlyChart(std::span<const modCycles::ChartDay> days) {
    ChartTable table{.rowLabels = modCycles::dateLabels(days), .columns = {}};
    modCycles::addCycleColumns(table, days);
    modCycles::addAverageColumn(table, days);
    return table;
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
    if (colour == kInColour)
        return {kFills[indexOf(series)], PenPattern::Solid};
    return {QColor(0, 0, 0), kPatterns[indexOf(series)]};
}
