// How an error of a file is worded.
#pragma once

#include <QFileDevice>
#include <QString>

#include "runtime/errors.h"

// The error of that number with the cause and the file behind its text: "Disk full: no room is
// left, /home/anna/Ondara/Ondara2.mdb".
RuntimeError fileError(ErrorNumber number, const QString& cause, const QString& path);

// The error of a file that could not be opened, read or written: 61 for a full disk, else 75.
RuntimeError fileError(const QFileDevice& file);
