// Files that tests write and read as they are.
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>

// Writes a file, over an old one. Ends the test program if that is not possible.
inline void makeFile(const QString& path, const QByteArray& bytes = {}) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(path));
}

// What a file holds; "no such file" where there is none.
inline QByteArray fileBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

// The names of all that is in a folder, hidden ones included.
inline QStringList filesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                                  QDir::Name);
}
