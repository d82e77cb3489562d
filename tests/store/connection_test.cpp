// The opening of database files, sound and unsound ones.
#include "store/connection.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <functional>

#include "store/databases.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/people.h"
#include "support/program_directory.h"
#include "support/read_only_folder.h"
#include "support/recording_host.h"

namespace {

constexpr Long kPeople = 2000;

// A program directory with one category and many people, so that its file has many pages.
class ConnectionTest : public testing::Test {
  protected:
    ConnectionTest() { addManyPeople(directory_.people(), kPeople, 2); }

    void overwrite(qint64 place, const QByteArray& bytes) {
        QFile file(directory_.people());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.seek(place);
        file.write(bytes);
    }

    QByteArray contents() const {
        QFile file(directory_.people());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // Expects the steps to raise an error that names the cause and ends with the file.
    void expectError(int number, const QString& start, const std::function<void()>& steps) {
        EXPECT_EQ(errorOf(steps), number);
        const QString description = descriptionOf(steps);
        EXPECT_TRUE(description.startsWith(start)) << qPrintable(description);
        EXPECT_TRUE(description.endsWith(QStringLiteral(", ") +
                                         QDir::toNativeSeparators(directory_.people())))
            << qPrintable(description);
    }

    static void openAndRead() {
        Connection connection = openPersonDatabase();
        Recordset people(connection, statements::allPeopleWithNotes());
    }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
};

Value answer(Connection& connection, const char* query) {
    return Value(std::int64_t{connection.database().execAndGet(query).getInt64()});
}

}  // namespace

TEST_F(ConnectionTest, EnforcesForeignKeysAndWritesDurably) {
    Connection connection = openPersonDatabase();
    EXPECT_EQ(answer(connection, "PRAGMA foreign_keys").toLong(), 1);
    EXPECT_EQ(answer(connection, "PRAGMA synchronous").toLong(), 2);
    EXPECT_EQ(answer(connection, "PRAGMA busy_timeout").toLong(), 2000);
    EXPECT_EQ(connection.database().execAndGet("PRAGMA journal_mode").getString(), "delete");
}

TEST_F(ConnectionTest, ReadsTheHeadOfItsStringInAnySpelling) {
    const QString other = QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") +
                          QFileInfo(directory_.people()).path() + QStringLiteral("\\ondara2.MDB;");
    EXPECT_EQ(QFileInfo(Connection(other).path()), QFileInfo(directory_.people()));
}

TEST_F(ConnectionTest, StaysOpenWhenItIsMoved) {
    Connection connection = openPersonDatabase();
    const Connection moved = std::move(connection);
    EXPECT_EQ(moved.path(), directory_.people());
}

TEST_F(ConnectionTest, IsOneOfSeveralOnTheSameFile) {
    Connection first = openPersonDatabase();
    Connection second = openPersonDatabase();
    EXPECT_EQ(Recordset(first, statements::allPeople()).RecordCount(), kPeople);
    EXPECT_EQ(Recordset(second, statements::allPeople()).RecordCount(), kPeople);
}

TEST_F(ConnectionTest, IsRefusedByAMissingFileAndDoesNotMakeIt) {
    QFile::remove(directory_.people());
    expectError(53, QStringLiteral("File not found: "), openPersonDatabase);
    EXPECT_FALSE(QFile::exists(directory_.people()));
}

TEST_F(ConnectionTest, IsRefusedByAFolder) {
    QFile::remove(directory_.people());
    QDir().mkdir(directory_.people());
    expectError(75, QStringLiteral("Path/File access error: it is a folder"), openPersonDatabase);
}

TEST_F(ConnectionTest, IsRefusedByAnEmptyFileWhichStaysEmpty) {
    QFile::resize(directory_.people(), 0);
    expectError(321, QStringLiteral("Invalid file format: the file is empty"), openPersonDatabase);
    EXPECT_EQ(contents(), QByteArray());
}

TEST_F(ConnectionTest, IsRefusedByAFileThatIsNoDatabase) {
    overwrite(0, QByteArray(4096, 'x'));
    const QByteArray before = contents();
    expectError(321, QStringLiteral("Invalid file format: "), openPersonDatabase);
    EXPECT_EQ(contents(), before);
}

TEST_F(ConnectionTest, IsRefusedByAFileThatIsCutShort) {
    QFile::resize(directory_.people(), 1000);
    expectError(321, QStringLiteral("Invalid file format: "), openPersonDatabase);
}

TEST_F(ConnectionTest, RaisesInvalidFileFormatForEveryDamagedPage) {
    const QByteArray sound = contents();
    constexpr int kPageSize = 4096;
    const qint64 pages = sound.size() / kPageSize;
    ASSERT_GT(pages, 20);
    qint64 refused = 0;
    for (qint64 page = 0; page < pages; ++page) {
        overwrite(page * kPageSize, QByteArray(kPageSize, '\xA5'));
        const int number = errorOf(openAndRead);
        EXPECT_TRUE(number == 321 || number == 0) << "page " << page << ": " << number;
        refused += number == 321 ? 1 : 0;
        overwrite(0, sound);
    }
    // The statement reads neither the index nor the categories.
    EXPECT_GT(refused, pages / 2);
    EXPECT_EQ(errorOf(openAndRead), 0);
}

TEST_F(ConnectionTest, RaisesPermissionDeniedWhileAnotherProcessHoldsTheFile) {
    SQLite::Database other(directory_.people().toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    try {
        openPersonDatabase();
        ADD_FAILURE() << "It was opened.";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number, 70);
        EXPECT_EQ(error.description, QStringLiteral("Permission denied: database is locked, ") +
                                         QDir::toNativeSeparators(directory_.people()));
    }
    other.exec("COMMIT");
    EXPECT_EQ(errorOf(openAndRead), 0);
}

TEST_F(ConnectionTest, IsRefusedWhereNoJournalCanBeMade) {
    QDir().mkdir(directory_.people() + QStringLiteral("-journal"));
    const QByteArray before = contents();
    expectError(75, QStringLiteral("Path/File access error: no journal can be made in its folder"),
                openPersonDatabase);
    EXPECT_EQ(contents(), before);
}

TEST_F(ConnectionTest, IsRefusedByAReadOnlyFileUnlessItOnlyReads) {
    QFile::setPermissions(directory_.people(), QFile::ReadOwner);
    if (QFileInfo(directory_.people()).isWritable())
        GTEST_SKIP() << "This user may write whatever the permissions say";
    expectError(70, QStringLiteral("Permission denied: the file is read-only"), openPersonDatabase);
    EXPECT_EQ(errorOf([] { Connection(personConnectionString(), Access::Read); }), 0);
}

TEST_F(ConnectionTest, IsRefusedInAReadOnlyFolderUnlessItOnlyReads) {
    const ReadOnlyFolder folder(QFileInfo(directory_.people()).path());
    if (!folder.holdsBack())
        GTEST_SKIP() << "This user may write whatever the permissions say";
    EXPECT_EQ(errorOf(openPersonDatabase), 75);
    EXPECT_EQ(errorOf([] { Connection(personConnectionString(), Access::Read); }), 0);
}

TEST_F(ConnectionTest, RaisesDiskFullAndLeavesTheStoreAsItWas) {
    Connection connection = openPersonDatabase();
    Recordset people(connection, statements::wholeTable());
    connection.database().exec("PRAGMA max_page_count = 1");  // clamped to the present size
    const QByteArray before = contents();
    people.MoveFirst();
    people.Collect(u"Notes", QString(100'000, u'x'));
    expectError(61, QStringLiteral("Disk full: "), [&] { people.UpdateBatch(adAffectAll); });
    EXPECT_EQ(contents(), before);
    EXPECT_EQ(people.Fields(u"Notes").toText().size(), 100'000);
}

TEST_F(ConnectionTest, UndoesWhatAProcessThatDiedHadHalfWritten) {
    const QString copy = directory_.path(QStringLiteral("Copy.mdb"));
    const QString journal = QStringLiteral("-journal");
    SQLite::Database dying(directory_.people().toStdString(), SQLite::OPEN_READWRITE);
    dying.exec("PRAGMA cache_size = 1; BEGIN; UPDATE Data SET Name = 'half'");
    ASSERT_TRUE(QFile::copy(directory_.people() + journal, copy + journal));
    ASSERT_TRUE(QFile::copy(directory_.people(), copy));
    ASSERT_TRUE(contents().contains("half")) << "nothing was written yet";

    Connection connection(QStringLiteral("Data Source=%1;").arg(copy));
    Recordset people(connection, statements::allPeople());
    EXPECT_EQ(people.RecordCount(), kPeople);
    people.Find(QStringLiteral("Name = 'half'"));
    EXPECT_TRUE(people.EndOfFile());
}

TEST_F(ConnectionTest, RaisesAutomationErrorForATableThatIsNotThere) {
    runSql(directory_.people(), QStringLiteral("DROP TABLE Data"));
    expectError(440, QStringLiteral("Automation error: no such table: Data"), openAndRead);
}

TEST_F(ConnectionTest, OrdersTextsByTheOneComparison) {
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data"));
    for (const char* name : {"de Vries", "Zed", "\xC3\x89mile", "abe"})
        addPerson(directory_.people(), {.name = QString::fromUtf8(name)});
    Connection connection = openPersonDatabase();
    Recordset people(connection, statements::allPeople());
    QStringList names;
    for (; !people.EndOfFile(); people.MoveNext())
        names << people.Fields(u"Name").toText();
    EXPECT_EQ(names, (QStringList{QStringLiteral("abe"), QStringLiteral("de Vries"),
                                  QString::fromUtf8("\xC3\x89mile"), QStringLiteral("Zed")}));
}

TEST_F(ConnectionTest, LeavesTextsThatAreEqualInTheOrderOfTheirKeys) {
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data"));
    std::vector<Long> written;
    for (const char16_t* name : {u"SMITH", u"smith", u"Smith", u"sMITH"})
        written.push_back(addPerson(directory_.people(), {.name = QString::fromUtf16(name)}));
    Connection connection = openPersonDatabase();
    std::vector<Long> read;
    for (Recordset people(connection, statements::allPeople()); !people.EndOfFile();
         people.MoveNext())
        read.push_back(people.Fields(u"NameID").toLong());
    EXPECT_EQ(read, written);
}
