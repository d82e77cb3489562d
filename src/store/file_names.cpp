// The search of file_names.h.
#include "store/file_names.h"

#include <algorithm>

QString nameInFolder(const QDir& folder, const QString& name) {
    if (folder.exists(name))
        return name;
    const QStringList entries = folder.entryList(QDir::Files | QDir::Hidden, QDir::Name);
    const auto match = std::find_if(entries.begin(), entries.end(), [&name](const QString& entry) {
        return entry.compare(name, Qt::CaseInsensitive) == 0;
    });
    return match == entries.end() ? name : *match;
}
