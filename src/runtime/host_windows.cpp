// What the machine's host does in its own way on Windows.
#include <QString>
#include <QTemporaryFile>
#include <array>
#include <memory>

#include "runtime/disk_sync.h"
#include "runtime/folder_access.h"
#include "runtime/machine_host.h"
#include "runtime/system_help.h"

// windows.h must come before the headers that depend on it.
#include <io.h>
#include <windows.h>
// clang-format off
#include <htmlhelp.h>
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

struct CloseKeyOf {
    using pointer = HKEY;
    void operator()(HKEY key) const { RegCloseKey(key); }
};
using Key = std::unique_ptr<HKEY, CloseKeyOf>;

// Full access, as the keys have always been opened: who may not write them is not told either.
constexpr REGSAM kKeyAccess = 0x2003f;
constexpr DWORD kLongestValue = 1024;  // bytes

// An open key; none if it is not there, or not ours to open. The handles of the roots are signed
// numbers of 32 bits, however wide a handle is.
Key openKey(Long root, const QString& path) {
    const auto rootKey = reinterpret_cast<HKEY>(LONG_PTR{root});
    HKEY key = nullptr;
    RegOpenKeyExA(rootKey, path.toLocal8Bit().constData(), 0, kKeyAccess, &key);
    return Key(key);
}

using HtmlHelpFunction = decltype(&HtmlHelpW);

// The system's call for help; null if this Windows is without it. It stays for as long as the
// process, as its windows live in it.
HtmlHelpFunction htmlHelp() {
    const HMODULE viewer = LoadLibraryExW(L"hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (!viewer)
        return nullptr;
    const auto anyFunction = reinterpret_cast<void (*)()>(GetProcAddress(viewer, "HtmlHelpW"));
    return reinterpret_cast<HtmlHelpFunction>(anyFunction);
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

std::optional<RegistryValue> MachineHost::registryValue(Long root, const QString& key,
                                                        const QString& name) const {
    const Key opened = openKey(root, key);
    QByteArray data(kLongestValue, '\0');
    DWORD type = REG_NONE;
    DWORD length = kLongestValue;
    if (!opened || RegQueryValueExA(opened.get(), name.toLocal8Bit().constData(), nullptr, &type,
                                    reinterpret_cast<BYTE*>(data.data()), &length) != ERROR_SUCCESS)
        return std::nullopt;
    data.truncate(static_cast<qsizetype>(length));
    return RegistryValue{RegistryType{type}, data};
}

bool showSystemHelp(quintptr window, const QString& fileName) {
    static const HtmlHelpFunction show = htmlHelp();
    if (!show)
        return false;
    show(reinterpret_cast<HWND>(window), qUtf16Printable(fileName), HH_DISPLAY_TOPIC, 0);
    return true;
}

// Tried and not asked: a folder's read-only attribute says nothing of it.
bool canMakeFilesIn(const QString& folder) {
    return QTemporaryFile(folder + QStringLiteral("/XXXXXX")).open();
}

bool syncFile(const QFile& file) {
    return _commit(file.handle()) == 0;
}

void syncFolder(const QString&) {}
