// The tables of the two databases.
#include "store/schemas.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/people.h"

TEST(Schemas, AreThoseThatTheDatabasesAreMadeOf) {
    const QTemporaryDir folder;
    const QString people = folder.filePath(QStringLiteral("people"));
    runSql(people, peopleSchema());
    addCategory(people, QStringLiteral("Family"));
    EXPECT_EQ(addPerson(people, {.name = QStringLiteral("Adler")}), 1);

    const QString texts = folder.filePath(QStringLiteral("texts"));
    runSql(texts, interpretationSchema());
    EXPECT_EQ(valueOf(texts, QStringLiteral("SELECT count(*) FROM HLC")), Value(0));
}
