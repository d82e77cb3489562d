// The making of a test's program directory.
#include "support/program_directory.h"

#include <QFile>

#include "support/people.h"
#include "support/recording_host.h"

namespace {

QString textOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

}  // namespace

ProgramDirectory::ProgramDirectory(RecordingHost& host) {
    host.setProgramDirectory(directory_.path());
    runSql(people(), textOf(QStringLiteral(ONDARA_DATA "/people_schema.sql")));
    runSql(interpretation(), textOf(QStringLiteral(ONDARA_DATA "/interpretation_schema.sql")));
}

void ProgramDirectory::addInterpretations() {
    runSql(interpretation(), textOf(QStringLiteral(ONDARA_DATA "/interpretations.sql")));
}

void ProgramDirectory::dropConstraints() {
    QFile::remove(people());
    runSql(people(), QStringLiteral(R"(
        CREATE TABLE Category (
            CatID INTEGER PRIMARY KEY AUTOINCREMENT,
            Category TEXT COLLATE NOCASE);
        CREATE TABLE Data (
            NameID INTEGER PRIMARY KEY AUTOINCREMENT,
            Name TEXT COLLATE NOCASE,
            FName TEXT COLLATE NOCASE,
            Birthdate REAL,
            Gender INTEGER,
            CatID INTEGER,
            Notes TEXT COLLATE NOCASE);)"));
}
