// The chart control: data in, data out, and the mouse.
#include "controls/chart.h"

#include <gtest/gtest.h>

#include <QTextDocument>

#include "runtime/event.h"
#include "support/dark_desktop.h"
#include "support/errors.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

namespace {

ChartTable smallTable() {
    return {{QStringLiteral("one"), QStringLiteral("two")}, {{1.5, 2.5}, {-10, 20}, {0, -99.75}}};
}

class ChartTest : public testing::Test, public QObject {
  protected:
    ChartTest() {
        chart_.setFixedTwips({5055, 3615}, QRectF(QPointF(795, 360), QPointF(4695, 2295)));
        onEvent(&chart_, &Chart::MouseMove, this, &ChartTest::mouseMoved);
    }

    void mouseMoved(double x, double y) { lastPlace_ = {x, y}; }

    RecordingHost host_;
    Chart chart_;
    QPointF lastPlace_;
};

}  // namespace

TEST_F(ChartTest, IsAsLargeAsItsTwipsSay) {
    EXPECT_EQ(chart_.minimumSize(), QSize(337, 241));
    EXPECT_EQ(chart_.maximumSize(), QSize(337, 241));
}

TEST_F(ChartTest, KeepsItsPlotAreaWithinItsMarginsInWhateverSize) {
    Chart chart;
    chart.resize(400, 300);
    chart.setPlotMargins({795, 360, 360, 900});
    EXPECT_EQ(chart.content().size, QSizeF(6000, 4500));
    EXPECT_EQ(chart.content().plotArea, QRectF(QPointF(795, 360), QPointF(5640, 3600)));
    chart.show();
    chart.resize(500, 200);
    EXPECT_EQ(chart.content().size, QSizeF(7500, 3000));
    EXPECT_EQ(chart.content().plotArea, QRectF(QPointF(795, 360), QPointF(7140, 2100)));
}

TEST_F(ChartTest, DrawsLinesUntilItIsToldToDrawBars) {
    EXPECT_EQ(chart_.content().type, ChartType::Lines);
    chart_.setChartType(ChartType::Bars);
    EXPECT_EQ(chart_.content().type, ChartType::Bars);
}

TEST_F(ChartTest, GivesItsValuesBackByRowAndColumnCountedFromOne) {
    chart_.setChartData(smallTable());
    EXPECT_EQ(chart_.Data(1, 1), 1.5);
    EXPECT_EQ(chart_.Data(2, 1), 2.5);
    EXPECT_EQ(chart_.Data(2, 3), -99.75);
    EXPECT_EQ(chart_.content().table, smallTable());
}

TEST_F(ChartTest, RaisesAnErrorForAValueOutsideItsTable) {
    chart_.setChartData(smallTable());
    for (const auto& [row, column] : {std::pair{0, 1}, {3, 1}, {1, 0}, {1, 4}, {-1, 1}})
        EXPECT_EQ(errorOf([&] { (void)chart_.Data(row, column); }), 381) << row << column;
}

TEST_F(ChartTest, TakesSevenSeriesAndNoMore) {
    ChartTable table{{QStringLiteral("one")}, {7, std::vector{5.0}}};
    chart_.setChartData(table);
    EXPECT_EQ(chart_.Data(1, 7), 5);
    table.columns.push_back({6.0});
    EXPECT_EQ(errorOf([&] { chart_.setChartData(table); }), 380);
    EXPECT_EQ(errorOf([&] { chart_.setLegendText(8, QStringLiteral("eighth")); }), 381);
    EXPECT_EQ(errorOf([&] { chart_.setSeriesPattern(0, PenPattern::Dotted); }), 381);
}

TEST_F(ChartTest, GivesTheFirstFourSeriesTheColoursOfTheCyclesInTheirOrder) {
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(chart_.content().series[i].colour, static_cast<CycleColour>(i)) << i;
}

TEST_F(ChartTest, ShowsWhatItIsTold) {
    chart_.setShowLegend(true);
    chart_.setLegendLocation(LegendLocation::Right);
    chart_.setLegendFont(QStringLiteral("Arial"), 9);
    chart_.setLegendText(2, QStringLiteral("Phys."));
    chart_.setSeriesColour(4, CycleColour::Emotional);
    chart_.setSeriesPattern(4, PenPattern::Dotted);
    chart_.setTitle(QStringLiteral("Title"));
    chart_.setMarkedRow(1);
    const ChartContent& content = chart_.content();
    EXPECT_TRUE(chart_.ShowLegend());
    EXPECT_EQ(content.legendLocation, LegendLocation::Right);
    EXPECT_EQ(content.fontFamily, QStringLiteral("Arial"));
    EXPECT_EQ(content.fontPoints, 9);
    EXPECT_EQ(content.series[1].legendText, QStringLiteral("Phys."));
    EXPECT_EQ(content.series[3].colour, CycleColour::Emotional);
    EXPECT_EQ(content.series[3].pattern, PenPattern::Dotted);
    EXPECT_EQ(content.title, QStringLiteral("Title"));
    EXPECT_EQ(content.markedRow, 0);
    chart_.setMarkedRow(0);
    EXPECT_FALSE(content.markedRow);
}

TEST_F(ChartTest, TellsWhereTheMouseMovesInTwipsFromItsTopLeft) {
    chart_.show();
    moveMouse(chart_, {53, 100});
    EXPECT_EQ(lastPlace_, QPointF(795, 1500));
    moveMouse(chart_, {313, 24});
    EXPECT_EQ(lastPlace_, QPointF(4695, 360));
}

TEST_F(ChartTest, HearsTheMouseWithoutAButtonDown) {
    EXPECT_TRUE(chart_.hasMouseTracking());
}

TEST_F(ChartTest, ShowsAnArrowWithAQuestionMarkOnRequest) {
    EXPECT_EQ(chart_.MousePointer(), MousePointerShape::Default);
    chart_.setMousePointer(MousePointerShape::ArrowQuestion);
    EXPECT_EQ(chart_.MousePointer(), MousePointerShape::ArrowQuestion);
    EXPECT_EQ(chart_.cursor().shape(), Qt::WhatsThisCursor);
    chart_.setMousePointer(MousePointerShape::Default);
    EXPECT_EQ(chart_.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ChartTest, KeepsItsToolTipText) {
    chart_.setToolTipText(QStringLiteral("14/03/2000: Emot.: 62%"));
    EXPECT_EQ(chart_.ToolTipText(), QStringLiteral("14/03/2000: Emot.: 62%"));
    EXPECT_EQ(chart_.toolTip(), chart_.ToolTipText());
}

TEST_F(ChartTest, IsPicturedAsItStands) {
    chart_.setChartData(smallTable());
    chart_.setLegendFont(QStringLiteral("Arial"), 8);
    EXPECT_EQ(chart_.picture(1).toImage(), chart_.grab().toImage());
}

TEST_F(ChartTest, IsPicturedInAnySize) {
    EXPECT_EQ(chart_.picture(2).deviceIndependentSize(), QSizeF(674, 482));
    EXPECT_EQ(chart_.picture(0.5).deviceIndependentSize(), QSizeF(169, 121));
}

TEST_F(ChartTest, FillsItsPictureToTheLowerRightEnd) {
    chart_.setChartData(smallTable());
    chart_.setShowLegend(true);
    const QImage picture = chart_.picture(2).toImage();
    const QImage end = picture.copy(picture.width() / 2, picture.height() / 2, 300, 200);
    QImage nothing = end;
    nothing.fill(chart_.palette().color(QPalette::Base));
    EXPECT_NE(end, nothing);
}

TEST_F(ChartTest, IsDrawnForPaperWhateverTheDesktopIs) {
    const DarkDesktop dark;
    chart_.setPalette(QApplication::palette());
    chart_.setChartData(smallTable());
    const QImage paper = chart_.paperPicture();
    EXPECT_EQ(paper.size(), QSize(1053, 753));
    EXPECT_EQ(paper.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(paper.dotsPerMeterX(), 11811);  // 300 to the inch
    EXPECT_EQ(paper.dotsPerMeterY(), 11811);
}

TEST_F(ChartTest, LeavesAPictureAsItIsWhenItChanges) {
    chart_.setChartData(smallTable());
    const QPixmap before = chart_.picture(2);
    const QImage then = before.toImage();
    chart_.setChartData({{QStringLiteral("one")}, {{99}}});
    EXPECT_EQ(before.toImage(), then);
    EXPECT_NE(chart_.picture(2).toImage(), then);
}

TEST(ChartToolTip, IsShownAsItStands) {
    Chart chart;
    chart.setToolTipText(QStringLiteral("Solid: A     Dotted: B"));
    EXPECT_EQ(chart.toolTip(), QStringLiteral("Solid: A     Dotted: B"));
    const QString withMarkup = QStringLiteral("Solid: <b>A</b>     Dotted: B");
    chart.setToolTipText(withMarkup);
    EXPECT_EQ(chart.ToolTipText(), withMarkup);
    QTextDocument shown;
    shown.setHtml(chart.toolTip());
    EXPECT_EQ(shown.toPlainText(), withMarkup);
}
