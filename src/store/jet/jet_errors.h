// What goes wrong in a Jet file, as run-time errors.
#pragma once

#include <QString>
#include <exception>
#include <functional>
#include <utility>

#include "runtime/errors.h"

// Why a Jet file cannot be read. It knows no path: that is put to it where the reader's callers
// are, as part of the run-time error that it becomes.
struct JetFailure : std::exception {
    JetFailure(ErrorNumber errorNumber, QString errorCause)
        : number(errorNumber), cause(std::move(errorCause)) {}

    ErrorNumber number;
    QString cause;
};

// The failure of a file that contradicts itself.
struct JetDamage : JetFailure {
    explicit JetDamage(const QString& sign);
};

// The run-time error of a failure in the file at that path.
RuntimeError jetError(const JetFailure& failure, const QString& path);

// Runs the steps and raises their failure as the run-time error that it is.
template <class Steps>
decltype(auto) raisingJetErrors(const QString& path, Steps&& steps) {
    try {
        return std::invoke(std::forward<Steps>(steps));
    } catch (const JetFailure& failure) {
        throw jetError(failure, path);
    }
}
