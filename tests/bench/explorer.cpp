// What the user waits for in the explorer: opened, refreshed, and sorted anew by a column that is
// dragged to the front, each until the grid is painted. Behind each comes its floor.
#include <benchmark/benchmark.h>

#include <QHeaderView>
#include <QTest>
#include <algorithm>

#include "bench/floors.h"
#include "bench/paint_watch.h"
#include "bench/surroundings.h"
#include "controls/grid.h"
#include "controls/picture_button.h"
#include "records/frmExplore.h"

namespace {

// The explorer, open and painted.
class OpenExplorer {
  public:
    OpenExplorer() {
        form_.Show();
        waitForPaint();
    }
    ~OpenExplorer() { form_.Unload(); }
    Q_DISABLE_COPY_MOVE(OpenExplorer)

    void refresh() {
        Q_EMIT form_.findChild<PictureButton*>(QStringLiteral("cmdRefresh"))->Click();
        waitForPaint();
    }

    void dragToFront(int column) {
        QTest::mousePress(header(), Qt::LeftButton, {}, placeOf(column));
        move(placeOf(column) + QPoint(5, 0));
        move(placeOf(0));
        QTest::mouseRelease(header(), Qt::LeftButton, {}, placeOf(0));
        waitForPaint();
    }

  private:
    QWidget* header() { return grid_.horizontalHeader()->viewport(); }

    QPoint placeOf(int column) {
        return {grid_.horizontalHeader()->sectionViewportPosition(column) + 10, 10};
    }

    void move(QPoint place) {
        QMouseEvent event(QEvent::MouseMove, place, header()->mapToGlobal(place), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(header(), &event);
    }

    void waitForPaint() { paints_.waitForPaint(); }

    frmExplore form_{mainWindow()};
    Grid& grid_ = *form_.findChild<Grid*>();
    PaintWatch paints_{*grid_.viewport()};
};

void openExplorer(benchmark::State& state) {
    for (auto _ : state)
        OpenExplorer();
}

void openExplorerFloor(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(plainTable(database()));
}

void refreshExplorer(benchmark::State& state) {
    OpenExplorer explorer;
    for (auto _ : state)
        explorer.refresh();
}

void refreshExplorerFloor(benchmark::State& state) {
    openExplorerFloor(state);
}

// The birth dates come to the front, then the first names, then the names, and so on.
void sortExplorer(benchmark::State& state) {
    constexpr int kThirdColumn = 2;
    OpenExplorer explorer;
    for (auto _ : state)
        explorer.dragToFront(kThirdColumn);
}

// The same three columns, each sorted byte by byte.
void sortExplorerFloor(benchmark::State& state) {
    std::vector<PlainRow> rows = plainTable(database());
    for (std::size_t column = 0; auto _ : state) {
        column = column == 0 ? 2 : column - 1;
        std::stable_sort(rows.begin(), rows.end(), [column](const PlainRow& a, const PlainRow& b) {
            return a[column] < b[column];
        });
    }
}

BENCHMARK(openExplorer)->UseRealTime();
BENCHMARK(openExplorerFloor)->UseRealTime();
BENCHMARK(refreshExplorer)->UseRealTime();
BENCHMARK(refreshExplorerFloor)->UseRealTime();
BENCHMARK(sortExplorer)->UseRealTime();
BENCHMARK(sortExplorerFloor)->UseRealTime();

}  // namespace
