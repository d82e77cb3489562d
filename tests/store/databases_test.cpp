// Where the databases are.
#include "store/databases.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "store/recordset.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/people.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

TEST(Databases, HaveTheirConnectionStringsPutTogetherFromTheProgramsDirectory) {
    RecordingHost host;
    host.setProgramDirectory(QStringLiteral("C:\\Ondara"));
    EXPECT_EQ(personConnectionString(),
              u"PROVIDER=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Ondara\\Ondara2.mdb;");
    EXPECT_EQ(explorerConnectionString(),
              u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Ondara\\Ondara2.mdb;");
    EXPECT_EQ(interpretationConnectionString(),
              u"PROVIDER=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Ondara\\Interp.mdb;");
    host.setProgramDirectory(QStringLiteral("/opt/ondara"));
    EXPECT_EQ(personConnectionString(),
              u"PROVIDER=Microsoft.Jet.OLEDB.4.0;Data Source=/opt/ondara\\Ondara2.mdb;");
}

TEST(Databases, AreFoundFromAnyWorkingDirectory) {
    RecordingHost host;
    ProgramDirectory directory(host);
    const QString before = QDir::currentPath();
    QDir::setCurrent(QDir::rootPath());
    EXPECT_EQ(errorOf([] { openPersonDatabase(); }), 0);
    EXPECT_EQ(errorOf([] { openInterpretationDatabase(); }), 0);
    QDir::setCurrent(before);
    EXPECT_EQ(openPersonDatabase().path(), directory.people());
    EXPECT_EQ(openInterpretationDatabase().path(), directory.interpretation());
}

TEST(Databases, AreMissedOneByOne) {
    RecordingHost host;
    ProgramDirectory directory(host);
    QFile::remove(directory.interpretation());
    EXPECT_EQ(errorOf([] { openPersonDatabase(); }), 0);
    EXPECT_EQ(errorOf([] { openInterpretationDatabase(); }), 53);
}

TEST(Databases, OpenTheInterpretationsToBeReadOnly) {
    RecordingHost host;
    ProgramDirectory directory(host);
    runSql(directory.interpretation(), QStringLiteral("INSERT INTO HLC VALUES (1, 1, 1, 'Up.')"));
    Connection connection = openInterpretationDatabase();
    Recordset texts(connection, statements::interpretation(1, 1, 1));
    EXPECT_EQ(texts.Fields(u"interp").toText(), u"Up.");
    EXPECT_THROW(connection.database().exec("DELETE FROM HLC"), SQLite::Exception);
}

TEST(Databases, OfOndara1AreReadWhereverTheyLieAndNeverWritten) {
    RecordingHost host;
    const QTemporaryDir folder;
    runSql(folder.filePath(QStringLiteral("Names.mdb")),
           QStringLiteral("CREATE TABLE Data (Name, birthdate REAL);"
                          "INSERT INTO Data VALUES ('Doe, John', 1)"));
    Connection old = openOldPeople(folder.filePath(QStringLiteral("names.mdb")));
    Recordset people(old, statements::wholeTable());
    EXPECT_EQ(people.Fields(u"Name").toText(), u"Doe, John");
    EXPECT_THROW(old.database().exec("DELETE FROM Data"), SQLite::Exception);
}
