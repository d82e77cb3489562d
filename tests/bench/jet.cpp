// The reading of an old database with 100,000 people, opened anew every time.
#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include "store/jet/jet_file.h"
#include "support/files.h"
#include "support/jet_builder.h"

namespace {

QByteArray peopleFile(int version) {
    constexpr int kPeople = 100'000;
    constexpr int kDays = 45'000;
    BuiltTable table{QStringLiteral("Data"),
                     {{QStringLiteral("ID"), JetType::Int32},
                      {QStringLiteral("Name"), JetType::Text, 100},
                      {QStringLiteral("birthdate"), JetType::Date}},
                     {}};
    table.hasLargeMap = true;
    table.hasCompressedTexts = true;
    for (int i = 1; i <= kPeople; ++i)
        table.rows.push_back(
            {{i, QString::fromUtf8("Müller, Jürgen %1").arg(i), static_cast<double>(i % kDays)}});
    return builtJet(version, {table}).bytes;
}

void readPeople(benchmark::State& state, int version) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Names.mdb"));
    const QByteArray bytes = peopleFile(version);
    makeFile(path, bytes);
    for (auto _ : state) {
        JetRows rows = JetFile(path)
                           .table(QStringLiteral("Data"))
                           .rows({QStringLiteral("Name"), QStringLiteral("birthdate")});
        while (rows.next())
            benchmark::DoNotOptimize(rows.values().data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * bytes.size());
}

void readJet3(benchmark::State& state) {
    readPeople(state, 3);
}

void readJet4(benchmark::State& state) {
    readPeople(state, 4);
}

BENCHMARK(readJet3)->Unit(benchmark::kMillisecond);
BENCHMARK(readJet4)->Unit(benchmark::kMillisecond);

}  // namespace
