// The comparison and the search of file_names.h.
#include "store/file_names.h"

#include <algorithm>

bool isSameFileName(const QString& one, const QString& other) {
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

QString nameInFolder(const QDir& folder, const QString& name) {
    if (folder.exists(name))
        return name;
    const QStringList entries = folder.entryList(QDir::Files | QDir::Hidden, QDir::Name);
    const auto match = std::find_if(entries.begin(), entries.end(), [&name](const QString& entry) {
        return isSameFileName(entry, name);
    });
    return match == entries.end() ? name : *match;
}
