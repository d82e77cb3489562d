// The places in a chart, as data.
#include "controls/chart_layout.h"

#include <gtest/gtest.h>

#include <QPolygonF>
#include <QTransform>

namespace {

constexpr double kTwipsPerCharacter = 90;
constexpr double kLineHeight = 195;

TextMeasure fixedMeasure() {
    return {kLineHeight, [](const QString& text) {
                return static_cast<double>(text.size()) * kTwipsPerCharacter;
            }};
}

// 31 rows of four series on the plot area of the main chart.
ChartContent mainChart(const QString& rowLabel = QStringLiteral("14/03/2000")) {
    ChartContent content;
    content.size = {5055, 3615};
    content.plotArea = QRectF(QPointF(795, 360), QPointF(4695, 2295));
    content.showLegend = true;
    for (const char* legend : {"Emot.", "Phys.", "Intel.", "Avg."}) {
        content.series.push_back({QString::fromLatin1(legend)});
        content.table.columns.emplace_back(31, 0.0);
    }
    for (int row = 0; row < 31; ++row)
        content.table.rowLabels += rowLabel;
    return content;
}

// One row of four bars, with room for a legend beside them.
ChartContent barChart() {
    ChartContent content = mainChart(QString());
    content.type = ChartType::Bars;
    content.plotArea.setRight(3600);
    content.legendLocation = LegendLocation::Right;
    content.table = {.rowLabels = {QString()}, .columns = {{10.0}, {55.5}, {0.0}, {100.0}}};
    return content;
}

ChartLayout layOut(const ChartContent& content) {
    return layOutChart(content, fixedMeasure());
}

std::vector<int> labelledRows(const ChartLayout& layout) {
    std::vector<int> rows;
    for (const ChartRowLabel& label : layout.rowLabels)
        rows.push_back(label.row);
    return rows;
}

QPolygonF outline(const ChartLayout& layout, const ChartRowLabel& label) {
    QTransform place = QTransform::fromTranslate(label.anchor.x(), label.anchor.y());
    place.rotate(-layout.rowLabelAngle);
    return place.map(QPolygonF(label.box));
}

void expectNoOverlap(const ChartContent& content) {
    const ChartLayout layout = layOut(content);
    const QRectF chart(QPointF(), content.size);
    for (std::size_t i = 0; i < layout.rowLabels.size(); ++i) {
        const QPolygonF label = outline(layout, layout.rowLabels[i]);
        EXPECT_TRUE(chart.contains(label.boundingRect())) << i;
        EXPECT_GE(label.boundingRect().top(), content.plotArea.bottom()) << i;
        if (i > 0) {
            EXPECT_FALSE(label.intersects(outline(layout, layout.rowLabels[i - 1]))) << i;
        }
        for (const ChartLegendEntry& entry : layout.legend)
            EXPECT_FALSE(label.boundingRect().intersects(entry.textBox)) << i;
    }
}

}  // namespace

TEST(ChartLayout, PutsARowInTheMiddleOfItsBand) {
    const ChartContent content = mainChart();
    EXPECT_DOUBLE_EQ(rowCentre(content, 0), 795 + 3900.0 / 31 / 2);
    EXPECT_DOUBLE_EQ(rowCentre(content, 15), (795 + 4695) / 2.0);
    EXPECT_DOUBLE_EQ(rowCentre(content, 30), 4695 - 3900.0 / 31 / 2);
}

TEST(ChartLayout, SpreadsTheValuesEvenlyAroundTheMiddleOfThePlotArea) {
    const ChartContent content = mainChart();
    EXPECT_DOUBLE_EQ(valueHeight(content, 0), (360 + 2295) / 2.0);
    EXPECT_DOUBLE_EQ(valueHeight(content, 100) - 360, 2295 - valueHeight(content, -100));
    EXPECT_DOUBLE_EQ(valueHeight(content, 50) - valueHeight(content, 100),
                     valueHeight(content, 0) - valueHeight(content, 50));
}

TEST(ChartLayout, KeepsTheWidthOfALineAtTheLargestValueWithinThePlotArea) {
    const ChartContent content = mainChart();
    EXPECT_GT(valueHeight(content, 100), 360 + 15);
    EXPECT_LT(valueHeight(content, 100), 360 + 75);
}

TEST(ChartLayout, HasAGridLineEveryFiftyPerCentAndOneOfThemIsZero) {
    const ChartLayout layout = layOut(mainChart());
    QStringList labels;
    for (const ChartGridLine& line : layout.grid) {
        labels += line.label;
        EXPECT_EQ(line.isZero, line.label == QStringLiteral("0%"));
        EXPECT_LE(line.labelBox.right(), 795);
    }
    EXPECT_EQ(labels,
              QStringList({QStringLiteral("100%"), QStringLiteral("50%"), QStringLiteral("0%"),
                           QStringLiteral("-50%"), QStringLiteral("-100%")}));
}

TEST(ChartLayout, PutsEachPointAtItsRowAndValue) {
    ChartContent content = mainChart();
    content.table.columns[2][7] = -62.5;
    const ChartLayout layout = layOut(content);
    ASSERT_EQ(layout.curves.size(), 4U);
    ASSERT_EQ(layout.curves[2].size(), 31U);
    EXPECT_EQ(layout.curves[2][7], QPointF(rowCentre(content, 7), valueHeight(content, -62.5)));
    EXPECT_EQ(layout.curves[2][8], QPointF(rowCentre(content, 8), valueHeight(content, 0)));
}

TEST(ChartLayout, TurnsTheLabelOfEveryFifthRowWhereTheyDoNotFitBesideEachOther) {
    const ChartLayout layout = layOut(mainChart());
    EXPECT_EQ(layout.rowLabelAngle, 45);
    EXPECT_EQ(labelledRows(layout), std::vector({0, 5, 10, 15, 20, 25, 30}));
    expectNoOverlap(mainChart());
}

TEST(ChartLayout, LeavesShortRowLabelsLevel) {
    const ChartContent content = mainChart(QStringLiteral("14/3"));
    EXPECT_EQ(layOut(content).rowLabelAngle, 0);
    EXPECT_EQ(labelledRows(layOut(content)).size(), 7U);
    expectNoOverlap(content);
}

TEST(ChartLayout, LabelsFewerRowsWhereTurnedLabelsWouldReachIntoTheLegend) {
    ChartContent content = mainChart();
    content.plotArea.setBottom(2700);
    EXPECT_EQ(layOut(content).rowLabelAngle, 0);
    EXPECT_EQ(labelledRows(layOut(content)), std::vector({0, 10, 20, 30}));
    expectNoOverlap(content);
}

TEST(ChartLayout, LabelsFewerRowsWhereTurnedLabelsWouldReachOutOfTheChart) {
    ChartContent content = mainChart(QStringLiteral("14 September 2000"));
    content.plotArea.setBottom(1500);
    EXPECT_EQ(layOut(content).rowLabelAngle, 0);
    EXPECT_EQ(labelledRows(layOut(content)), std::vector({0, 15, 30}));
    expectNoOverlap(content);
}

TEST(ChartLayout, LabelsFewerRowsWhereTurnedLabelsWouldTouchEachOther) {
    ChartContent content = mainChart();
    content.table.rowLabels = QStringList(150, QStringLiteral("14/03/2000"));
    EXPECT_EQ(layOut(content).rowLabelAngle, 0);
    EXPECT_EQ(labelledRows(layOut(content)), std::vector({0, 40, 80, 120}));
    expectNoOverlap(content);
}

TEST(ChartLayout, HasATickAtEveryFifthRowHoweverFewAreLabelled) {
    const ChartContent content = mainChart(QStringLiteral("14 September 2000"));
    const ChartLayout layout = layOut(content);
    ASSERT_EQ(layout.ticks.size(), 7U);
    EXPECT_EQ(layout.ticks[1], rowCentre(content, 5));
}

TEST(ChartLayout, PutsTheLegendInOneLineBelowTheMiddleOfThePlotArea) {
    const ChartContent content = mainChart();
    const std::vector<ChartLegendEntry> legend = layOut(content).legend;
    ASSERT_EQ(legend.size(), 4U);
    for (std::size_t i = 1; i < legend.size(); ++i) {
        EXPECT_EQ(legend[i].textBox.top(), legend[0].textBox.top());
        EXPECT_GT(legend[i].sample.x1(), legend[i - 1].textBox.right());
    }
    EXPECT_LE(legend[0].textBox.bottom(), content.size.height());
    EXPECT_NEAR((legend.front().sample.x1() + legend.back().textBox.right()) / 2,
                content.plotArea.center().x(), 1);
}

TEST(ChartLayout, BreaksALegendThatIsTooLongForOneLine) {
    ChartContent content = mainChart();
    for (ChartSeries& series : content.series)
        series.legendText = QStringLiteral("A long legend text");
    const std::vector<ChartLegendEntry> legend = layOut(content).legend;
    EXPECT_EQ(legend[1].textBox.top(), legend[0].textBox.top());
    EXPECT_GE(legend[2].textBox.top(), legend[0].textBox.bottom());
    for (const ChartLegendEntry& entry : legend)
        EXPECT_TRUE(QRectF(QPointF(), content.size).contains(entry.textBox));
}

TEST(ChartLayout, PutsTheLegendBesideThePlotAreaOnRequest) {
    ChartContent content = mainChart();
    content.plotArea.setRight(3600);
    content.legendLocation = LegendLocation::Right;
    const std::vector<ChartLegendEntry> legend = layOut(content).legend;
    for (std::size_t i = 0; i < legend.size(); ++i) {
        EXPECT_GT(legend[i].sample.x1(), 3600);
        if (i > 0) {
            EXPECT_GE(legend[i].textBox.top(), legend[i - 1].textBox.bottom());
        }
    }
}

TEST(ChartLayout, HasNoLegendUnlessItIsShown) {
    ChartContent content = mainChart();
    content.showLegend = false;
    EXPECT_TRUE(layOut(content).legend.empty());
}

TEST(ChartLayout, MarksTheWholeBandOfTheMarkedRow) {
    ChartContent content = mainChart();
    EXPECT_FALSE(layOut(content).markedBand);
    content.markedRow = 0;
    EXPECT_EQ(layOut(content).markedBand, QRectF(795, 360, 3900.0 / 31, 2295 - 360));
}

TEST(ChartLayout, OfAnEmptyTableHasItsGridAndNothingElse) {
    ChartContent content = mainChart();
    content.table = {};
    content.markedRow = 0;
    const ChartLayout layout = layOut(content);
    EXPECT_EQ(layout.grid.size(), 5U);
    EXPECT_TRUE(layout.curves.empty());
    EXPECT_TRUE(layout.rowLabels.empty());
    EXPECT_TRUE(layout.legend.empty());
    EXPECT_FALSE(layout.markedBand);
}

TEST(ChartLayout, SpreadsTheValuesOfBarsFromTheBottomOfThePlotAreaToItsTop) {
    const ChartContent content = barChart();
    EXPECT_DOUBLE_EQ(valueHeight(content, 50), (360 + 2295) / 2.0);
    EXPECT_DOUBLE_EQ(valueHeight(content, 100) - 360, 2295 - valueHeight(content, 0));
    EXPECT_GT(valueHeight(content, 100), 360);
    EXPECT_LT(valueHeight(content, 100), 360 + 75);
}

TEST(ChartLayout, HasAGridLineEveryTwentyFivePerCentBehindBars) {
    QStringList labels;
    for (const ChartGridLine& line : layOut(barChart()).grid) {
        labels += line.label;
        EXPECT_EQ(line.isZero, line.label == QStringLiteral("0%"));
    }
    EXPECT_EQ(labels,
              QStringList({QStringLiteral("100%"), QStringLiteral("75%"), QStringLiteral("50%"),
                           QStringLiteral("25%"), QStringLiteral("0%")}));
}

TEST(ChartLayout, DrawsABarFromNoughtToItsValue) {
    const ChartContent content = barChart();
    const ChartLayout layout = layOut(content);
    ASSERT_EQ(layout.bars.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(layout.bars[i].series, static_cast<int>(i));
        EXPECT_DOUBLE_EQ(layout.bars[i].box.top(),
                         valueHeight(content, content.table.columns[i].front()));
        EXPECT_DOUBLE_EQ(layout.bars[i].box.bottom(), valueHeight(content, 0));
    }
    EXPECT_EQ(layout.bars[2].box.height(), 0);
}

TEST(ChartLayout, DrawsABarDownFromNoughtWhereThereMayBeNegativeOnes) {
    ChartContent content = barChart();
    content.hasNegativeBars = true;
    content.table = {.rowLabels = {QString()}, .columns = {{50.0}, {-50.0}}};
    const ChartLayout layout = layOut(content);
    const double nought = (360 + 2295) / 2.0;
    EXPECT_DOUBLE_EQ(valueHeight(content, 0), nought);
    EXPECT_DOUBLE_EQ(layout.bars[0].box.bottom(), nought);
    EXPECT_DOUBLE_EQ(layout.bars[1].box.top(), nought);
    EXPECT_DOUBLE_EQ(layout.bars[1].box.bottom(), valueHeight(content, -50));
    EXPECT_EQ(layout.grid.front().label, u"100%");
    EXPECT_EQ(layout.grid.back().label, u"-100%");
}

TEST(ChartLayout, PutsTheBarsOfARowSideBySideInTheMiddleOfItsBand) {
    ChartContent content = barChart();
    content.table = {.rowLabels = {QString(), QString()}, .columns = {{10, 20}, {30, 40}}};
    const std::vector<ChartBar> bars = layOut(content).bars;
    ASSERT_EQ(bars.size(), 4U);
    EXPECT_GT(bars[0].box.left(), 795);
    for (std::size_t i = 1; i < 4; ++i)
        EXPECT_GT(bars[i].box.left(), bars[i - 1].box.right()) << i;
    EXPECT_LT(bars[3].box.right(), 3600);
    EXPECT_DOUBLE_EQ((bars[0].box.left() + bars[1].box.right()) / 2, rowCentre(content, 0));
    EXPECT_DOUBLE_EQ((bars[2].box.left() + bars[3].box.right()) / 2, rowCentre(content, 1));
    EXPECT_DOUBLE_EQ(bars[0].box.width(), bars[3].box.width());
}

TEST(ChartLayout, HasEitherBarsOrCurves) {
    const ChartLayout bars = layOut(barChart());
    EXPECT_TRUE(bars.curves.empty());
    EXPECT_TRUE(bars.ticks.empty());
    EXPECT_TRUE(layOut(mainChart()).bars.empty());
}

TEST(ChartLayout, KeepsTheLegendBesideBarsWithinTheChart) {
    ChartContent content = barChart();
    for (ChartSeries& series : content.series)
        series.legendText = QStringLiteral("Intel.: (100%)");
    content.plotArea.setRight(5055 - 1900);
    for (const ChartLegendEntry& entry : layOut(content).legend)
        EXPECT_TRUE(QRectF(QPointF(), content.size).contains(entry.textBox));
}

TEST(ChartLayout, HasItsTitleAboveThePlotAreaAndClearOfTheEdges) {
    const QRectF title = layOut(barChart()).titleBox;
    EXPECT_GT(title.top(), 0);
    EXPECT_LE(title.bottom(), 360);
    EXPECT_GT(title.left(), 0);
    EXPECT_EQ(title.left(), 5055 - title.right());
}
