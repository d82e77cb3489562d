// The table of run-time errors.
#include "runtime/errors.h"

#include <utility>

QString errorText(ErrorNumber number) {
    switch (number) {
        case ErrorNumber::InvalidProcedureCall:
            return QStringLiteral("Invalid procedure call or argument");
        case ErrorNumber::Overflow:
            return QStringLiteral("Overflow");
        case ErrorNumber::DivisionByZero:
            return QStringLiteral("Division by zero");
        case ErrorNumber::TypeMismatch:
            return QStringLiteral("Type mismatch");
        case ErrorNumber::BadFileName:
            return QStringLiteral("Bad file name or number");
        case ErrorNumber::FileNotFound:
            return QStringLiteral("File not found");
        case ErrorNumber::DeviceIo:
            return QStringLiteral("Device I/O error");
        case ErrorNumber::DiskFull:
            return QStringLiteral("Disk full");
        case ErrorNumber::PermissionDenied:
            return QStringLiteral("Permission denied");
        case ErrorNumber::PathFileAccess:
            return QStringLiteral("Path/File access error");
        case ErrorNumber::InvalidUseOfNull:
            return QStringLiteral("Invalid use of Null");
        case ErrorNumber::InvalidFileFormat:
            return QStringLiteral("Invalid file format");
        case ErrorNumber::InvalidPropertyValue:
            return QStringLiteral("Invalid property value");
        case ErrorNumber::InvalidPropertyArrayIndex:
            return QStringLiteral("Invalid property array index");
        case ErrorNumber::Automation:
            return QStringLiteral("Automation error");
        case ErrorNumber::Printer:
            return QStringLiteral("Printer error");
        case ErrorNumber::WrongArguments:
            return QStringLiteral(
                "Arguments are of the wrong type, are out of acceptable range, or are in conflict "
                "with one another.");
        case ErrorNumber::NoCurrentRecord:
            return QStringLiteral(
                "Either BOF or EOF is True, or the current record has been deleted. Requested "
                "operation requires a current record.");
        case ErrorNumber::NotUpdatable:
            return QStringLiteral(
                "Current Recordset does not support updating. This may be a limitation of the "
                "provider, or of the selected locktype.");
        case ErrorNumber::ItemNotFound:
            return QStringLiteral(
                "Item cannot be found in the collection corresponding to the requested name or "
                "ordinal.");
        case ErrorNumber::ObjectClosed:
            return QStringLiteral("Operation is not allowed when the object is closed.");
        case ErrorNumber::IntegrityViolation:
            return QStringLiteral(
                "Data value conflicts with the integrity constraints of the field");
        case ErrorNumber::RowNotLocated:
            return QStringLiteral(
                "Row cannot be located for updating. Some values may have been changed since it "
                "was last read.");
    }
    Q_UNREACHABLE();
}

RuntimeError::RuntimeError(ErrorNumber errorNumber)
    : RuntimeError(errorNumber, errorText(errorNumber)) {}

RuntimeError::RuntimeError(ErrorNumber errorNumber, QString errorDescription)
    : number(static_cast<int>(errorNumber)),
      description(std::move(errorDescription)),
      utf8_(description.toUtf8()) {}
