// The charts of the reports.
#include "reports/report_charts.h"

#include <gtest/gtest.h>

#include "reports/report_colour.h"
#include "support/printing.h"

namespace {

const QColor kWhite(255, 255, 255);
const QColor kGrey(125, 125, 125);

ChartBrush hatched(Hatch hatch) {
    return {.fill = kWhite, .style = BrushStyle::Pattern, .hatch = hatch, .patternColour = kGrey};
}

}  // namespace

TEST(DailyChart, HasABarForEachValue) {
    const ChartTable table = dailyChart({1, -2, 3}, 4);
    EXPECT_EQ(table.rowLabels, QStringList(QStringLiteral("Cycle")));
    EXPECT_EQ(table.columns, (std::vector<std::vector<double>>{{1}, {-2}, {3}, {4}}));
}

TEST(DailyChart, CallsItsBarsByTheirNames) {
    EXPECT_EQ(reportSeriesName(1), u"Emotional");
    EXPECT_EQ(reportSeriesName(2), u"Physical");
    EXPECT_EQ(reportSeriesName(3), u"Intellectual");
    EXPECT_EQ(reportSeriesName(4), u"Average");
}

TEST(DailyChart, FillsItsBarsInColours) {
    EXPECT_EQ(dailyBrush(1, kInColour), (ChartBrush{.fill = QColor(0, 0, 255)}));
    EXPECT_EQ(dailyBrush(2, kInColour), (ChartBrush{.fill = QColor(255, 0, 0)}));
    EXPECT_EQ(dailyBrush(3, kInColour), (ChartBrush{.fill = QColor(0, 255, 0)}));
    EXPECT_EQ(dailyBrush(4, kInColour), (ChartBrush{.fill = kGrey}));
}

TEST(DailyChart, HatchesItsBarsInBlackAndWhite) {
    EXPECT_EQ(dailyBrush(1, kBlackAndWhite), hatched(Hatch::Standing));
    EXPECT_EQ(dailyBrush(2, kBlackAndWhite), hatched(Hatch::Falling));
    EXPECT_EQ(dailyBrush(3, kBlackAndWhite), hatched(Hatch::Crossed));
    EXPECT_EQ(dailyBrush(4, kBlackAndWhite), hatched(Hatch::Level));
}

TEST(MonthlyChart, DrawsItsLinesInColoursOrStyles) {
    EXPECT_EQ(monthlyPen(1, kInColour), (ChartPen{QColor(0, 0, 255), PenPattern::Solid}));
    EXPECT_EQ(monthlyPen(2, kInColour), (ChartPen{QColor(255, 0, 0), PenPattern::Solid}));
    EXPECT_EQ(monthlyPen(3, kInColour), (ChartPen{QColor(0, 255, 0), PenPattern::Solid}));
    const QColor black(0, 0, 0);
    EXPECT_EQ(monthlyPen(1, kBlackAndWhite), (ChartPen{black, PenPattern::Dashed}));
    EXPECT_EQ(monthlyPen(2, kBlackAndWhite), (ChartPen{black, PenPattern::Ditted}));
    EXPECT_EQ(monthlyPen(3, kBlackAndWhite), (ChartPen{black, PenPattern::Dotted}));
    EXPECT_EQ(kAveragePen, (ChartPen{black, PenPattern::Solid}));
}
