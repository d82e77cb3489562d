// The one translation of SQLite's result codes.
#include "store/sqlite_errors.h"

#include <sqlite3.h>

#include "store/file_error.h"

namespace {

ErrorNumber numberOf(int resultCode) {
    switch (resultCode) {
        case SQLITE_FULL:
            return ErrorNumber::DiskFull;
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
        case SQLITE_READONLY:
        case SQLITE_PERM:
            return ErrorNumber::PermissionDenied;
        case SQLITE_CANTOPEN:
            return ErrorNumber::PathFileAccess;
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            return ErrorNumber::InvalidFileFormat;
        case SQLITE_IOERR:
            return ErrorNumber::DeviceIo;
        case SQLITE_CONSTRAINT:
            return ErrorNumber::IntegrityViolation;
        default:
            return ErrorNumber::Automation;
    }
}

// SQLite's own words, but for those that people meet when they enter data.
QString causeOf(const SQLite::Exception& failure) {
    QString message = QString::fromUtf8(failure.what());
    switch (failure.getExtendedErrorCode()) {
        case SQLITE_CONSTRAINT_NOTNULL:
            return message.section(QStringLiteral(": "), 1) + QStringLiteral(" has no value");
        case SQLITE_CONSTRAINT_FOREIGNKEY:
            return QStringLiteral("the row refers to another that does not exist");
        default:
            return message;
    }
}

}  // namespace

RuntimeError storeError(const SQLite::Exception& failure, const QString& path) {
    constexpr int kPrimaryCode = 0xFF;
    return fileError(numberOf(failure.getErrorCode() & kPrimaryCode), causeOf(failure), path);
}
