// The parsing of connection_string.h.
#include "store/connection_string.h"

#include <QDir>
#include <algorithm>

#include "runtime/errors.h"
#include "store/file_names.h"

namespace {

QDir folderNamed(const QString& name) {
    const QDir asItStands(QDir::fromNativeSeparators(name));
    if (asItStands.exists())
        return asItStands;
    return QDir(QString(name).replace(u'\\', u'/'));
}

}  // namespace

QString dataSource(const QString& connectionString) {
    const QString key = QStringLiteral("Data Source=");
    const qsizetype place = connectionString.indexOf(key, 0, Qt::CaseInsensitive);
    if (place < 0)
        throw RuntimeError(ErrorNumber::BadFileName);
    const QString value = connectionString.mid(place + key.size());
    return value.left(value.lastIndexOf(u';'));
}

QString pathOfDataSource(const QString& source) {
    const qsizetype separator = std::max(source.lastIndexOf(u'\\'), source.lastIndexOf(u'/'));
    const QString folderName = separator < 0 ? QStringLiteral(".") : source.left(separator);
    const QDir folder = folderNamed(folderName + u'/');
    return folder.absoluteFilePath(nameInFolder(folder, source.mid(separator + 1)));
}
