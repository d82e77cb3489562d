// Run-time errors as the outcome of a step.
#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "runtime/errors.h"

// The number of the run-time error that the steps raise; 0 if they raise none.
template <class Steps>
int errorOf(Steps&& steps) {
    try {
        std::invoke(std::forward<Steps>(steps));
        return 0;
    } catch (const RuntimeError& error) {
        return error.number;
    }
}

// The description of that error; "" if there is none.
template <class Steps>
QString descriptionOf(Steps&& steps) {
    try {
        std::invoke(std::forward<Steps>(steps));
        return {};
    } catch (const RuntimeError& error) {
        return error.description;
    }
}

// What a trap says where a record set has no current row and an operation needs one.
inline QString noCurrentRecord() {
    return QStringLiteral(
        "Either BOF or EOF is True, or the current record has been deleted. Requested operation "
        "requires a current record");
}

// The run-time's box for the same.
inline QString noCurrentRecordBox() {
    return QStringLiteral("Run-time error '3021':\n\n") + noCurrentRecord() + u'.';
}
