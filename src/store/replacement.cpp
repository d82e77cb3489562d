// The steps of replacement.h.
#include "store/replacement.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <filesystem>

#include "runtime/disk_sync.h"
#include "store/file_error.h"
#include "store/file_names.h"

namespace {

constexpr qint64 kBlock = qint64{1} << 20;  // bytes

// What SQLite leaves beside a database when the machine stops. Beside a new one it would be taken
// for that one's.
const QStringList& companions() {
    static const QStringList kSuffixes{QStringLiteral("-journal"), QStringLiteral("-wal"),
                                       QStringLiteral("-shm")};
    return kSuffixes;
}

bool isThere(const QString& path) {
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

void removeIfThere(const QString& path) {
    QFile file(path);
    if (isThere(path) && !file.remove())
        throw fileError(file);
}

void removeCompanions(const QString& path) {
    for (const QString& suffix : companions())
        removeIfThere(path + suffix);
}

void openToRead(QFile& file) {
    if (!file.open(QIODevice::ReadOnly))
        throw fileError(file);
}

QByteArray readBlock(QFile& file) {
    QByteArray block = file.read(kBlock);
    if (file.error() != QFileDevice::NoError)
        throw fileError(file);
    return block;
}

bool haveSameBytes(const QString& one, const QString& other) {
    QFile first(one);
    QFile second(other);
    if (!QFileInfo(one).isFile() || first.size() != second.size())
        return false;
    openToRead(first);
    openToRead(second);
    while (!first.atEnd()) {
        if (readBlock(first) != readBlock(second))
            return false;
    }
    return true;
}

bool hasBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() != bytes.size())
        return false;
    openToRead(file);
    return file.readAll() == bytes;
}

void writeBlock(QFile& file, const QByteArray& block) {
    if (file.write(block) != block.size() || !file.flush())
        throw fileError(file);
}

void sync(const QFile& file) {
    if (!syncFile(file))
        throw fileError(ErrorNumber::DeviceIo, QStringLiteral("the disk does not keep the file"),
                        file.fileName());
}

void renameOver(const QString& path, const QString& target) {
    std::error_code failure;
    std::filesystem::rename(QFile(path).filesystemFileName(), QFile(target).filesystemFileName(),
                            failure);
    if (failure)
        throw fileError(ErrorNumber::PathFileAccess, QString::fromStdString(failure.message()),
                        target);
}

}  // namespace

Replacement::Replacement(const QString& path)
    : path_(path),
      newPath_(path + QStringLiteral(".new")),
      halfPath_(path + QStringLiteral(".half")) {
    removeIfThere(newPath_);
    removeCompanions(newPath_);
    removeIfThere(halfPath_);
}

Replacement::~Replacement() {
    for (const QString& path : made_)
        QFile::remove(path);
    QFile::remove(newPath_);
    QFile::remove(halfPath_);
    for (const QString& suffix : companions())
        QFile::remove(newPath_ + suffix);
}

QString Replacement::keepOld(const QString& word) {
    QString name = nameFor(word, QFileInfo(path_).suffix(),
                           [this](const QString& path) { return haveSameBytes(path, path_); });
    addUnlessThere(name, [this](QFile& copy) {
        QFile old(path_);
        openToRead(old);
        while (!old.atEnd())
            writeBlock(copy, readBlock(old));
    });
    return name;
}

// A name without regard to case, so that no system takes the file for another.
QString Replacement::nameFor(const QString& word, const QString& suffix,
                             const std::function<bool(const QString&)>& isSame) const {
    const QFileInfo file(path_);
    for (int number = 1;; ++number) {
        const QString mark = number == 1 ? word : QStringLiteral("%1 %2").arg(word).arg(number);
        QString name = nameInFolder(
            file.dir(), QStringLiteral("%1 (%2).%3").arg(file.completeBaseName(), mark, suffix));
        const QString path = file.dir().absoluteFilePath(name);
        if (!isThere(path) || isSame(path))
            return name;
    }
}

QString Replacement::addText(const QString& word, const QByteArray& bytes) {
    QString name = nameFor(word, QStringLiteral("txt"),
                           [&bytes](const QString& path) { return hasBytes(path, bytes); });
    addUnlessThere(name, [&bytes](QFile& file) { writeBlock(file, bytes); });
    return name;
}

// Makes the file under another name first: by its own it is whole.
void Replacement::addUnlessThere(const QString& name, const std::function<void(QFile&)>& write) {
    const QString path = QFileInfo(path_).dir().absoluteFilePath(name);
    if (isThere(path))
        return;
    QFile file(halfPath_);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw fileError(file);
    file.setPermissions(QFile::permissions(path_));
    write(file);
    sync(file);
    file.close();
    if (!file.rename(path))
        throw fileError(file);
    made_ += path;
}

void Replacement::commit() {
    const QString folder = QFileInfo(path_).path();
    QFile::setPermissions(newPath_, QFile::permissions(path_));
    removeCompanions(path_);
    syncFolder(folder);
    renameOver(newPath_, path_);
    made_.clear();
    syncFolder(folder);
}
