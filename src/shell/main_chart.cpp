// The drawing of the main window's chart.
#include "shell/main_chart.h"

#include <QLabel>
#include <span>

#include "controls/chart.h"
#include "controls/month_view.h"
#include "runtime/host.h"
#include "shell/chart_days.h"
#include "shell/chart_table.h"
#include "shell/main_controls.h"

namespace modCycles {

namespace {

// The columns of the chart, and its series, in their order.
enum Series { kEmotional = 1, kPhysical, kIntellectual, kAverage };

void draw(std::span<const ChartDay> days) {
    Chart& chart = *mainControls().chtMain;
    chart.setChartData(chartTable(days));
    SetupChartSeries(chart);
}

}  // namespace

void RedrawMainChart(Date birthdate, Date startdate) {
    draw(chartDays(birthdate, startdate));
}

void ShowBlankChart() {
    const Date today = host().today();
    mainControls().dtpSelDate->setValue(today);
    mainControls().lblTitle->setText(blankChartTitle());
    draw(blankChartDays(today));
}

void SetupChartSeries(Chart& chart) {
    chart.setShowLegend(true);
    chart.setLegendLocation(LegendLocation::Bottom);
    chart.setLegendFont(QStringLiteral("Arial"), 8);
    chart.setLegendText(kEmotional, QStringLiteral("Emot."));
    chart.setLegendText(kPhysical, QStringLiteral("Phys."));
    chart.setLegendText(kIntellectual, QStringLiteral("Intel."));
    chart.setLegendText(kAverage, QStringLiteral("Avg."));
}

QString ChartPointText(Integer index) {
    const Chart& chart = *mainControls().chtMain;
    const int row = index + 1;
    return pointText(mainControls().dtpSelDate->Value() + index,
                     {.emotional = chart.Data(row, kEmotional),
                      .physical = chart.Data(row, kPhysical),
                      .intellectual = chart.Data(row, kIntellectual)});
}

}  // namespace modCycles
