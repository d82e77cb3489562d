// The reading and the writing of small_file.h.
#include "store/small_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>

#include "store/file_error.h"
#include "store/file_names.h"
#include "store/small_text.h"
#include "store/whole_file.h"

namespace {

constexpr qint64 kLargestFile = qint64{64} * 1024 * 1024;  // bytes; half holds a million records

bool isInFileName(QChar character) {
    return character >= u' ' && !QStringLiteral("\\/:*?\"<>|").contains(character);
}

// Whether Windows takes the name for a device, whatever its extension.
bool namesDevice(const QString& fileName) {
    static const std::array kDevices{QStringLiteral("con"), QStringLiteral("prn"),
                                     QStringLiteral("aux"), QStringLiteral("nul")};
    static const std::array kNumberedDevices{QStringLiteral("com"), QStringLiteral("lpt")};
    const QString name = fileName.section(u'.', 0, 0).trimmed().toLower();
    const auto isNumbered = [&name](const QString& device) {
        return name.size() == 4 && name.startsWith(device) && name[3] >= u'1' && name[3] <= u'9';
    };
    return std::find(kDevices.begin(), kDevices.end(), name) != kDevices.end() ||
           std::any_of(kNumberedDevices.begin(), kNumberedDevices.end(), isNumbered);
}

// Whether every system can have a file of this name.
bool isFileName(const QString& name) {
    return std::all_of(name.begin(), name.end(), isInFileName) && !namesDevice(name);
}

RuntimeError badName(const QString& fileName) {
    return fileError(ErrorNumber::BadFileName, QStringLiteral("no file can have this name"),
                     fileName);
}

// Raises 52 for what is no name, or leads out of the folder.
QString pathOf(const QString& folder, const QString& fileName) {
    if (fileName.isEmpty() || QFileInfo(fileName).fileName() != fileName)
        throw badName(fileName);
    const QDir directory(folder);
    return directory.absoluteFilePath(nameInFolder(directory, fileName));
}

// Raises 53 for a file that is gone, 75 for what is there and is no file.
QString pathOfExisting(const QString& folder, const QString& fileName) {
    QString path = pathOf(folder, fileName);
    const QFileInfo file(path);
    if (!file.exists())
        throw fileError(ErrorNumber::FileNotFound, QStringLiteral("there is no file of this name"),
                        path);
    if (!file.isFile())
        throw fileError(ErrorNumber::PathFileAccess, QStringLiteral("it is no file"), path);
    return path;
}

// Raises 52 also for a name that another system does not take.
QString pathToWrite(const QString& folder, const QString& fileName) {
    if (!isFileName(fileName))
        throw badName(fileName);
    return pathOf(folder, fileName);
}

}  // namespace

QString readSmallFile(const QString& folder, const QString& fileName) {
    const QString path = pathOfExisting(folder, fileName);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw fileError(file);
    if (file.size() > kLargestFile)
        throw fileError(ErrorNumber::InvalidFileFormat, QStringLiteral("the file is too large"),
                        path);
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw fileError(file);
    return decodeSmallText(bytes);
}

SmallFileWriter::SmallFileWriter(const QString& folder, const QString& fileName)
    : file_(pathToWrite(folder, fileName)) {
    beginWholeFile(file_);
}

void SmallFileWriter::write(const QString& text) {
    endWholeFile(file_, encodeSmallText(text));
}

void writeSmallFile(const QString& folder, const QString& fileName, const QString& text) {
    SmallFileWriter(folder, fileName).write(text);
}

void deleteSmallFile(const QString& folder, const QString& fileName) {
    const QString path = pathOfExisting(folder, fileName);
    QFile file(path);
    if (!file.remove())
        throw fileError(file);
}

QStringList smallFiles(const QString& folder, const QString& extension) {
    QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden);
    names.removeIf([&extension](const QString& name) {
        return !name.endsWith(extension, Qt::CaseInsensitive);
    });
    return names;
}
