// The connection strings of the two databases.
#include "store/databases.h"

#include "runtime/app.h"

namespace {

QString connectionStringFor(const QString& fileName,
                            const QString& head = QStringLiteral("PROVIDER")) {
    return head + QStringLiteral("=Microsoft.Jet.OLEDB.4.0;Data Source=") + App::Path() + u'\\' +
           fileName + u';';
}

QString peopleFile() {
    return QStringLiteral("Ondara2.mdb");
}

}  // namespace

QString personConnectionString() {
    return connectionStringFor(peopleFile());
}

QString explorerConnectionString() {
    return connectionStringFor(peopleFile(), QStringLiteral("Provider"));
}

QString interpretationConnectionString() {
    return connectionStringFor(QStringLiteral("Interp.mdb"));
}

Connection openPersonDatabase() {
    return Connection(personConnectionString());
}

Connection openInterpretationDatabase() {
    return Connection(interpretationConnectionString(), Access::Read);
}
