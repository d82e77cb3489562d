// The adoption of old databases beside the program.
#include "store/adoption.h"

#include <gtest/gtest.h>

#include <QDir>

#include "store/databases.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/files.h"
#include "support/old_tables.h"
#include "support/people.h"
#include "support/printing.h"
#include "support/program_directory.h"
#include "support/read_only_folder.h"
#include "support/recording_host.h"

namespace {

class AdoptionTest : public testing::Test {
  protected:
    QString path(const char* name) const { return directory_.path(QLatin1String(name)); }

    QStringList files() const { return filesIn(directory_.path({})); }

    static QStringList names(std::initializer_list<const char*> names) {
        QStringList all;
        for (const char* name : names)
            all += QLatin1String(name);
        return all;
    }

    static Long countOfPeople() {
        Connection connection = openPersonDatabase();
        return Recordset(connection, statements::allPeople()).RecordCount();
    }

    // The adoption fails with that number and these words in its cause, and nothing is changed.
    void expectRefusal(int number, const char* cause) {
        const QByteArray before = fileBytes(directory_.people());
        const QStringList filesBefore = files();
        EXPECT_EQ(errorOf([] { adoptPeople(); }), number);
        const QString description = descriptionOf([] { adoptPeople(); });
        EXPECT_TRUE(description.contains(QLatin1String(cause))) << description.toStdString();
        EXPECT_TRUE(description.contains(QStringLiteral("Ondara2.mdb")))
            << description.toStdString();
        EXPECT_EQ(fileBytes(directory_.people()), before);
        EXPECT_EQ(files(), filesBefore);
    }

    void makePeople(const QByteArray& bytes) { makeFile(directory_.people(), bytes); }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
};

}  // namespace

TEST_F(AdoptionTest, MakesADatabaseOfTodayAndKeepsTheOldOne) {
    makePeople(oldDatabase());
    const std::optional<Adoption> adoption = adoptPeople();
    ASSERT_TRUE(adoption);
    EXPECT_EQ(adoption->oldName, u"Ondara2 (Jet).mdb");
    EXPECT_TRUE(adoption->leftOut.isEmpty());
    EXPECT_EQ(adoption->leftOutName, u"");
    EXPECT_EQ(countOfPeople(), 2);
    EXPECT_EQ(fileBytes(path("Ondara2 (Jet).mdb")), oldDatabase());
    EXPECT_EQ(files(), names({"Interp.mdb", "Ondara2 (Jet).mdb", "Ondara2.mdb"}));
}

TEST_F(AdoptionTest, TakesPlaceOnce) {
    makePeople(oldDatabase());
    ASSERT_TRUE(adoptPeople());
    const QByteArray adopted = fileBytes(directory_.people());
    EXPECT_FALSE(adoptPeople());
    EXPECT_EQ(fileBytes(directory_.people()), adopted);
    EXPECT_EQ(files(), names({"Interp.mdb", "Ondara2 (Jet).mdb", "Ondara2.mdb"}));
}

TEST_F(AdoptionTest, LeavesEverythingElseAlone) {
    const QByteArray people = fileBytes(directory_.people());
    EXPECT_FALSE(adoptPeople());
    EXPECT_FALSE(adoptInterpretations());
    EXPECT_EQ(fileBytes(directory_.people()), people);
    QFile::remove(directory_.people());
    EXPECT_FALSE(adoptPeople());
    EXPECT_EQ(files(), names({"Interp.mdb"}));
}

TEST_F(AdoptionTest, FindsTheFileWhateverItsCase) {
    QFile::remove(directory_.people());
    makeFile(path("ONDARA2.MDB"), oldDatabase());
    const bool isFoundByAnyCase = QFile::exists(directory_.people());
    ASSERT_TRUE(adoptPeople());
    QStringList expected = names({"Interp.mdb", "ONDARA2.MDB",
                                  isFoundByAnyCase ? "Ondara2 (Jet).mdb" : "ONDARA2 (Jet).MDB"});
    expected.sort();
    EXPECT_EQ(files(), expected);
    EXPECT_EQ(countOfPeople(), 2);
}

TEST_F(AdoptionTest, KeepsThePeopleWhoAreLeftOutInAFile) {
    makePeople(oldDatabaseWithNoDate());
    const std::optional<Adoption> adoption = adoptPeople();
    ASSERT_TRUE(adoption);
    EXPECT_EQ(adoption->leftOutName, u"Ondara2 (left out).txt");
    EXPECT_EQ(QString::fromLatin1(fileBytes(path("Ondara2 (left out).txt"))),
              adoption->leftOut.text());
    EXPECT_TRUE(adoption->leftOut.text().contains(QStringLiteral("NameID: 7\r\nName: Berg\r\n")));
    EXPECT_EQ(countOfPeople(), 1);
}

TEST_F(AdoptionTest, WritesThemInTheBytesOfSmallFiles) {
    makePeople(builtJet(4, {oldCategories({}), oldPeople({oldPerson(1, "Adler", 1),
                                                          oldPerson(2, "Weiß", 1, Value())})})
                   .bytes);
    adoptPeople();
    EXPECT_TRUE(fileBytes(path("Ondara2 (left out).txt")).contains("\r\nName: Wei\xDF\r\n"));
}

TEST_F(AdoptionTest, MakesInterpretationsOfTodayToo) {
    makeFile(directory_.interpretation(),
             builtJet(4, {oldInterpretations({{{1, 0, -1, QStringLiteral("Take care.")}}})}).bytes);
    EXPECT_TRUE(adoptInterpretations());
    EXPECT_EQ(valueOf(directory_.interpretation(), QStringLiteral("SELECT interp FROM HLC")),
              Value(QStringLiteral("Take care.")));
    EXPECT_EQ(files(), names({"Interp (Jet).mdb", "Interp.mdb", "Ondara2.mdb"}));
    EXPECT_FALSE(adoptInterpretations());
}

TEST_F(AdoptionTest, RefusesADamagedFile) {
    QByteArray bytes = oldDatabase();
    bytes.chop(4096);
    makePeople(bytes);
    expectRefusal(321, "damaged");
}

TEST_F(AdoptionTest, RefusesAnEncryptedFile) {
    QByteArray bytes = oldDatabase();
    putInHeader(bytes, 0x3E, 12345);
    makePeople(bytes);
    expectRefusal(321, "encrypted");
}

TEST_F(AdoptionTest, RefusesAFileWithoutATableOrAField) {
    makePeople(builtJet(4, {oldPeople({oldPerson(1, "Adler", 1)})}).bytes);
    expectRefusal(440, "there is no table Category");
    BuiltTable people = oldPeople({});
    people.columns.erase(people.columns.begin() + 3);
    makePeople(builtJet(4, {oldCategories({}), people}).bytes);
    expectRefusal(440, "there is no field Birthdate in table Data");
}

TEST_F(AdoptionTest, RefusesAFileWithNobodyInIt) {
    makePeople(builtJet(4, {oldCategories({oldCategory(1, "Family")}), oldPeople({})}).bytes);
    expectRefusal(440, "there is nobody with a birth date in it");
}

TEST_F(AdoptionTest, RefusesAReadOnlyFile) {
    makePeople(oldDatabase());
    QFile::setPermissions(directory_.people(), QFile::ReadOwner | QFile::ReadUser);
    if (QFileInfo(directory_.people()).isWritable())
        GTEST_SKIP() << "This user may write what is read-only.";
    expectRefusal(70, "the file is read-only");
}

TEST_F(AdoptionTest, RefusesAReadOnlyFolder) {
    makePeople(oldDatabase());
    const ReadOnlyFolder folder(directory_.path({}));
    if (!folder.holdsBack())
        GTEST_SKIP() << "This user may write everywhere.";
    expectRefusal(75, "no journal can be made in its folder");
}

TEST_F(AdoptionTest, RefusesAFileThatCouldNotBeWorkedOnLater) {
    makePeople(oldDatabase());
    QDir(directory_.path({})).mkdir(QStringLiteral("Ondara2.mdb-journal"));
    expectRefusal(75, "no journal can be made in its folder");
}

TEST_F(AdoptionTest, RefusesWhereTheNewFileCannotBeMade) {
    makePeople(oldDatabase());
    QDir(directory_.path({})).mkdir(QStringLiteral("Ondara2.mdb.new"));
    expectRefusal(75, "Ondara2.mdb.new");
}

TEST_F(AdoptionTest, RefusesWhereTheOldFileCannotBeKept) {
    makePeople(oldDatabaseWithNoDate());
    QDir(directory_.path({})).mkdir(QStringLiteral("Ondara2.mdb.half"));
    expectRefusal(75, "Ondara2.mdb.half");
}
