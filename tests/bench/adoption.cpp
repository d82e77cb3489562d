// The adoption of an old database with 40,000 people, some of them with long notes.
#include "store/adoption.h"

#include <benchmark/benchmark.h>

#include <QFile>

#include "support/old_tables.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

namespace {

QByteArray peopleFile() {
    constexpr int kPeople = 40'000;
    constexpr int kCategories = 20;
    constexpr int kDays = 45'000;
    constexpr int kNotes = 10;  // of so many people one has a long note
    BuiltTable people = oldPeople({});
    people.hasLargeMap = true;
    people.hasCompressedTexts = true;
    const QString notes = QStringLiteral("A line of a note.\r\n").repeated(50);
    for (int i = 1; i <= kPeople; ++i)
        people.rows.push_back({{i, QStringLiteral("Müller %1").arg(i), QStringLiteral("Jürgen"),
                                static_cast<double>(i % kDays), Value(i % 2 == 0),
                                1 + i % kCategories, i % kNotes == 0 ? Value(notes) : Value()}});
    BuiltTable categories = oldCategories({});
    for (int i = 1; i <= kCategories; ++i)
        categories.rows.push_back({{i, QStringLiteral("Category %1").arg(i)}});
    return builtJet(4, {categories, people}).bytes;
}

void adoptEverybody(benchmark::State& state) {
    RecordingHost host;
    const ProgramDirectory directory(host);
    const QByteArray old = peopleFile();
    for (auto _ : state) {
        state.PauseTiming();
        QFile::remove(directory.path(QStringLiteral("Ondara2 (Jet).mdb")));
        makeFile(directory.people(), old);
        state.ResumeTiming();
        adoptPeople();
    }
}

BENCHMARK(adoptEverybody)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
