// What the person database itself sees to.
#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include "store/databases.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/people.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

namespace {

class SchemaTest : public testing::Test {
  protected:
    RecordingHost host_;
    ProgramDirectory directory_{host_};
    Long family_ = addCategory(directory_.people(), QStringLiteral("Family"));
    Long work_ = addCategory(directory_.people(), QStringLiteral("Work"));
};

Long countOf(const QString& statement) {
    Connection connection = openPersonDatabase();
    return Recordset(connection, statement).RecordCount();
}

void deleteRow(const QString& statement, const QString& criteria) {
    Connection connection = openPersonDatabase();
    Recordset rows(connection, statement);
    rows.Find(criteria);
    rows.Delete(adAffectCurrent);
}

}  // namespace

TEST_F(SchemaTest, TakesThePeopleOfACategoryWithItAlsoOnAnOpenConnection) {
    Connection opened = openPersonDatabase();
    addPerson(directory_.people(), {.name = QStringLiteral("Adler"), .catId = family_});
    addPerson(directory_.people(), {.name = QStringLiteral("Berg"), .catId = family_});
    addPerson(directory_.people(), {.name = QStringLiteral("Curie"), .catId = work_});
    EXPECT_EQ(Recordset(opened, statements::allPeople()).RecordCount(), 3);

    deleteRow(statements::categoriesInOrder(), QStringLiteral("CatID = %1").arg(family_));

    Recordset left(opened, statements::allPeople());
    EXPECT_EQ(left.RecordCount(), 1);
    EXPECT_EQ(left.Fields(u"Name").toText(), u"Curie");
}

TEST_F(SchemaTest, NeverGivesANumberTwice) {
    const Long gone = addPerson(directory_.people(), {.name = QStringLiteral("Adler")});
    deleteRow(statements::allPeople(), QStringLiteral("NameID = %1").arg(gone));
    EXPECT_GT(addPerson(directory_.people(), {.name = QStringLiteral("Berg")}), gone);

    deleteRow(statements::categories(), QStringLiteral("CatID = %1").arg(work_));
    EXPECT_GT(addCategory(directory_.people(), QStringLiteral("Friends")), work_);
}

TEST_F(SchemaTest, NeverGivesAwayTheNumberZero) {
    EXPECT_GT(family_, 0);
    EXPECT_GT(addPerson(directory_.people(), {.name = QStringLiteral("Adler")}), 0);
}

TEST_F(SchemaTest, TellsFemalesFromMales) {
    addPerson(directory_.people(), {.name = QStringLiteral("Adler"), .isFemale = false});
    addPerson(directory_.people(), {.name = QStringLiteral("Berg"), .isFemale = true});
    addPerson(directory_.people(),
              {.name = QStringLiteral("Curie"), .isFemale = true, .catId = work_});
    EXPECT_EQ(countOf(statements::males()), 1);
    EXPECT_EQ(countOf(statements::females()), 2);
    EXPECT_EQ(countOf(statements::femalesOfCategory(work_)), 1);
    EXPECT_EQ(countOf(statements::malesOfCategory(work_)), 0);
}

TEST_F(SchemaTest, RefusesRowsThatLackWhatIsRequired) {
    const QString people = directory_.people();
    for (const char* values : {"(1, NULL, 1.0, 0, 1)", "(1, 'A', NULL, 0, 1)",
                               "(1, 'A', 1.0, 0, NULL)", "(1, 'A', 1.0, 1, 1)"})
        EXPECT_THROW(
            runSql(people, QStringLiteral("INSERT INTO Data (NameID, Name, Birthdate, Gender, "
                                          "CatID) VALUES ") +
                               QString::fromLatin1(values)),
            SQLite::Exception)
            << values;
    EXPECT_EQ(countOf(statements::allPeople()), 0);
}

TEST_F(SchemaTest, HasAVariantForTestsThatTakesAnything) {
    directory_.dropConstraints();
    addPerson(directory_.people(),
              {.name = QStringLiteral("Adler"), .birthdate = Value(), .catId = 99});
    Connection connection = openPersonDatabase();
    Recordset people(connection, statements::allPeople());
    EXPECT_TRUE(people.Fields(u"Birthdate").isNull());
    EXPECT_EQ(people.Fields(u"CatID").toLong(), 99);
}
