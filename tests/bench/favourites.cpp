// The menu of favourites where there are ten thousand: made anew from the files, and dropped down
// for the first time until it is painted. The floor is the folder read and its names sorted byte by
// byte.
#include <benchmark/benchmark.h>

#include <QFile>
#include <algorithm>
#include <filesystem>

#include "bench/paint_watch.h"
#include "controls/button_menu.h"
#include "runtime/app.h"
#include "shell/favourites_menu.h"
#include "shell/main_controls.h"

namespace {

constexpr int kFavourites = 10'000;

QString pathOf(int favourite) {
    constexpr int kStep = 7'919;  // a prime, so that the names come in no order
    return App::Path() +
           QStringLiteral("/Favourite %1, Ada.ofp").arg(favourite * kStep % kFavourites);
}

void makeFavourites(const benchmark::State&) {
    for (int favourite = 0; favourite < kFavourites; ++favourite) {
        QFile file(pathOf(favourite));
        if (!file.open(QIODevice::WriteOnly) || file.write("1,\"Ada\"\r\n") < 0)
            qFatal("%s cannot be written", qPrintable(file.fileName()));
    }
}

void removeFavourites(const benchmark::State&) {
    for (int favourite = 0; favourite < kFavourites; ++favourite)
        QFile::remove(pathOf(favourite));
}

void fillFavouritesMenu(benchmark::State& state) {
    for (auto _ : state)
        modCycles::FillFavouritesMenu();
}

void dropFavouritesDown(benchmark::State& state) {
    ButtonMenu& menu = *mainControls().mnuFaves;
    PaintWatch watch(menu);
    for (auto _ : state) {
        state.PauseTiming();
        modCycles::FillFavouritesMenu();
        state.ResumeTiming();
        menu.popup({0, 0});
        watch.waitForPaint();
        menu.close();
    }
}

void floorOfFavourites(benchmark::State& state) {
    for (auto _ : state) {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(App::Path().toStdString()))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        benchmark::DoNotOptimize(names);
    }
}

void asMeasured(benchmark::internal::Benchmark* routine) {
    routine->UseRealTime()->Setup(makeFavourites)->Teardown(removeFavourites);
}

BENCHMARK(fillFavouritesMenu)->Apply(asMeasured);
BENCHMARK(dropFavouritesDown)->Apply(asMeasured);
BENCHMARK(floorOfFavourites)->Apply(asMeasured);

}  // namespace
