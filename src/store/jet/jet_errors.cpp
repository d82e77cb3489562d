// The wording of jet_errors.h.
#include "store/jet/jet_errors.h"

#include "store/file_error.h"

JetDamage::JetDamage(const QString& sign)
    : JetFailure(ErrorNumber::InvalidFileFormat, QStringLiteral("the file is damaged, ") + sign) {}

RuntimeError jetError(const JetFailure& failure, const QString& path) {
    return fileError(failure.number, failure.cause, path);
}
