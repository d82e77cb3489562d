// The charts of the reports.
#include "reports/report_charts.h"

#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "reports/report_pieces.h"
#include "support/printing.h"
#include "support/recording_host.h"

using namespace modCycles;

namespace {

const QColor kWhite(255, 255, 255);
const QColor kGrey(125, 125, 125);

ChartBrush hatched(int hatch) {
    return {.fill = kWhite, .style = BrushStyle::Pattern, .hatch = hatch, .patternColour = kGrey};
}

}  // namespace

TEST(DailyChart, HasABarForEachValue) {
    const ChartTable table = dailyChart({1, -2, 3}, 4);
    EXPECT_EQ(table.rowLabels, QStringList(QStringLiteral("Cycle")));
    EXPECT_EQ(table.columns, (std::vector<std::vector<double>>{{1}, {-2}, {3}, {4}}));
}

TEST(DailyChart, FillsItsBarsInColours) {
    EXPECT_EQ(dailyBrush(1, kInColour), (ChartBrush{.fill = QColor(0, 0, 255)}));
    EXPECT_EQ(dailyBrush(2, kInColour), (ChartBrush{.fill = QColor(255, 0, 0)}));
    EXPECT_EQ(dailyBrush(3, kInColour), (ChartBrush{.fill = QColor(0, 255, 0)}));
    EXPECT_EQ(dailyBrush(4, kInColour), (ChartBrush{.fill = kGrey}));
}

TEST(DailyChart, HatchesItsBarsInBlackAndWhite) {
    EXPECT_EQ(dailyBrush(1, kBlackAndWhite), hatched(11));
    EXPECT_EQ(dailyBrush(2, kBlackAndWhite), hatched(12));
    EXPECT_EQ(dailyBrush(3, kBlackAndWhite), hatched(14));
    EXPECT_EQ(dailyBrush(4, kBlackAndWhite), hatched(10));
}

TEST(MonthlyChart, HasALineForEachCycleAndTheAverage) {
    const RecordingHost host;
    const Date birthdate = DateSerial(2000, 1, 20);
    const Date start = DateSerial(2000, 1, 10);  // before the birth
    const ChartTable table = monthlyChart(chartDays(birthdate, start));
    ASSERT_EQ(table.columns.size(), 4U);
    ASSERT_EQ(table.rowLabels.size(), 31);
    EXPECT_EQ(table.rowLabels.first(), u"10/01/2000");
    EXPECT_EQ(table.rowLabels.last(), u"09/02/2000");
    for (int day = 0; day < 31; ++day) {
        const auto row = static_cast<std::size_t>(day);
        const CycleValues values = CalcCycles(10, static_cast<Integer>(day));
        EXPECT_EQ(table.columns[0][row], values.emotional);
        EXPECT_EQ(table.columns[1][row], values.physical);
        EXPECT_EQ(table.columns[2][row], values.intellectual);
        EXPECT_EQ(table.columns[3][row], values.average());
    }
}

TEST(MonthlyChart, DrawsItsLinesInColoursOrStyles) {
    EXPECT_EQ(monthlyPen(1, kInColour), (ChartPen{QColor(0, 0, 255), PenPattern::Solid}));
    EXPECT_EQ(monthlyPen(2, kInColour), (ChartPen{QColor(255, 0, 0), PenPattern::Solid}));
    EXPECT_EQ(monthlyPen(3, kInColour), (ChartPen{QColor(0, 255, 0), PenPattern::Solid}));
    const QColor black(0, 0, 0);
    EXPECT_EQ(monthlyPen(1, kBlackAndWhite), (ChartPen{black, PenPattern::Dashed}));
    EXPECT_EQ(monthlyPen(2, kBlackAndWhite), (ChartPen{black, PenPattern::Ditted}));
    EXPECT_EQ(monthlyPen(3, kBlackAndWhite), (ChartPen{black, PenPattern::Dotted}));
}
