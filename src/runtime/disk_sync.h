// Waiting for the disk.
#pragma once

#include <QFile>
#include <QString>

// Waits until the disk has all that was written to an open file and flushed; false where the system
// says that it cannot. Each system has its own way: host_linux.cpp and host_windows.cpp.
bool syncFile(const QFile& file);

// The same of the names in a folder: which files there are, and which have been renamed. Where that
// cannot be waited for, the file system sees to the order of renames itself.
void syncFolder(const QString& folder);
