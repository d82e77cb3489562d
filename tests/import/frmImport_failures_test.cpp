// The import wizard where reading or writing fails.
#include <QDir>
#include <QFile>

#include "import/import_driver.h"
#include "support/errors.h"
#include "support/files.h"

namespace {

class ImportThatFails : public ImportTest {
  protected:
    QString named(const QString& path) const {
        return QStringLiteral(", ") + QDir::toNativeSeparators(path);
    }

    // A person of this name cannot be written.
    void refuse(const char* name) {
        runSql(directory_.people(),
               QStringLiteral("CREATE TRIGGER refuse BEFORE INSERT ON Data WHEN NEW.Name = '%1' "
                              "BEGIN SELECT RAISE(ABORT, 'nobody of this name'); END")
                   .arg(QString::fromLatin1(name)));
    }

    void accept() { runSql(directory_.people(), QStringLiteral("DROP TRIGGER refuse")); }

    void expectNothingListed() {
        EXPECT_EQ(names().ListCount(), 0);
        EXPECT_FALSE(isEnabled("cmdNext"));
    }
};

TEST_F(ImportThatFails, SaysThatThereIsNoSuchFile) {
    open();
    for (const QString& path : {directory_.path(QStringLiteral("Other.mdb")), QDir::tempPath()}) {
        host_.expectMessage(
            QStringLiteral("File not found. Please specify the path of Names.mdb."));
        browse(path);
        EXPECT_EQ(in<TextBox>("txtPath").text(), QString());
        expectNothingListed();
    }
    EXPECT_EQ(host_.messages().back().owner, &wizard());
    EXPECT_EQ(host_.messages().back().icon, MessageIcon::None);
}

TEST_F(ImportThatFails, SaysThatTheFileIsNoDatabase) {
    makeFile(old_, "no database at all, and long enough to be read as one if it were");
    open();
    expectTrap(QStringLiteral("Invalid file format: file is not a database") + named(old_));
    browse(old_);
    EXPECT_EQ(in<TextBox>("txtPath").text(), QDir::toNativeSeparators(old_));
    expectNothingListed();
}

TEST_F(ImportThatFails, SaysThatTheOldDatabaseIsEmpty) {
    runSql(old_, QStringLiteral("DELETE FROM Data"));
    open();
    expectTrap(noCurrentRecord());
    browse(old_);
    expectNothingListed();
}

TEST_F(ImportThatFails, SaysThatTheOldDatabaseHasNoTable) {
    runSql(old_, QStringLiteral("DROP TABLE Data; CREATE TABLE Other (Name)"));
    open();
    expectTrap(QStringLiteral("Automation error: no such table: Data") + named(old_));
    browse(old_);
    expectNothingListed();
}

TEST_F(ImportThatFails, SaysThatTheOldDatabaseHasNoNames) {
    runSql(old_, QStringLiteral("ALTER TABLE Data RENAME Name TO Title"));
    open();
    expectTrap(
        QStringLiteral("Item cannot be found in the collection corresponding to the "
                       "requested name or ordinal"));
    browse(old_);
    expectNothingListed();
}

TEST_F(ImportThatFails, ListsThoseBeforeTheOneWithoutAName) {
    runSql(old_, QStringLiteral("UPDATE Data SET Name = NULL WHERE Name = 'Smith'"));
    open();
    expectTrap(QStringLiteral("Invalid use of Null"));
    browse(old_);
    EXPECT_EQ(names().ListCount(), 2);
    EXPECT_FALSE(isEnabled("cmdNext"));
}

TEST_F(ImportThatFails, KeepsTheOldPeopleWhereAnotherFileCannotBeRead) {
    const QString second = directory_.path(QStringLiteral("Second.mdb"));
    runSql(second, QStringLiteral("CREATE TABLE Other (Name)"));
    openSelection();
    press("cmdBack");
    expectTrap(QStringLiteral("Automation error: no such table: Data") + named(second));
    browse(second);
    EXPECT_TRUE(isEnabled("cmdNext"));
    press("cmdNext");
    names().setSelected(1, true);
    press("cmdNext");
    EXPECT_EQ(lastNames(), QStringList{QStringLiteral("Roe")});
}

TEST_F(ImportThatFails, SaysThatTheOldDatabaseHasNoBirthdates) {
    runSql(old_, QStringLiteral("ALTER TABLE Data RENAME birthdate TO born"));
    openSelection();
    names().setSelected(0, true);
    expectTrap(
        QStringLiteral("Item cannot be found in the collection corresponding to the "
                       "requested name or ordinal"));
    press("cmdNext");
    EXPECT_EQ(wizard().ImportStep, importing::kListing);
}

TEST_F(ImportThatFails, StaysOnTheSelectionWithAnIncompleteListWhereABirthdateIsMissing) {
    runSql(old_, QStringLiteral("UPDATE Data SET birthdate = NULL WHERE Name = 'Jane Roe'"));
    openSelection();
    names().setAllSelected(true);
    expectTrap(QStringLiteral("Invalid use of Null"));
    press("cmdNext");
    EXPECT_EQ(wizard().ImportStep, importing::kListing);
    EXPECT_TRUE(isShown("lstImport"));
    EXPECT_EQ(lastNames(), QStringList{QStringLiteral("Doe")});
    press("cmdNext");
    EXPECT_EQ(wizard().ImportStep, importing::kEditing);
    EXPECT_EQ(lastNames(), QStringList{QStringLiteral("Doe")});
}

TEST_F(ImportThatFails, SaysSoWithoutABoxAndKeepsThoseWhoAreNotWritten) {
    openConfirmation();
    refuse("Roe");
    press("cmdNext");
    EXPECT_TRUE(host_.messages().empty());
    EXPECT_EQ(wizard().ImportStep, importing::kWriting);
    EXPECT_EQ(closing(), importing::closingWords(true));
    EXPECT_FALSE(isShown("pbImport"));
    EXPECT_EQ(in<ProgressBar>("pbImport").Value(), 0);
    EXPECT_EQ(imported(), u"Smith\r\n");
    EXPECT_EQ(lastNames().join(u'|'), u"Doe|Roe");
    EXPECT_TRUE(wizard().ImportDirty);
    EXPECT_EQ(peopleStored(), kStoredBefore + 1);
}

TEST_F(ImportThatFails, WritesNobodyTwiceWhenItIsRepeated) {
    openConfirmation();
    refuse("Roe");
    press("cmdNext");
    accept();
    press("cmdBack");
    EXPECT_EQ(closing(), importing::step(5).closing);
    press("cmdBack");
    EXPECT_EQ(lastNames().join(u'|'), u"Doe|Roe");
    press("cmdNext");
    press("cmdNext");
    EXPECT_EQ(imported(), u"Jane Roe\r\nJohn Doe\r\n");
    EXPECT_EQ(peopleStored(), kStoredBefore + 3);
    EXPECT_EQ(stored("SELECT count(*) FROM Data WHERE Name = 'Smith' AND NameID > 3"), Value(1));
}

TEST_F(ImportThatFails, StaysCleanWhereNobodyCouldBeWritten) {
    openConfirmation();
    refuse("Smith");
    press("cmdNext");
    EXPECT_EQ(closing(), importing::closingWords(true));
    EXPECT_EQ(imported(), QString());
    EXPECT_FALSE(wizard().ImportDirty);
}

TEST_F(ImportThatFails, SaysSoWhereTheDatabaseIsGoneBeforeItLooksForPeople) {
    openSelection();
    press("cmdNext");
    press("cmdNext");
    press("cmdNext");
    QFile::remove(directory_.people());
    press("cmdNext");
    EXPECT_EQ(closing(), importing::closingWords(true));
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(ImportThatFails, EndsTheProgramWithoutCategories) {
    load();
    runSql(directory_.people(), QStringLiteral("DELETE FROM Category"));
    host_.expectMessage(QStringLiteral("Run-time error '380':\n\nInvalid property value"));
    frmImport form(&window());
    runEvent([&] { form.ShowModal(); });
    EXPECT_EQ(host_.exitCode(), 1);
    EXPECT_FALSE(form.isVisible());
}

}  // namespace
