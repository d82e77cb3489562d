// What the user waits for in the comparison with others: a click on a name of the list, until the
// chart is painted. Behind it comes its floor.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <QTest>

#include "analyses/frmCompat.h"
#include "bench/floors.h"
#include "bench/paint_watch.h"
#include "bench/surroundings.h"
#include "controls/chart.h"
#include "controls/chart_painter.h"
#include "controls/list_box.h"
#include "controls/twips.h"

namespace {

// Another of the last names at every click, which are the furthest from the first.
void clickOther(benchmark::State& state) {
    constexpr int kNames = 5;
    mainControls().lstMain->setListIndex(0);
    frmCompat form(mainWindow());
    PaintWatch chart(*form.findChild<Chart*>(QStringLiteral("chtCompatBars")));
    form.Show();
    chart.waitForPaint();
    auto& list = *form.findChild<ListBox*>(QStringLiteral("lstCompat"));
    list.scrollToBottom();
    for (int name = 0; auto _ : state) {
        const int row = list.ListCount() - 1 - name++ % kNames;
        const QRect place = list.visualRect(list.model()->index(row, 0));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
        chart.waitForPaint();
    }
    form.Unload();
}

// The row read, and the chart painted into a picture.
void clickOtherFloor(benchmark::State& state) {
    mainControls().lstMain->setListIndex(0);
    frmCompat form(mainWindow());
    form.Show();
    const Chart& chart = *form.findChild<Chart*>(QStringLiteral("chtCompatBars"));
    QImage picture(chart.size(), QImage::Format_RGB32);
    for (auto _ : state) {
        benchmark::DoNotOptimize(plainBirthdate(database(), 1));
        QPainter painter(&picture);
        paintChart(painter, chart.content(), chartColours(chart.palette()), 1.0 / kTwipsPerPixel);
    }
    form.Unload();
}

BENCHMARK(clickOther)->UseRealTime();
BENCHMARK(clickOtherFloor)->UseRealTime();

}  // namespace
