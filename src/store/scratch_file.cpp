// Files without a wait for the disk.
#include "store/scratch_file.h"

#include <QFile>

#include "store/file_error.h"

void writeScratchFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw fileError(file);
    if (file.write(bytes) == bytes.size() && file.flush())
        return;
    const RuntimeError error = fileError(file);
    file.close();
    QFile::remove(path);
    throw error;
}

void deleteScratchFile(const QString& path) {
    QFile file(path);
    if (!file.remove())
        throw fileError(file);
}
