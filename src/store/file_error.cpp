// The wording of file_error.h.
#include "store/file_error.h"

#include <QDir>

RuntimeError fileError(ErrorNumber number, const QString& cause, const QString& path) {
    return RuntimeError(
        number,
        QStringLiteral("%1: %2, %3").arg(errorText(number), cause, QDir::toNativeSeparators(path)));
}

RuntimeError fileError(const QFileDevice& file) {
    const ErrorNumber number = file.error() == QFileDevice::ResourceError
                                   ? ErrorNumber::DiskFull
                                   : ErrorNumber::PathFileAccess;
    return fileError(number, file.errorString(), file.fileName());
}
