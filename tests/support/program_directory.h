// A program directory for one test.
#pragma once

#include <QString>
#include <QTemporaryDir>

class RecordingHost;

// A fresh directory that the host names as the program's, with both databases in it: their tables
// as the program ships them, and no rows. It goes with everything in it when the test ends.
class ProgramDirectory {
  public:
    explicit ProgramDirectory(RecordingHost& host);

    // The path of a file in the directory.
    QString path(const QString& fileName) const { return directory_.filePath(fileName); }

    QString people() const { return path(QStringLiteral("Ondara2.mdb")); }
    QString interpretation() const { return path(QStringLiteral("Interp.mdb")); }

    // Fills the interpretation database with the texts that the program ships.
    void addInterpretations();

    // Makes the person database anew without its constraints, so that a birth date can be Null and
    // a category can be one that does not exist.
    void dropConstraints();

  private:
    QTemporaryDir directory_;
};
