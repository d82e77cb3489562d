// File names that match without regard to case.
#pragma once

#include <QDir>
#include <QString>

// Whether two names are those of one file.
bool isSameFileName(const QString& one, const QString& other);

// The name that a file really has in its folder: the name as it stands if there is such a file, or
// else that of a file which differs from it in case alone. The name itself if there is neither.
QString nameInFolder(const QDir& folder, const QString& name);
