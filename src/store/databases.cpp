// The connection strings of the databases.
#include "store/databases.h"

#include "runtime/app.h"

namespace {

QString connectionStringTo(const QString& path, const QString& head = QStringLiteral("PROVIDER")) {
    return head + QStringLiteral("=Microsoft.Jet.OLEDB.4.0;Data Source=") + path + u';';
}

QString besideProgram(const QString& fileName) {
    return App::Path() + u'\\' + fileName;
}

QString peopleFile() {
    return QStringLiteral("Ondara2.mdb");
}

}  // namespace

QString personConnectionString() {
    return connectionStringTo(besideProgram(peopleFile()));
}

QString explorerConnectionString() {
    return connectionStringTo(besideProgram(peopleFile()), QStringLiteral("Provider"));
}

QString interpretationConnectionString() {
    return connectionStringTo(besideProgram(QStringLiteral("Interp.mdb")));
}

Connection openPersonDatabase() {
    return Connection(personConnectionString());
}

Connection openInterpretationDatabase() {
    return Connection(interpretationConnectionString(), Access::Read);
}

Connection openOldPeople(const QString& path) {
    return Connection(connectionStringTo(path), Access::Read);
}
