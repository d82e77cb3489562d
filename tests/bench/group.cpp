// What the user waits for in the group comparison: a saved group of ten thousand on the list, and a
// group of a thousand, or of everybody where they are fewer, calculated; each until it is painted.
// Behind each comes its floor.
#include <benchmark/benchmark.h>

#include <QAbstractButton>
#include <QFile>
#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

#include "analyses/frmGroup.h"
#include "bench/floors.h"
#include "bench/paint_watch.h"
#include "bench/surroundings.h"
#include "controls/button_bar.h"
#include "controls/file_list_box.h"
#include "controls/grid.h"
#include "cycles/cycle.h"
#include "cycles/date.h"
#include "runtime/host.h"
#include "store/group_files.h"

namespace {

constexpr Long kCompared = 1'000;
constexpr Long kSaved = 10'000;

Long compared() {
    return std::min(kCompared, static_cast<Long>(mainControls().lstMain->ListCount()));
}

// A group file for as long as this lives: the first numbers, under names that come in no order.
class SavedGroup {
  public:
    explicit SavedGroup(Long members) {
        constexpr Long kStep = 7'919;  // a prime
        GroupWriter file(kName);
        for (Long nameId = 1; nameId <= members; ++nameId)
            file.Write({nameId, QStringLiteral("Member %1, Ada").arg(nameId * kStep % kSaved)});
        file.Close();
    }
    ~SavedGroup() { deleteGroupFile(kName); }
    Q_DISABLE_COPY_MOVE(SavedGroup)

    static std::string path() { return (App::Path() + u'/' + kName).toStdString(); }

  private:
    static inline const QString kName = QStringLiteral("Bench.ofg");
};

// The tab of saved groups with one of them selected, open and painted.
class OpenGroups {
  public:
    explicit OpenGroups(Long members) : saved_(members) {
        form_.Show();
        Q_EMIT form_.findChild<ButtonBar*>()->Click(1, 2);
        PaintWatch(files()).waitForPaint();
        files().setListIndex(0);
    }
    ~OpenGroups() { form_.Unload(); }
    Q_DISABLE_COPY_MOVE(OpenGroups)

    void load() { Q_EMIT files().DblClick(); }
    void press(const char* button) { child<QAbstractButton>(button).click(); }

    template <class Child>
    Child& child(const char* name) {
        return *form_.findChild<Child*>(QLatin1String(name));
    }

  private:
    FileListBox& files() { return child<FileListBox>("flFaves"); }

    SavedGroup saved_;
    frmGroup form_{mainWindow()};
};

void loadGroup(benchmark::State& state) {
    OpenGroups groups(kSaved);
    PaintWatch list(*groups.child<ListBox>("lstGroup").viewport());
    for (auto _ : state) {
        groups.load();
        list.waitForPaint();
    }
}

// The lines of the file, sorted byte by byte.
void loadGroupFloor(benchmark::State& state) {
    const SavedGroup saved(kSaved);
    for (auto _ : state) {
        std::ifstream file(SavedGroup::path());
        std::vector<std::string> lines;
        for (std::string line; std::getline(file, line);)
            lines.push_back(line.substr(line.find('"')));
        std::sort(lines.begin(), lines.end());
        benchmark::DoNotOptimize(lines);
    }
}

void calculateGroup(benchmark::State& state) {
    OpenGroups groups(compared());
    groups.load();
    PaintWatch grid(*groups.child<Grid>("grdGroup").viewport());
    for (auto _ : state) {
        groups.press("cmdTransfer");
        grid.waitForPaint();
    }
}

// A read for each, and their values on three days.
void calculateGroupFloor(benchmark::State& state) {
    const Date date = host().today();
    for (auto _ : state) {
        double sum = 0;
        for (const double birthdate : plainBirthdatesOfFirst(database(), compared())) {
            const Long days = modCycles::DayCount(Date(birthdate), date);
            for (const char* cycle : {"emot", "phys", "intel"}) {
                for (const Long day : {days - 1, days, days + 1})
                    sum += modCycles::CalcCycle(day, 0, cycle);
            }
        }
        benchmark::DoNotOptimize(sum);
    }
}

BENCHMARK(loadGroup)->UseRealTime();
BENCHMARK(loadGroupFloor)->UseRealTime();
BENCHMARK(calculateGroup)->UseRealTime();
BENCHMARK(calculateGroupFloor)->UseRealTime();

}  // namespace
