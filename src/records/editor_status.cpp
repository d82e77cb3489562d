// The texts of editor_status.h.
#include "records/editor_status.h"

#include "runtime/numbers.h"

QString recordStatus(Long absolutePosition) {
    return QStringLiteral("Record: ") + numberText(absolutePosition);
}

QString addStatus() {
    return QStringLiteral("Add record");
}

QString editStatus() {
    return QStringLiteral("Edit record");
}
