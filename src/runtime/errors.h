// Run-time errors: what goes wrong in the world, with the classical numbers and texts.
#pragma once

#include <QString>
#include <exception>

// The numbers of the errors that Ondara raises.
enum class ErrorNumber : int {
    InvalidProcedureCall = 5,
    Overflow = 6,
    DivisionByZero = 11,
    TypeMismatch = 13,
    BadFileName = 52,
    FileNotFound = 53,
    DeviceIo = 57,
    DiskFull = 61,
    InputPastEnd = 62,
    PermissionDenied = 70,
    PathFileAccess = 75,
    InvalidUseOfNull = 94,
    InvalidFileFormat = 321,
    InvalidPropertyValue = 380,
    InvalidPropertyArrayIndex = 381,
    Automation = 440,
    Printer = 482,
    WrongArguments = 3001,
    NoCurrentRecord = 3021,
    NotUpdatable = 3251,
    ItemNotFound = 3265,
    ObjectClosed = 3704,
    IntegrityViolation = 3719,
    Cancelled = 32755,
    IndexOutOfBounds = 35600,
    RowNotLocated = -2147217864,
};

// The classical text of an error. Only texts of the record sets and of the dialogs may end
// with a full stop.
QString errorText(ErrorNumber number);

// An error of the world: a file that is gone, a value that is missing, a number out of range. It
// travels to a trap or, if there is none, to the event boundary, which ends the program.
// A defect of the program is none of these; it is an assertion.
struct RuntimeError : std::exception {
    explicit RuntimeError(ErrorNumber errorNumber);
    RuntimeError(ErrorNumber errorNumber, QString errorDescription);

    const char* what() const noexcept override { return utf8_.constData(); }

    int number;
    QString description;

  private:
    QByteArray utf8_;
};
