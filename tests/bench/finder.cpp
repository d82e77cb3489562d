// What a search for events over a hundred years takes: the scans alone, beside the bare sines of
// their days, and a search in the window until its list is painted.
#include <benchmark/benchmark.h>

#include <QAbstractButton>
#include <QSlider>
#include <cmath>

#include "analyses/event_search.h"
#include "analyses/frmFind.h"
#include "bench/paint_watch.h"
#include "bench/surroundings.h"
#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/list_view.h"
#include "shell/main_controls.h"

namespace {

constexpr Long kHundredYears = 36525;  // days
constexpr Long kDayBase = 10'000;

constexpr auto alwaysOn = [](Long) { return true; };

void scanTriples(benchmark::State& state) {
    EventHits hits;
    for (auto _ : state) {
        SearchCombined(kHundredYears, kDayBase, true, kCriticalKind, hits, alwaysOn);
        benchmark::DoNotOptimize(hits);
    }
}

// Day by day the sines of all three.
void scanTriplesFloor(benchmark::State& state) {
    for (auto _ : state) {
        for (Long day = 0; day <= kHundredYears; ++day) {
            benchmark::DoNotOptimize(std::sin((kDayBase % 28 + day) * modCycles::EmotionalFactor));
            benchmark::DoNotOptimize(std::sin((kDayBase % 23 + day) * modCycles::PhysicalFactor));
            benchmark::DoNotOptimize(
                std::sin((kDayBase % 33 + day) * modCycles::IntellectualFactor));
        }
    }
}

void scanCycles(benchmark::State& state) {
    EventHits hits;
    for (auto _ : state) {
        for (const auto key :
             {modCycles::kEmotionalKey, modCycles::kPhysicalKey, modCycles::kIntellectualKey})
            SearchCycle(kHundredYears, kDayBase, key, hits, alwaysOn);
        benchmark::DoNotOptimize(hits);
    }
}

// Cycle by cycle the sines of all days.
void scanCyclesFloor(benchmark::State& state) {
    for (auto _ : state) {
        for (const double factor : {modCycles::EmotionalFactor, modCycles::PhysicalFactor,
                                    modCycles::IntellectualFactor}) {
            for (Long day = 0; day <= kHundredYears; ++day)
                benchmark::DoNotOptimize(std::sin((kDayBase % 28 + day) * factor));
        }
    }
}

// The search of the first person, open and painted, with a hundred years to go through.
class OpenFinder {
  public:
    OpenFinder() {
        mainControls().lstMain->setListIndex(0);
        form_.Show();
        form_.findChild<QSlider*>()->setValue(100);
        choose("cbSpan", 3);
        paints_.waitForPaint();
    }
    ~OpenFinder() { form_.Unload(); }
    Q_DISABLE_COPY_MOVE(OpenFinder)

    void choose(const char* list, int entry) {
        form_.findChild<ComboBox*>(QLatin1String(list))->setListIndex(entry);
    }

    void check(const char* box) { button(box).setChecked(true); }

    void find() {
        button("cmdFind").click();
        paints_.waitForPaint();
    }

  private:
    QAbstractButton& button(const char* name) {
        return *form_.findChild<QAbstractButton*>(QLatin1String(name));
    }

    frmFind form_{mainWindow()};
    PaintWatch paints_{*form_.findChild<ListView*>()->viewport()};
};

void findTriples(benchmark::State& state) {
    OpenFinder finder;
    finder.choose("cbTriple", 1);
    finder.check("optCritical");
    for (auto _ : state)
        finder.find();
}

void findEverything(benchmark::State& state) {
    OpenFinder finder;
    for (const char* box :
         {"chkCustom", "chkEmot", "chkPhys", "chkIntel", "chkPeak", "chkLow", "chkCritical"})
        finder.check(box);
    for (auto _ : state)
        finder.find();
}

BENCHMARK(scanTriples)->UseRealTime();
BENCHMARK(scanTriplesFloor)->UseRealTime();
BENCHMARK(scanCycles)->UseRealTime();
BENCHMARK(scanCyclesFloor)->UseRealTime();
BENCHMARK(findTriples)->UseRealTime();
BENCHMARK(scanTriplesFloor)->Name("findTriplesFloor")->UseRealTime();
BENCHMARK(findEverything)->UseRealTime();
BENCHMARK(scanCyclesFloor)->Name("findEverythingFloor")->UseRealTime();

}  // namespace
