// What holds for every database.
#include "store/database_set_up.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/files.h"

namespace {

class DatabaseSetUp : public testing::Test {
  protected:
    DatabaseSetUp() { setUpDatabase(database_); }

    SQLite::Database database_{":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE};
};

}  // namespace

TEST_F(DatabaseSetUp, EnforcesForeignKeys) {
    database_.exec("CREATE TABLE One (Id INTEGER PRIMARY KEY)");
    database_.exec("CREATE TABLE Two (Id INTEGER REFERENCES One (Id))");
    EXPECT_THROW(database_.exec("INSERT INTO Two VALUES (1)"), SQLite::Exception);
}

TEST_F(DatabaseSetUp, WaitsForTheDisk) {
    constexpr int kFull = 2;
    EXPECT_EQ(database_.execAndGet("PRAGMA synchronous").getInt(), kFull);
}

TEST_F(DatabaseSetUp, OrdersTextsByTheirLettersWithoutAccents) {
    database_.exec("CREATE TABLE Names (Name TEXT COLLATE NOCASE)");
    database_.exec("INSERT INTO Names VALUES ('Zed'), ('Émile'), ('abe')");
    EXPECT_EQ(database_
                  .execAndGet("SELECT group_concat(Name) FROM "
                              "(SELECT Name FROM Names ORDER BY Name)")
                  .getString(),
              "abe,Émile,Zed");
}

TEST(DatabaseSetUpOfAnother, RefusesWhatIsNoDatabase) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("file"));
    makeFile(path, QByteArray(10'000, 'a'));
    SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
    EXPECT_THROW(setUpDatabase(database), SQLite::Exception);
}
