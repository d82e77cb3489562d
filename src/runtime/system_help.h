// The help viewer of the system.
#pragma once

#include <QString>

// Shows a help file in the system's own viewer, which belongs to the window of this handle. Returns
// false where the system has no viewer; a file that is not there is the viewer's affair. Each
// system has its own way: host_linux.cpp and host_windows.cpp.
bool showSystemHelp(quintptr window, const QString& fileName);
