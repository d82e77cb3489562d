// The judgement of file_condition.h.
#include "store/file_condition.h"

#include <QFileInfo>

#include "runtime/folder_access.h"
#include "store/file_error.h"

namespace {

bool canHaveJournal(const QFileInfo& file) {
    return canMakeFilesIn(file.path()) &&
           !QFileInfo(file.filePath() + QStringLiteral("-journal")).isDir();
}

}  // namespace

FileCondition conditionOf(const QString& path, Access access) {
    const QFileInfo file(path);
    return {.exists = file.exists(),
            .isFolder = file.isDir(),
            .isOther = file.exists() && !file.isDir() && !file.isFile(),
            .isEmpty = file.size() == 0,
            .isWritable = file.isWritable(),
            .canHaveJournal = access == Access::Read || canHaveJournal(file)};
}

std::optional<RuntimeError> objectionTo(const FileCondition& condition, Access access,
                                        const QString& path) {
    if (!condition.exists)
        return fileError(ErrorNumber::FileNotFound, QStringLiteral("there is no file of this name"),
                         path);
    if (condition.isFolder)
        return fileError(ErrorNumber::PathFileAccess, QStringLiteral("it is a folder"), path);
    if (condition.isOther)
        return fileError(ErrorNumber::PathFileAccess, QStringLiteral("it is no file"), path);
    if (condition.isEmpty)
        return fileError(ErrorNumber::InvalidFileFormat, QStringLiteral("the file is empty"), path);
    if (access == Access::Read)
        return std::nullopt;
    if (!condition.isWritable)
        return fileError(ErrorNumber::PermissionDenied, QStringLiteral("the file is read-only"),
                         path);
    if (!condition.canHaveJournal)
        return fileError(ErrorNumber::PathFileAccess,
                         QStringLiteral("no journal can be made in its folder"), path);
    return std::nullopt;
}
