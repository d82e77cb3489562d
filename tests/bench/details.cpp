// What the user waits for in the details of a person: the analysis of a day, without the lookup of
// its interpretation, and another date until the window is painted. Behind each comes its floor.
#include <benchmark/benchmark.h>

#include <QLabel>
#include <cmath>

#include "analyses/day_analysis.h"
#include "analyses/frmCritical.h"
#include "bench/floors.h"
#include "bench/paint_watch.h"
#include "bench/surroundings.h"
#include "controls/date_picker.h"
#include "controls/list_box.h"
#include "cycles/calendar.h"
#include "shell/main_controls.h"

namespace {

constexpr int kDaysOfYear = 365;
constexpr Date kBirthdate = modCycles::DateSerial(1972, 10, 20);
constexpr Date kFirstDay = modCycles::DateSerial(2000, 1, 1);

void analyseDay(benchmark::State& state) {
    for (int day = 0; auto _ : state) {
        const Date selected = kFirstDay + ++day % kDaysOfYear;
        benchmark::DoNotOptimize(readDay(kBirthdate, selected));
        benchmark::DoNotOptimize(searchSpan(kBirthdate, selected, selected));
    }
}

// The sines of the three cycles for 31 days, and no text.
void analyseDayFloor(benchmark::State& state) {
    for (int days = 10'000; auto _ : state) {
        ++days;
        double sum = 0;
        for (int i = 0; i < kSpanDays; ++i)
            sum += std::sin((days % 28 + i) * 0.2) + std::sin((days % 23 + i) * 0.3) +
                   std::sin((days % 33 + i) * 0.2);
        benchmark::DoNotOptimize(sum);
    }
}

// Another day at every step, as if picked by the user.
void changeDate(benchmark::State& state) {
    mainControls().lstMain->setListIndex(0);
    frmCritical details(mainWindow());
    details.Show();
    PaintWatch date(*details.findChild<QLabel*>(QStringLiteral("lblDateToday")));
    date.waitForPaint();
    auto& picker = static_cast<QDateEdit&>(*details.findChild<DatePicker*>());
    for (int day = 0; auto _ : state) {
        picker.setDate(QDate(2000, 1, 1).addDays(++day % kDaysOfYear));
        date.waitForPaint();
    }
    details.Unload();
}

// The row read from the file.
void changeDateFloor(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(plainInterpretation(interpretationDatabase()));
}

BENCHMARK(analyseDay)->UseRealTime();
BENCHMARK(analyseDayFloor)->UseRealTime();
BENCHMARK(changeDate)->UseRealTime();
BENCHMARK(changeDateFloor)->UseRealTime();

}  // namespace
