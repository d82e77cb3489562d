// What the user waits for in the main window: the lists filled, a category picked, a click on a
// name until the chart is painted. Behind each comes its floor.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <QTest>

#include "bench/floors.h"
#include "bench/paint_watch.h"
#include "bench/surroundings.h"
#include "controls/chart.h"
#include "controls/chart_painter.h"
#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/twips.h"
#include "shell/main_chart.h"
#include "shell/main_controls.h"
#include "shell/main_lists.h"

namespace {

constexpr Long kFirstCategory = 1;

void fillPersonList(benchmark::State& state) {
    for (auto _ : state)
        modCycles::FillPersonList();
}

void fillPersonListFloor(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(plainPeople(database()));
}

void fillCategoryList(benchmark::State& state) {
    for (auto _ : state)
        modCycles::FillCategoryList();
}

void fillCategoryListFloor(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(plainCategories(database()));
        benchmark::DoNotOptimize(plainPeople(database()));
    }
}

// Leaves everybody on the list, as the others expect.
void pickCategory(benchmark::State& state) {
    for (auto _ : state)
        mainControls().cbCategory->setListIndex(kFirstCategory);
    modCycles::FillCategoryList();
}

void pickCategoryFloor(benchmark::State& state) {
    const Long catId = mainControls().cbCategory->ItemData(kFirstCategory);
    for (auto _ : state)
        benchmark::DoNotOptimize(plainPeopleOfCategory(database(), catId));
}

// Another of the first names at every click.
void clickName(benchmark::State& state) {
    constexpr int kNames = 5;
    const ListBox& list = *mainControls().lstMain;
    PaintWatch chart(*mainControls().chtMain);
    for (int name = 0; auto _ : state) {
        const QRect place = list.visualRect(list.model()->index(name++ % kNames, 0));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
        chart.waitForPaint();
    }
}

// The row read, and the chart painted into a picture.
void clickNameFloor(benchmark::State& state) {
    const Chart& chart = *mainControls().chtMain;
    QImage picture(chart.size(), QImage::Format_RGB32);
    for (auto _ : state) {
        benchmark::DoNotOptimize(plainBirthdate(database(), 1));
        QPainter painter(&picture);
        paintChart(painter, chart.content(), chartColours(chart.palette()), 1.0 / kTwipsPerPixel);
    }
}

BENCHMARK(fillPersonList)->UseRealTime();
BENCHMARK(fillPersonListFloor)->UseRealTime();
BENCHMARK(fillCategoryList)->UseRealTime();
BENCHMARK(fillCategoryListFloor)->UseRealTime();
BENCHMARK(pickCategory)->UseRealTime();
BENCHMARK(pickCategoryFloor)->UseRealTime();
BENCHMARK(clickName)->UseRealTime();
BENCHMARK(clickNameFloor)->UseRealTime();

}  // namespace
