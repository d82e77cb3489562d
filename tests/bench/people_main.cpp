// Makes a person database for the benchmarks.
// usage: bench_people SCHEMA DATABASE PEOPLE
#include <QFile>

#include "support/people.h"

int main(int argc, char** argv) {
    constexpr Long kCategories = 200;
    if (argc != 4)
        return 2;
    QFile schema(QString::fromLocal8Bit(argv[1]));
    if (!schema.open(QIODevice::ReadOnly))
        return 1;
    const QString database = QString::fromLocal8Bit(argv[2]);
    runSql(database, QString::fromUtf8(schema.readAll()));
    addManyPeople(database, QByteArray(argv[3]).toInt(), kCategories);
}
