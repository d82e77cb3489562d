// Files by way of another name.
#include "store/whole_file.h"

#include "store/file_error.h"

void writeWholeFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    beginWholeFile(file);
    endWholeFile(file, bytes);
}

void beginWholeFile(QSaveFile& file) {
    if (!file.open(QIODevice::WriteOnly))
        throw fileError(file);
}

void endWholeFile(QSaveFile& file, const QByteArray& bytes) {
    file.write(bytes);
    // To commit alone would be to rename a file that a full disk has cut short.
    if (!file.flush() || !file.commit())
        throw fileError(file);
}
