// A database that is being made.
#include "store/new_database.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "store/schemas.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/people.h"

namespace {

class NewDatabaseTest : public testing::Test {
  protected:
    Value count() { return valueOf(path_, QStringLiteral("SELECT count(*) FROM Category")); }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(QStringLiteral("new"));
};

}  // namespace

TEST_F(NewDatabaseTest, HasItsRowsOnceTheyAreCommitted) {
    NewDatabase database(path_, peopleSchema());
    RowAdder rows(database, statements::addCategory());
    rows.add({3, QStringLiteral("Family")});
    rows.add({4, QStringLiteral("Friends")});
    database.run(statements::setLastNumber(), {20, QStringLiteral("Category")});
    database.commit();
    EXPECT_EQ(count(), Value(2));
    EXPECT_EQ(addCategory(path_, QStringLiteral("Work")), 21);
}

TEST_F(NewDatabaseTest, HasNothingWithoutThat) {
    {
        NewDatabase database(path_, peopleSchema());
        database.run(statements::addCategory(), {3, QStringLiteral("Family")});
    }
    EXPECT_EQ(valueOf(path_, QStringLiteral("SELECT count(*) FROM sqlite_master")), Value(0));
}

TEST_F(NewDatabaseTest, RefusesAPersonWithoutACategory) {
    NewDatabase database(path_, peopleSchema());
    const QString description = descriptionOf([&] {
        database.run(statements::addPerson(),
                     {1, QStringLiteral("Adler"), Value(), 1.0, -1, 1, Value()});
    });
    EXPECT_TRUE(description.contains(QStringLiteral("the row refers to another")))
        << description.toStdString();
    EXPECT_TRUE(description.contains(QStringLiteral("new"))) << description.toStdString();
}

TEST_F(NewDatabaseTest, RefusesAFolderThatIsNone) {
    EXPECT_EQ(errorOf([&] {
                  NewDatabase(folder_.filePath(QStringLiteral("missing/new")), peopleSchema());
              }),
              75);
}
