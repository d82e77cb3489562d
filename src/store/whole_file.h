// The writing of a file as a whole: it holds all of its bytes, or is as it was.
#pragma once

#include <QByteArray>
#include <QSaveFile>
#include <QString>

// The error is that of file_error.h: 61 for a full disk, else 75.
void writeWholeFile(const QString& path, const QByteArray& bytes);

// The same in two steps: the first raises what stands against the file.
void beginWholeFile(QSaveFile& file);
void endWholeFile(QSaveFile& file, const QByteArray& bytes);
