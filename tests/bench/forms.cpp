// What the user waits for in the forms over the main window: another date in the birthday calendar,
// and a person's card until it is painted. Behind each comes its floor.
#include <benchmark/benchmark.h>

#include <chrono>

#include "analyses/frmBirthdayToday.h"
#include "bench/floors.h"
#include "bench/paint_watch.h"
#include "bench/surroundings.h"
#include "controls/date_picker.h"
#include "controls/list_box.h"
#include "controls/list_view.h"
#include "records/frmZoom.h"
#include "shell/handover.h"
#include "shell/main_controls.h"

namespace {

constexpr int kDaysOfYear = 365;

// Another day at every step, as if picked by the user, until the list is painted.
void pickBirthday(benchmark::State& state) {
    frmBirthdayToday calendar(mainWindow());
    calendar.Show();
    auto& picker = static_cast<QDateEdit&>(*calendar.findChild<DatePicker*>());
    PaintWatch list(*calendar.findChild<ListView*>()->viewport());
    list.waitForPaint();
    for (int day = 0; auto _ : state) {
        picker.setDate(QDate(2000, 1, 1).addDays(++day % kDaysOfYear));
        list.waitForPaint();
    }
    calendar.Unload();
}

// The birth dates in memory, compared by day and month.
void pickBirthdayFloor(benchmark::State& state) {
    using namespace std::chrono;
    constexpr sys_days kDayNought = 1899y / December / 30d;
    const std::vector<double> birthdates = plainBirthdates(database());
    for (int day = 0; auto _ : state) {
        const year_month_day picked = sys_days(2000y / January / 1d) + days(++day % kDaysOfYear);
        int found = 0;
        for (const double birthdate : birthdates) {
            const year_month_day born = kDayNought + days(static_cast<int>(birthdate));
            found += born.day() == picked.day() && born.month() == picked.month() ? 1 : 0;
        }
        benchmark::DoNotOptimize(found);
    }
}

// The card of the first person in the list, opened, painted and closed.
void openCard(benchmark::State& state) {
    modCycles::SelectedNameID = mainControls().lstMain->ItemData(0);
    for (auto _ : state) {
        frmZoom card(mainWindow());
        PaintWatch paints(card);
        card.Show();
        paints.waitForPaint();
        card.Unload();
    }
    modCycles::SelectedNameID = 0;
}

// Two reads, and an empty window opened, painted and closed.
void openCardFloor(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(plainBirthdate(database(), 1));
        benchmark::DoNotOptimize(plainCategories(database()));
        Form window(mainWindow());
        PaintWatch paints(window);
        window.Show();
        paints.waitForPaint();
        window.Unload();
    }
}

BENCHMARK(pickBirthday)->UseRealTime();
BENCHMARK(pickBirthdayFloor)->UseRealTime();
BENCHMARK(openCard)->UseRealTime();
BENCHMARK(openCardFloor)->UseRealTime();

}  // namespace
