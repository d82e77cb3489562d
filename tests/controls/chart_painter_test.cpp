// The picture of a chart, where it matters: the curves are where the data says, and nowhere else.
#include "controls/chart_painter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPalette>
#include <cmath>

#include "controls/chart_layout.h"

namespace {

constexpr int kScreen = 1;
constexpr int kPrinter = 6;  // 576 dots to the inch

// A steep wave that reaches both ends of the scale, in the physical cycle's colour.
ChartContent wave() {
    ChartContent content;
    content.size = {5055, 3615};
    content.plotArea = QRectF(QPointF(795, 360), QPointF(4695, 2295));
    content.series = {{.colour = CycleColour::Physical}};
    content.table.columns.emplace_back();
    for (int row = 0; row < 31; ++row) {
        content.table.rowLabels += QString();
        content.table.columns[0].push_back(100 * std::sin(row * 0.7));
    }
    return content;
}

QImage paint(const ChartContent& content, int pixelsPerScreenPixel) {
    const double scale = pixelsPerScreenPixel / 15.0;
    QImage image((content.size * scale).toSize(), QImage::Format_RGB32);
    QPainter painter(&image);
    paintChart(painter, content, chartColours(QPalette(Qt::white)), scale);
    return image;
}

bool isReddish(QRgb pixel) {
    return qRed(pixel) > qGreen(pixel) + 60 && qRed(pixel) > qBlue(pixel) + 60;
}

}  // namespace

TEST(ChartPainter, LeadsTheCurveThroughThePointOfEveryRowAtAnyScale) {
    const ChartContent content = wave();
    for (const int size : {kScreen, kPrinter}) {
        const QImage image = paint(content, size);
        for (int row = 0; row < 31; ++row) {
            const double value = content.table.columns[0][static_cast<std::size_t>(row)];
            const QPointF point(rowCentre(content, row), valueHeight(content, value));
            const QPointF pixel = point * size / 15.0;
            EXPECT_TRUE(
                isReddish(image.pixel(static_cast<int>(pixel.x()), static_cast<int>(pixel.y()))))
                << "row " << row << " at " << size;
        }
    }
}

TEST(ChartPainter, PaintsNothingOfTheCurvesOutsideThePlotArea) {
    ChartContent content = wave();
    content.table.columns[0][3] = 300;
    content.table.columns[0][9] = -300;
    const QImage image = paint(content, kScreen);
    const QRect plot(53, 24, 260, 129);
    int inside = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (!isReddish(image.pixel(x, y)))
                continue;
            EXPECT_TRUE(plot.contains(x, y)) << x << ", " << y;
            ++inside;
        }
    }
    EXPECT_GT(inside, 300);
}

TEST(ChartPainter, HatchesABarAndDrawsItsEdge) {
    ChartContent content = wave();
    content.type = ChartType::Bars;
    content.table = {.rowLabels = {QString()}, .columns = {{62.5}}};
    content.series[0].brush = {.fill = Qt::white,
                               .style = BrushStyle::Pattern,
                               .hatch = Hatch::Standing,
                               .patternColour = Qt::green};
    content.series[0].edgeColour = Qt::blue;
    const QPointF middle(rowCentre(content, 0), valueHeight(content, 30));
    const double scale = kPrinter / 15.0;
    const QImage image = paint(content, kPrinter);
    int greens = 0;
    int blues = 0;
    for (double x = middle.x() - 1500; x < middle.x() + 1500; x += 1 / scale) {
        const QColor colour = image.pixelColor((QPointF(x, middle.y()) * scale).toPoint());
        greens += colour == QColor(Qt::green) ? 1 : 0;
        blues += colour == QColor(Qt::blue) ? 1 : 0;
    }
    EXPECT_GT(greens, 40);
    EXPECT_GT(blues, 4);
    content.series[0].brush->style = BrushStyle::Solid;
    EXPECT_EQ(paint(content, kPrinter).pixelColor((middle * scale).toPoint()), QColor(Qt::white));
}

TEST(ChartPainter, FillsEachBarAndNothingBeyondIt) {
    ChartContent content = wave();
    content.type = ChartType::Bars;
    content.table = {.rowLabels = {QString()}, .columns = {{62.5}}};
    const QRectF twips(QPointF(rowCentre(content, 0) - 300, valueHeight(content, 62.5)),
                       QPointF(rowCentre(content, 0) + 300, valueHeight(content, 0)));
    const QImage image = paint(content, kScreen);
    const QRect bar = QRectF(twips.topLeft() / 15, twips.size() / 15).toRect();
    for (int y = 0; y < image.height(); ++y)
        EXPECT_EQ(isReddish(image.pixel(bar.center().x(), y)), y >= bar.top() && y <= bar.bottom())
            << y;
    EXPECT_TRUE(isReddish(image.pixel(bar.left(), bar.center().y())));
    EXPECT_TRUE(isReddish(image.pixel(bar.right(), bar.center().y())));
    EXPECT_FALSE(isReddish(image.pixel(60, bar.center().y())));
    EXPECT_FALSE(isReddish(image.pixel(305, bar.center().y())));
}

TEST(ChartPainter, LeavesGapsInADottedCurveAndNoneInASolidOne) {
    ChartContent content = wave();
    std::fill(content.table.columns[0].begin(), content.table.columns[0].end(), 50.0);
    const int line = static_cast<int>(valueHeight(content, 50) / 15);
    const auto inkedPixels = [&] {
        const QImage image = paint(content, kScreen);
        int inked = 0;
        for (int x = 60; x < 300; ++x)
            inked += isReddish(image.pixel(x, line)) ? 1 : 0;
        return inked;
    };
    EXPECT_EQ(inkedPixels(), 240);
    content.series[0].pattern = PenPattern::Dotted;
    EXPECT_GT(inkedPixels(), 40);
    EXPECT_LT(inkedPixels(), 200);
}

TEST(ChartPainter, ShortensATitleThatIsTooLong) {
    ChartContent content = wave();
    const QImage without = paint(content, kScreen);
    content.title = QStringLiteral("Somebody ").repeated(30);
    const QImage with = paint(content, kScreen);
    const QRect edge(0, 0, 4, 24);
    EXPECT_NE(with.copy(4, 0, 330, 24), without.copy(4, 0, 330, 24));
    EXPECT_EQ(with.copy(edge), without.copy(edge));
    EXPECT_EQ(with.copy(edge.translated(with.width() - 4, 0)),
              without.copy(edge.translated(with.width() - 4, 0)));
}
