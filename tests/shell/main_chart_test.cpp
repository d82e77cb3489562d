// The chart of the main window.
#include "shell/main_chart.h"

#include <QLabel>

#include "controls/chart.h"
#include "controls/list_box.h"
#include "controls/month_view.h"
#include "controls/status_bar.h"
#include "cycles/calendar.h"
#include "cycles/cycle.h"
#include "shell/chart_pointer.h"
#include "shell/frmMain.h"
#include "support/main_window.h"

using namespace modCycles;

namespace {

class MainChart : public MainWindowTest {};

TEST_F(MainChart, IsBlankAtTheStart) {
    load();
    EXPECT_EQ(control<QLabel>("lblTitle").text(), QStringLiteral("Biorhythm for <unspecified>"));
    auto& chart = control<Chart>("chtMain");
    EXPECT_EQ(chart.content().table.rowLabels.size(), 31);
    for (Integer row = 0; row < 31; ++row)
        EXPECT_EQ(chart.Data(row + 1, 1), CalcCycle(0, row, kEmotionalKey));
}

TEST_F(MainChart, HasFourSeriesWithALegendBelow) {
    load();
    const ChartContent& content = control<Chart>("chtMain").content();
    QStringList legend;
    for (std::size_t i = 0; i < 4; ++i)
        legend += content.series[i].legendText;
    EXPECT_EQ(legend, QStringList({QStringLiteral("Emot."), QStringLiteral("Phys."),
                                   QStringLiteral("Intel."), QStringLiteral("Avg.")}));
    EXPECT_EQ(content.table.columns.size(), 4U);
    EXPECT_TRUE(content.showLegend);
    EXPECT_EQ(content.legendLocation, LegendLocation::Bottom);
    EXPECT_EQ(content.fontFamily, QStringLiteral("Arial"));
    EXPECT_EQ(content.fontPoints, 8);
}

TEST_F(MainChart, RedrawsNothingBesideItself) {
    loadAndChoose(QStringLiteral("Smith, Anna"));
    const QString panel = control<StatusBar>("sbMain").panelText();
    RedrawMainChart(DateSerial(1972, 10, 27), DateSerial(2000, 3, 21));
    auto& chart = control<Chart>("chtMain");
    EXPECT_EQ(chart.Data(1, 1), CalcCycle(10007, 0, kEmotionalKey));
    EXPECT_EQ(chart.Data(31, 4), CalcCycles(10007, 30).average());
    EXPECT_EQ(chart.content().table.rowLabels.front(), QStringLiteral("21/03/2000"));
    EXPECT_EQ(control<QLabel>("lblTitle").text(), QStringLiteral("Biorhythm for Anna Smith"));
    EXPECT_EQ(control<MonthView>("dtpSelDate").Value(), DateSerial(2000, 3, 14));
    EXPECT_EQ(control<StatusBar>("sbMain").panelText(), panel);
}

TEST_F(MainChart, LeavesTheEarliestDateWhenItGoesBlank) {
    loadAndChoose(QStringLiteral("Smith, Anna"));
    control<MonthView>("dtpSelDate").setValue(DateSerial(2010, 1, 1));
    ShowBlankChart();
    EXPECT_EQ(control<MonthView>("dtpSelDate").MinDate(), DateSerial(1972, 10, 20));
    EXPECT_EQ(control<MonthView>("dtpSelDate").Value(), DateSerial(2000, 3, 14));
}

TEST_F(MainChart, ReadsTodayAnewWheneverItGoesBlank) {
    load();
    host_.setNow(DateSerial(2000, 3, 15) + 0.001);
    ShowBlankChart();
    EXPECT_EQ(control<MonthView>("dtpSelDate").Value(), DateSerial(2000, 3, 15));
    EXPECT_EQ(control<Chart>("chtMain").content().table.rowLabels.front(),
              QStringLiteral("15/03/2000"));
}

TEST_F(MainChart, TellsAPointByItsDrawnValues) {
    load();
    RedrawMainChart(DateSerial(1972, 10, 27), DateSerial(2000, 3, 14));
    EXPECT_EQ(ChartPointText(7),
              QStringLiteral("21/03/2000: Emot.: 62%, Phys.: 52%, Intel.: 100%"));
}

TEST_F(MainChart, TellsZeroOfAValueJustBelow) {
    load();
    ASSERT_LT(control<Chart>("chtMain").Data(29, 1), 0);
    EXPECT_TRUE(ChartPointText(28).startsWith(QStringLiteral("11/04/2000: Emot.: 0%, ")));
}

TEST_F(MainChart, TellsTheDateFromTheCalendarsPresentValue) {
    load();
    const QString blankValues = QStringLiteral(": Emot.: 0%, Phys.: 0%, Intel.: 0%");
    EXPECT_EQ(ChartPointText(0), QStringLiteral("14/03/2000") + blankValues);
    control<MonthView>("dtpSelDate").setValue(DateSerial(2005, 6, 7));
    EXPECT_EQ(ChartPointText(0), QStringLiteral("07/06/2005") + blankValues);
}

TEST_F(MainChart, HasItsPlotWhereThePointerExpectsIt) {
    load();
    const ChartContent& content = control<Chart>("chtMain").content();
    EXPECT_EQ(content.size, QSizeF(5055, 3615));
    EXPECT_EQ(content.plotArea.left(), kPlotLeft);
    EXPECT_EQ(content.plotArea.right(), kPlotRight);
    EXPECT_EQ(content.plotArea.top(), kPlotTop);
    EXPECT_EQ(content.plotArea.bottom(), kPlotBottom);
}

}  // namespace
