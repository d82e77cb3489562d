// What goes wrong in SQLite, as run-time errors.
#pragma once

#include <SQLiteCpp/Exception.h>

#include <QString>
#include <functional>
#include <utility>

#include "runtime/errors.h"

// The run-time error of a failure in the database file at that path.
RuntimeError storeError(const SQLite::Exception& failure, const QString& path);

// Runs the steps and raises their failure in SQLite as the run-time error that it is.
template <class Steps>
decltype(auto) raisingStoreErrors(const QString& path, Steps&& steps) {
    try {
        return std::invoke(std::forward<Steps>(steps));
    } catch (const SQLite::Exception& failure) {
        throw storeError(failure, path);
    }
}
