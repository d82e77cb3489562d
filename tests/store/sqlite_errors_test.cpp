// SQLite's failures as run-time errors.
#include "store/sqlite_errors.h"

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "support/errors.h"

namespace {

RuntimeError errorFor(int resultCode) {
    return storeError(SQLite::Exception("the cause", resultCode), QStringLiteral("people.mdb"));
}

}  // namespace

TEST(StoreError, HasTheNumberOfWhatWentWrong) {
    EXPECT_EQ(errorFor(SQLITE_FULL).number, 61);
    EXPECT_EQ(errorFor(SQLITE_BUSY).number, 70);
    EXPECT_EQ(errorFor(SQLITE_LOCKED).number, 70);
    EXPECT_EQ(errorFor(SQLITE_READONLY).number, 70);
    EXPECT_EQ(errorFor(SQLITE_PERM).number, 70);
    EXPECT_EQ(errorFor(SQLITE_CANTOPEN).number, 75);
    EXPECT_EQ(errorFor(SQLITE_CORRUPT).number, 321);
    EXPECT_EQ(errorFor(SQLITE_NOTADB).number, 321);
    EXPECT_EQ(errorFor(SQLITE_IOERR).number, 57);
    EXPECT_EQ(errorFor(SQLITE_CONSTRAINT).number, 3719);
    EXPECT_EQ(errorFor(SQLITE_ERROR).number, 440);
    EXPECT_EQ(errorFor(SQLITE_NOMEM).number, 440);
}

TEST(StoreError, TakesAnExtendedCodeForItsKind) {
    EXPECT_EQ(errorFor(SQLITE_BUSY_SNAPSHOT).number, 70);
    EXPECT_EQ(errorFor(SQLITE_IOERR_FSYNC).number, 57);
    EXPECT_EQ(errorFor(SQLITE_CANTOPEN_ISDIR).number, 75);
}

TEST(StoreError, NamesTheCauseAndTheFileWithoutAFinalFullStop) {
    EXPECT_EQ(errorFor(SQLITE_FULL).description,
              QStringLiteral("Disk full: the cause, people.mdb"));
}

TEST(StoreError, SaysInPlainWordsWhatARejectedRowLacks) {
    SQLite::Database database(":memory:", SQLite::OPEN_READWRITE);
    database.exec(
        "PRAGMA foreign_keys = ON; CREATE TABLE Data (id INTEGER PRIMARY KEY, "
        "Name TEXT NOT NULL, other REFERENCES Data (id))");
    const auto causeOf = [&database](const char* sql) {
        return descriptionOf([&] {
                   raisingStoreErrors(QStringLiteral("people.mdb"), [&] { database.exec(sql); });
               })
            .section(QStringLiteral(": "), 1);
    };
    EXPECT_EQ(causeOf("INSERT INTO Data VALUES (1, NULL, NULL)"),
              u"Data.Name has no value, people.mdb");
    EXPECT_EQ(causeOf("INSERT INTO Data VALUES (1, 'a', 7)"),
              u"the row refers to another that does not exist, people.mdb");
}

TEST(RaisingStoreErrors, HandsTheResultOnAndLetsOtherErrorsThrough) {
    EXPECT_EQ(raisingStoreErrors(QString(), [] { return 7; }), 7);
    EXPECT_THROW(raisingStoreErrors(QString(), [] { throw RuntimeError(ErrorNumber::Overflow); }),
                 RuntimeError);
}
