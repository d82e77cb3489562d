// The connection strings of the two databases.
#include "store/databases.h"

#include "runtime/app.h"

namespace {

QString connectionStringFor(const QString& fileName) {
    return QStringLiteral("PROVIDER=Microsoft.Jet.OLEDB.4.0;Data Source=") + App::Path() + u'\\' +
           fileName + u';';
}

}  // namespace

QString personConnectionString() {
    return connectionStringFor(QStringLiteral("Ondara2.mdb"));
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
