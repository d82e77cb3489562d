// Whether a database file can serve, judged before it is used.
#pragma once

#include <QString>
#include <optional>

#include "runtime/errors.h"
#include "store/access.h"

// What the file system says of a path to one who reads it, or reads and writes.
struct FileCondition {
    bool exists = true;
    bool isFolder = false;
    bool isOther = false;  // a pipe or a device, which may never end
    bool isEmpty = false;
    bool isWritable = true;
    bool canHaveJournal = true;  // a file in the same folder, which undoes a write that fails
};

// The condition for that access. A journal is none of a reader's business, so then it is not tried
// for.
FileCondition conditionOf(const QString& path, Access access);

// Why a file in this condition cannot be opened for that access; nothing if it can.
std::optional<RuntimeError> objectionTo(const FileCondition& condition, Access access,
                                        const QString& path);
