// What the machine's host does in its own way on Linux.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDirIterator>
#include <QFile>

#include "runtime/disk_sync.h"
#include "runtime/folder_access.h"
#include "runtime/machine_host.h"
#include "runtime/system_help.h"

namespace {

// The executable file of a process, told by the device and the number of the file and not by its
// path; false if the process is gone or not ours to look at.
bool executableOf(const QByteArray& process, struct stat& file) {
    return stat(("/proc/" + process + "/exe").constData(), &file) == 0;
}

}  // namespace

bool MachineHost::anotherInstanceRuns() const {
    struct stat own {};
    if (!executableOf("self", own))
        return false;
    const QByteArray ownNumber = QByteArray::number(getpid());
    QDirIterator processes(QStringLiteral("/proc"), QDir::Dirs | QDir::NoDotAndDotDot);
    while (processes.hasNext()) {
        processes.next();
        const QByteArray number = processes.fileName().toLatin1();
        if (number.isEmpty() || number[0] < '0' || number[0] > '9' || number == ownNumber)
            continue;
        struct stat other {};
        if (executableOf(number, other) && other.st_dev == own.st_dev && other.st_ino == own.st_ino)
            return true;
    }
    return false;
}

std::optional<RegistryValue> MachineHost::registryValue(Long, const QString&,
                                                        const QString&) const {
    return std::nullopt;
}

bool showSystemHelp(quintptr, const QString&) {
    return false;
}

bool canMakeFilesIn(const QString& folder) {
    return access(QFile::encodeName(folder).constData(), W_OK | X_OK) == 0;
}

bool syncFile(const QFile& file) {
    return fsync(file.handle()) == 0;
}

void syncFolder(const QString& folder) {
    const int opened =
        open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened < 0)
        return;
    fsync(opened);
    close(opened);
}
