// Files that tests write as they are.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

// Writes a file, over an old one. Ends the test program if that is not possible.
inline void makeFile(const QString& path, const QByteArray& bytes = {}) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(path));
}
