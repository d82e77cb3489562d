// What may be done in a folder.
#pragma once

#include <QString>

// Whether files can be made in the folder. Each system has its own way to find out:
// host_linux.cpp and host_windows.cpp.
bool canMakeFilesIn(const QString& folder);
