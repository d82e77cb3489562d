// The table of run-time errors.
#include "runtime/errors.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

struct NumberedText {
    ErrorNumber number;
    const char* text;
};

constexpr NumberedText kTexts[] = {
    {ErrorNumber::InvalidProcedureCall, "Invalid procedure call or argument"},
    {ErrorNumber::Overflow, "Overflow"},
    {ErrorNumber::DivisionByZero, "Division by zero"},
    {ErrorNumber::TypeMismatch, "Type mismatch"},
    {ErrorNumber::BadFileName, "Bad file name or number"},
    {ErrorNumber::FileNotFound, "File not found"},
    {ErrorNumber::DeviceIo, "Device I/O error"},
    {ErrorNumber::DiskFull, "Disk full"},
    {ErrorNumber::InputPastEnd, "Input past end of file"},
    {ErrorNumber::PermissionDenied, "Permission denied"},
    {ErrorNumber::PathFileAccess, "Path/File access error"},
    {ErrorNumber::InvalidUseOfNull, "Invalid use of Null"},
    {ErrorNumber::InvalidFileFormat, "Invalid file format"},
    {ErrorNumber::InvalidPropertyValue, "Invalid property value"},
    {ErrorNumber::InvalidPropertyArrayIndex, "Invalid property array index"},
    {ErrorNumber::Automation, "Automation error"},
    {ErrorNumber::Printer, "Printer error"},
    {ErrorNumber::WrongArguments,
     "Arguments are of the wrong type, are out of acceptable range, or are in conflict with one "
     "another."},
    {ErrorNumber::NoCurrentRecord,
     "Either BOF or EOF is True, or the current record has been deleted. Requested operation "
     "requires a current record."},
    {ErrorNumber::NotUpdatable,
     "Current Recordset does not support updating. This may be a limitation of the provider, or of "
     "the selected locktype."},
    {ErrorNumber::ItemNotFound,
     "Item cannot be found in the collection corresponding to the requested name or ordinal."},
    {ErrorNumber::ObjectClosed, "Operation is not allowed when the object is closed."},
    {ErrorNumber::IntegrityViolation,
     "Data value conflicts with the integrity constraints of the field"},
    {ErrorNumber::Cancelled, "Cancel was selected."},
    {ErrorNumber::IndexOutOfBounds, "Index out of bounds"},
    {ErrorNumber::RowNotLocated,
     "Row cannot be located for updating. Some values may have been changed since it was last "
     "read."},
};

}  // namespace

QString errorText(ErrorNumber number) {
    const auto row = std::find_if(std::begin(kTexts), std::end(kTexts),
                                  [number](const auto& text) { return text.number == number; });
    Q_ASSERT(row != std::end(kTexts));
    return QString::fromLatin1(row->text);
}

RuntimeError::RuntimeError(ErrorNumber errorNumber)
    : RuntimeError(errorNumber, errorText(errorNumber)) {}

RuntimeError::RuntimeError(ErrorNumber errorNumber, QString errorDescription)
    : number(static_cast<int>(errorNumber)),
      description(std::move(errorDescription)),
      utf8_(description.toUtf8()) {}
