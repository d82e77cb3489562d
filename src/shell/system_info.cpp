// The reading of the registry, and the search for the tool.
#include "shell/system_info.h"

#include <QFileInfo>
#include <QStringList>
#include <algorithm>
#include <optional>

#include "runtime/errors.h"
#include "runtime/host.h"

namespace modCycles {

namespace {

constexpr auto kLocalMachine = static_cast<Long>(0x80000002);

// The text of these bytes, with every zero character in it; on Windows a conversion ends at one.
QString textOf(const QByteArray& bytes) {
    QStringList pieces;
    for (const QByteArray& piece : bytes.split('\0'))
        pieces += QString::fromLocal8Bit(piece);
    return pieces.join(QChar::Null);
}

// The number whose hexadecimal digits are those of the bytes from the last to the first.
QString numberOf(const QByteArray& bytes) {
    QString digits;
    std::for_each(bytes.rbegin(), bytes.rend(), [&](char byte) {
        digits += QString::number(static_cast<unsigned char>(byte), 16);
    });
    if (digits.isEmpty())
        throw RuntimeError(ErrorNumber::TypeMismatch);
    bool fits = false;
    const uint number = digits.toUInt(&fits, 16);
    if (!fits)
        throw RuntimeError(ErrorNumber::Overflow);
    return QString::number(number);
}

// The path of the tool, if the registry tells it. The path of the tool itself is taken as it is; a
// folder counts only if the tool is in it.
std::optional<QString> toolPath() {
    QString path;
    if (GetKeyValue(kLocalMachine, QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"),
                    QStringLiteral("PATH"), path))
        return path;
    if (!GetKeyValue(kLocalMachine, QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location"),
                     QStringLiteral("MSINFO"), path))
        return std::nullopt;
    path += QStringLiteral("\\MSINFO32.EXE");
    return QFileInfo(path).isFile() ? std::optional(path) : std::nullopt;
}

}  // namespace

bool GetKeyValue(Long KeyRoot, const QString& KeyName, const QString& SubKeyRef, QString& KeyVal) {
    const auto value = host().registryValue(KeyRoot, KeyName, SubKeyRef);
    if (!value) {
        KeyVal.clear();
        return false;
    }
    QByteArray data = value->data;
    if (data.endsWith('\0'))
        data.chop(1);
    if (value->type == RegistryType::Text)
        KeyVal = textOf(data);
    else if (value->type == RegistryType::Number)
        KeyVal = numberOf(data);
    return true;
}

void StartSysInfo() {
    try {
        const auto path = toolPath();
        if (!path)
            throw RuntimeError(ErrorNumber::FileNotFound);
        host().startProgram(*path);
    } catch (const RuntimeError&) {
        host().showMessage(
            {.text = QStringLiteral("System Information Is Unavailable At This Time")});
    }
}

}  // namespace modCycles
