// What the user waits for in the ordered match: a search among everybody, and another order of the
// rows, each until the grid is painted. Behind each comes its floor.
#include <benchmark/benchmark.h>

#include <QAbstractButton>
#include <algorithm>
#include <functional>
#include <vector>

#include "analyses/frmCompat.h"
#include "bench/floors.h"
#include "bench/paint_watch.h"
#include "bench/surroundings.h"
#include "controls/button_bar.h"
#include "controls/grid.h"
#include "controls/list_box.h"
#include "cycles/cycle.h"
#include "cycles/date.h"

namespace {

// The ordered match of the first person, open and painted.
class OpenMatch {
  public:
    OpenMatch() {
        mainControls().lstMain->setListIndex(0);
        form_.Show();
        Q_EMIT form_.findChild<ButtonBar*>()->Click(1, 2);
        paints_.waitForPaint();
    }
    ~OpenMatch() { form_.Unload(); }
    Q_DISABLE_COPY_MOVE(OpenMatch)

    void press(const char* button) {
        form_.findChild<QAbstractButton*>(QLatin1String(button))->click();
        paints_.waitForPaint();
    }

  private:
    frmCompat form_{mainWindow()};
    PaintWatch paints_{*form_.findChild<Grid*>()->viewport()};
};

void searchMatches(benchmark::State& state) {
    OpenMatch match;
    for (auto _ : state)
        match.press("cmdSearch");
}

// The averages with everybody, the largest first.
std::vector<double> plainAverages() {
    const Date birthdate(plainBirthdate(database(), 1));
    std::vector<double> averages = plainBirthdates(database());
    for (double& average : averages)
        average = modCycles::CalcCompats(modCycles::DayCount(birthdate, Date(average))).average();
    std::sort(averages.begin(), averages.end(), std::greater<>());
    return averages;
}

void searchMatchesFloor(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(plainAverages());
}

void sortMatchesAnew(benchmark::State& state) {
    OpenMatch match;
    match.press("cmdSearch");
    bool byEmotional = false;
    for (auto _ : state)
        match.press((byEmotional = !byEmotional) ? "optSort_1" : "optSort_0");
}

void sortMatchesAnewFloor(benchmark::State& state) {
    std::vector<double> averages = plainAverages();
    for (auto _ : state) {
        std::reverse(averages.begin(), averages.end());
        std::sort(averages.begin(), averages.end(), std::greater<>());
        benchmark::DoNotOptimize(averages);
    }
}

BENCHMARK(searchMatches)->UseRealTime();
BENCHMARK(searchMatchesFloor)->UseRealTime();
BENCHMARK(sortMatchesAnew)->UseRealTime();
BENCHMARK(sortMatchesAnewFloor)->UseRealTime();

}  // namespace
