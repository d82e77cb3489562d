// What the user waits for in the import of 5,000 people: their names listed until they are painted,
// and all of them written, each by itself. Behind each comes its floor.
#include <benchmark/benchmark.h>

#include <QAbstractButton>
#include <QFile>
#include <QFileDialog>
#include <QListWidget>
#include <QTimer>
#include <chrono>

#include "bench/floors.h"
#include "bench/paint_watch.h"
#include "bench/surroundings.h"
#include "controls/check_list_box.h"
#include "import/frmImport.h"
#include "support/people.h"

namespace {

constexpr Long kOldPeople = 5'000;

// An old database for as long as this lives.
class OldDatabase {
  public:
    OldDatabase() {
        runSql(path(), QStringLiteral("CREATE TABLE Data (Name, birthdate REAL);"
                                      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 "
                                      "FROM n WHERE i < %1) INSERT INTO Data "
                                      "SELECT 'Person ' || i || ', Ada', i FROM n")
                           .arg(kOldPeople));
    }
    ~OldDatabase() { QFile::remove(path()); }
    Q_DISABLE_COPY_MOVE(OldDatabase)

    static QString path() { return App::Path() + QStringLiteral("/Names.mdb"); }
};

// Measures from its making on.
class Watch {
  public:
    double seconds() const {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
    }

  private:
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

class OpenImport {
  public:
    OpenImport() { form_.Show(); }
    ~OpenImport() { form_.Unload(); }
    Q_DISABLE_COPY_MOVE(OpenImport)

    // Chooses the old database in the dialog; the time runs from the answer on.
    Watch browse() {
        Watch sinceAnswer;
        QTimer::singleShot(0, &form_, [&] {
            auto* dialog = form_.findChild<QFileDialog*>();
            dialog->selectFile(OldDatabase::path());
            sinceAnswer = {};
            QMetaObject::invokeMethod(dialog, "accept");
        });
        press("cmdBrowse");
        return sinceAnswer;
    }

    void press(const char* button) { child<QAbstractButton>(button).click(); }

    // Everybody is ready to be written.
    void goToConfirmation() {
        browse();
        press("cmdNext");
        child<CheckListBox>("lstImport").setAllSelected(true);
        press("cmdNext");
        press("cmdAssign");
        press("cmdNext");
    }

    template <class Child>
    Child& child(const char* name) {
        return *form_.findChild<Child*>(QLatin1String(name));
    }

  private:
    OldDatabase old_;
    frmImport form_{mainWindow()};
};

// From the answer of the dialog until the selection is painted.
void listOldNames(benchmark::State& state) {
    for (auto _ : state) {
        OpenImport import;
        PaintWatch list(*import.child<CheckListBox>("lstImport").viewport());
        const Watch watch = import.browse();
        import.press("cmdNext");
        list.waitForPaint();
        state.SetIterationTime(watch.seconds());
    }
}

// The same names in a list of Qt's.
void listOldNamesFloor(benchmark::State& state) {
    const OldDatabase old;
    QListWidget list(mainWindow());
    list.setWindowFlag(Qt::Dialog);
    list.setUniformItemSizes(true);
    list.show();
    PaintWatch paints(*list.viewport());
    for (auto _ : state) {
        const Watch watch;
        list.clear();
        for (const std::string& name : plainOldNames(OldDatabase::path()))
            list.addItem(QString::fromStdString(name));
        paints.waitForPaint();
        state.SetIterationTime(watch.seconds());
    }
}

Value lastKey() {
    return valueOf(database(), QStringLiteral("SELECT max(NameID) FROM Data"));
}

void forgetThoseBehind(const Value& key) {
    runSql(database(), QStringLiteral("DELETE FROM Data WHERE NameID > %1").arg(key.toLong()));
}

void importPeople(benchmark::State& state) {
    const Value last = lastKey();
    for (auto _ : state) {
        OpenImport import;
        import.goToConfirmation();
        const Watch watch;
        import.press("cmdNext");
        state.SetIterationTime(watch.seconds());
        forgetThoseBehind(last);
    }
}

// As many rows, each written durably by itself.
void importPeopleFloor(benchmark::State& state) {
    const Value last = lastKey();
    for (auto _ : state) {
        const Watch watch;
        PlainWriter writer(database());
        for (Long person = 0; person < kOldPeople; ++person)
            writer.addPerson("Person " + std::to_string(person), "Ada", person);
        state.SetIterationTime(watch.seconds());
        forgetThoseBehind(last);
    }
}

BENCHMARK(listOldNames)->UseManualTime();
BENCHMARK(listOldNamesFloor)->UseManualTime();
// Each of these waits for the disk for seconds.
BENCHMARK(importPeople)->UseManualTime()->Iterations(1)->Repetitions(3);
BENCHMARK(importPeopleFloor)->UseManualTime()->Iterations(1)->Repetitions(3);

}  // namespace
