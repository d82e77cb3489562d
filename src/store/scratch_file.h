// The writing of a file that is deleted again at once.
#pragma once

#include <QByteArray>
#include <QString>

// Unlike whole_file.h it does not wait for the disk: were the machine to stop, the file would be of
// no use to anybody. Where it cannot be written, nothing is left of it. The error is that of
// file_error.h: 61 for a full disk, else 75.
void writeScratchFile(const QString& path, const QByteArray& bytes);

void deleteScratchFile(const QString& path);
