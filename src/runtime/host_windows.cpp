// What the machine's host does in its own way on Windows.
#include <QString>
#include <QTemporaryFile>
#include <array>
#include <memory>

#include "runtime/folder_access.h"
#include "runtime/machine_host.h"

// windows.h must come before the header that depends on it.
#include <windows.h>
// clang-format off
#include <tlhelp32.h>
// clang-format on

namespace {

struct CloseHandleOf {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<HANDLE, CloseHandleOf>;

// The full path of the executable file of a process; empty if it is gone or not ours to look at.
QString executableOf(DWORD process) {
    const Handle handle(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process));
    std::array<wchar_t, 32768> path{};
    auto length = static_cast<DWORD>(path.size());
    if (!handle || !QueryFullProcessImageNameW(handle.get(), 0, path.data(), &length))
        return {};
    return QString::fromWCharArray(path.data(), static_cast<qsizetype>(length));
}

}  // namespace

bool MachineHost::anotherInstanceRuns() const {
    const DWORD own = GetCurrentProcessId();
    const QString ownExecutable = executableOf(own);
    const Handle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    if (snapshot.get() == INVALID_HANDLE_VALUE || ownExecutable.isEmpty())
        return false;
    PROCESSENTRY32W process{};
    process.dwSize = sizeof process;
    for (BOOL more = Process32FirstW(snapshot.get(), &process); more;
         more = Process32NextW(snapshot.get(), &process)) {
        if (process.th32ProcessID != own &&
            executableOf(process.th32ProcessID).compare(ownExecutable, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

// Tried and not asked: a folder's read-only attribute says nothing of it.
bool canMakeFilesIn(const QString& folder) {
    return QTemporaryFile(folder + QStringLiteral("/XXXXXX")).open();
}
