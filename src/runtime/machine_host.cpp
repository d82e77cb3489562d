// What the machine's host does alike on every system.
#include "runtime/machine_host.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QProcess>
#include <cstdlib>

#include "runtime/errors.h"
#include "runtime/qt_dates.h"

namespace {

ErrorNumber reasonNotToStart(const QFileInfo& program) {
    if (!program.exists())
        return ErrorNumber::FileNotFound;
    return program.isExecutable() ? ErrorNumber::InvalidProcedureCall
                                  : ErrorNumber::PermissionDenied;
}

}  // namespace

Date MachineHost::now() const {
    return fromQDateTime(QDateTime::currentDateTime());
}

QLocale MachineHost::locale() const {
    return QLocale::system();
}

// The year always has its four digits: birth dates span more than one century.
QString MachineHost::shortDate(Date date) const {
    const QLocale system = locale();
    QString pattern = system.dateFormat(QLocale::ShortFormat);
    if (!pattern.contains(QLatin1String("yyyy")))
        pattern.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return system.toString(toQDate(date), pattern);
}

QString MachineHost::shortTime(Date date) const {
    return locale().toString(toQTime(date), QLocale::ShortFormat);
}

QString MachineHost::programDirectory() const {
    return QCoreApplication::applicationDirPath();
}

void MachineHost::startProgram(const QString& path) {
    if (!QProcess::startDetached(path, {}))
        throw RuntimeError(reasonNotToStart(QFileInfo(path)));
}

void MachineHost::endProcess(int exitCode) {
    std::_Exit(exitCode);
}
