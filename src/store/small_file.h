// Ondara's small files: those of favourites and groups, in the program's directory.
#pragma once

#include <QSaveFile>
#include <QString>
#include <QStringList>

// File names match without regard to case on every system: an existing file whose name differs in
// case alone is the same file. Every error is worded as file_error.h says: 52 for what is no name
// of a file, 53 for a file that is gone, 75 for a folder or what may not be read or written, 321
// for a file much too large, 61 for a full disk.

// The text of a file.
QString readSmallFile(const QString& folder, const QString& fileName);

// Writes a file whose text is not known yet, under another name first: the file holds all of the
// text or is as it was. Opening it raises what stands against the file, before any text is made. A
// name that one of the systems does not take raises 52 on all of them ("/" and ":" and their like,
// and the names of devices), so that a folder of files can move from one to another.
class SmallFileWriter {
  public:
    SmallFileWriter(const QString& folder, const QString& fileName);

    // Writes the text, which is all that the file gets. Without it the file is as it was.
    void write(const QString& text);

  private:
    QSaveFile file_;
};

// The same at once.
void writeSmallFile(const QString& folder, const QString& fileName, const QString& text);

void deleteSmallFile(const QString& folder, const QString& fileName);

// The names of the files with this extension (".ofp"), in whatever case, in no order to rely on.
QStringList smallFiles(const QString& folder, const QString& extension);
