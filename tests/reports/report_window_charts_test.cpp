// The charts and values in the report window.
#include "controls/chart.h"
#include "cycles/calendar.h"
#include "reports/report_charts.h"
#include "reports/report_colour.h"
#include "reports/report_driver.h"
#include "runtime/numbers.h"
#include "shell/chart_table.h"

using namespace modCycles;

namespace {

class ReportCharts : public ReportWindowTest {
  protected:
    ReportCharts() { open(); }

    const ChartContent& chart(const char* name) { return of<Chart>(name).content(); }

    const Date birthdate_ = DateSerial(1972, 10, 20);
    const Date date_ = DateSerial(2000, 3, 14);
    const CycleValues values_ = CalcCycles(DayCount(birthdate_, date_), 0);
};

const ChartSeries& seriesOf(const ChartContent& chart, int series) {
    return chart.series[static_cast<std::size_t>(series - 1)];
}

void expectBars(const ChartContent& chart, Integer colour) {
    for (int series = 1; series <= kReportSeries; ++series) {
        EXPECT_EQ(seriesOf(chart, series).brush, dailyBrush(series, colour)) << series;
        EXPECT_EQ(seriesOf(chart, series).edgeColour, QColor(Qt::black)) << series;
    }
}

void expectLines(const ChartContent& chart, Integer colour) {
    for (int series = 1; series < kReportSeries; ++series) {
        const ChartSeries& line = seriesOf(chart, series);
        EXPECT_EQ(line.penColour, monthlyPen(series, colour).colour) << series;
        EXPECT_EQ(line.pattern, monthlyPen(series, colour).pattern) << series;
    }
    EXPECT_EQ(seriesOf(chart, kReportSeries).penColour, QColor(Qt::black));
    EXPECT_EQ(seriesOf(chart, kReportSeries).pattern, PenPattern::Solid);
}

// Labels of some letters have room at the left of the plot area and below it.
void expectRoomForLabels(const ChartContent& chart, QSizeF size) {
    EXPECT_EQ(chart.size, size);
    EXPECT_TRUE(QRectF(QPointF(), size).marginsRemoved({500, 100, 0, 600}).contains(chart.plotArea))
        << chart.plotArea.left() << " " << chart.plotArea.bottom();
}

}  // namespace

TEST_F(ReportCharts, TellTheValuesOfTheDay) {
    choose("mnuReportDaily");
    for (const auto& [cycle, value] : {std::pair("Emotional: \t", values_.emotional),
                                       {"Physical: \t", values_.physical},
                                       {"Intellectual: \t", values_.intellectual},
                                       {"Average: \t", values_.average()}})
        EXPECT_TRUE(
            text().contains(QLatin1String(cycle) + percentText(value) + QStringLiteral("\r\n")))
            << cycle << value;
}

TEST_F(ReportCharts, ShowTheDayInBarsUpAndDownWithTheirNames) {
    choose("mnuReportDaily");
    const ChartContent& day = chart("chtDaily");
    EXPECT_EQ(day.type, ChartType::Bars);
    EXPECT_TRUE(day.hasNegativeBars);
    EXPECT_EQ(day.table, dailyChart(values_, values_.average()));
    EXPECT_TRUE(day.showLegend);
    for (int series = 1; const char* name : {"Emotional", "Physical", "Intellectual", "Average"})
        EXPECT_EQ(seriesOf(day, series++).legendText, QLatin1String(name));
    expectRoomForLabels(day, {5415, 4215});
}

TEST_F(ReportCharts, ShowTheDayInColoursOrHatches) {
    choose("mnuReportDaily");
    expectBars(chart("chtDaily"), kInColour);
    click(of<QWidget>("chkColour_0"));
    expectBars(chart("chtDaily"), kBlackAndWhite);
}

TEST_F(ReportCharts, ShowTheMonthInLines) {
    choose("mnuReportMonthly");
    const ChartContent& month = chart("chtMonthly");
    EXPECT_EQ(month.type, ChartType::Lines);
    EXPECT_EQ(month.table, chartTable(chartDays(birthdate_, date_)));
    expectRoomForLabels(month, {6855, 4095});
}

TEST_F(ReportCharts, ShowTheMonthInColoursOrStylesAndTheAverageInASolidBlackLine) {
    choose("mnuReportMonthly");
    expectLines(chart("chtMonthly"), kInColour);
    click(of<QWidget>("chkColour_1"));
    expectLines(chart("chtMonthly"), kBlackAndWhite);
    click(of<QWidget>("chkColour_1"));
    expectLines(chart("chtMonthly"), kInColour);
}
