// What the user waits for in the person manager, each until it is painted: the window opened, a
// step to the next person, a letter of the alphabet, and an update. Behind each comes its floor.
#include <benchmark/benchmark.h>

#include <QAbstractButton>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>

#include "bench/floors.h"
#include "bench/paint_watch.h"
#include "bench/surroundings.h"
#include "records/frmAdd.h"

namespace {

constexpr Long kInputs = 6;

// Another text at every number.
QString textFor(int number) {
    return QStringLiteral("Name %1").arg(number % 2);
}

// The person manager, open on the first person. Whatever happens in it changes its status, so that
// is what is watched.
class OpenManager {
  public:
    OpenManager() {
        manager_.Show();
        status_.waitForPaint();
    }
    ~OpenManager() { manager_.Unload(); }
    Q_DISABLE_COPY_MOVE(OpenManager)

    void press(const char* button) {
        manager_.findChild<QAbstractButton*>(QLatin1String(button))->click();
    }
    void pressAndPaint(const char* button) {
        press(button);
        status_.waitForPaint();
    }
    void enter(const char* box, const QString& text) {
        manager_.findChild<QLineEdit*>(QLatin1String(box))->setText(text);
    }

  private:
    frmAdd manager_{mainWindow()};
    PaintWatch status_{*manager_.findChild<QWidget*>(QStringLiteral("lblStatus"))};
};

void openManager(benchmark::State& state) {
    for (auto _ : state)
        const OpenManager manager;
}

void openManagerFloor(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(plainPeople(database()));
        benchmark::DoNotOptimize(plainCategories(database()));
    }
}

void stepPerson(benchmark::State& state) {
    OpenManager manager;
    for (int step = 0; auto _ : state)
        manager.pressAndPaint(step++ % 2 == 0 ? "cmdNext" : "cmdPrevious");
}

// As many boxes of Qt's, filled and painted.
void stepPersonFloor(benchmark::State& state) {
    Form window(mainWindow());
    auto* layout = new QFormLayout(&window);
    std::vector<QLineEdit*> boxes;
    for (int box = 0; box < kInputs; ++box) {
        boxes.push_back(new QLineEdit);
        layout->addRow(boxes.back());
    }
    PaintWatch last(*boxes.back());
    window.Show();
    last.waitForPaint();
    for (int step = 0; auto _ : state) {
        ++step;
        for (QLineEdit* box : boxes)
            box->setText(textFor(step));
        last.waitForPaint();
    }
    window.Unload();
}

// From one end of the alphabet to the other.
void findLetter(benchmark::State& state) {
    OpenManager manager;
    for (int search = 0; auto _ : state)
        manager.pressAndPaint(search++ % 2 == 0 ? "cmdAlphabet_12" : "cmdAlphabet_0");
}

// The names in memory, compared byte by byte.
void findLetterFloor(benchmark::State& state) {
    const std::vector<PlainPerson> people = plainPeople(database());
    for (int search = 0; auto _ : state) {
        const std::string letter = search++ % 2 == 0 ? "y*" : "A*";
        benchmark::DoNotOptimize(
            std::find_if(people.begin(), people.end(),
                         [&](const PlainPerson& person) { return person.text > letter; }));
    }
}

// The first name of the first person, edited and updated.
void updatePerson(benchmark::State& state) {
    OpenManager manager;
    for (int update = 0; auto _ : state) {
        manager.press("cmdEdit");
        manager.enter("txtFields_1", textFor(update++));
        manager.pressAndPaint("cmdUpdate");
    }
}

void updatePersonFloor(benchmark::State& state) {
    PlainWriter writer(database());
    for (int update = 0; auto _ : state)
        writer.setFirstName(1, textFor(update++).toStdString());
}

BENCHMARK(openManager)->UseRealTime();
BENCHMARK(openManagerFloor)->UseRealTime();
BENCHMARK(stepPerson)->UseRealTime();
BENCHMARK(stepPersonFloor)->UseRealTime();
BENCHMARK(findLetter)->UseRealTime();
BENCHMARK(findLetterFloor)->UseRealTime();
BENCHMARK(updatePerson)->UseRealTime();
BENCHMARK(updatePersonFloor)->UseRealTime();

}  // namespace
