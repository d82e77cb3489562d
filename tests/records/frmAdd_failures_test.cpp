// The person manager where the store refuses.
#include <SQLiteCpp/Database.h>
#include <sqlite3.h>

#include <QFile>

#include "controls/date_picker.h"
#include "controls/multi_line_text_box.h"
#include "records/editor_driver.h"
#include "records/frmAdd.h"

namespace {

const QString kRefused =
    QStringLiteral("Data value conflicts with the integrity constraints of the field: ");
const QString kNotLocated = QStringLiteral(
    "Row cannot be located for updating. Some values may have been changed since it was last read");

// As long as this lives, every connection that is opened finds no room on the disk.
class FullDisk {
  public:
    FullDisk() { sqlite3_auto_extension(reinterpret_cast<void (*)()>(&fill)); }
    ~FullDisk() { sqlite3_reset_auto_extension(); }
    Q_DISABLE_COPY_MOVE(FullDisk)

  private:
    static int fill(sqlite3* database, const char**, const sqlite3_api_routines*) {
        // Clamped to the present size.
        return sqlite3_exec(database, "PRAGMA max_page_count = 1", nullptr, nullptr, nullptr);
    }
};

class PersonManagerThatFails : public EditorTest<frmAdd> {
  protected:
    QString name() { return textOf("txtFields_0"); }

    // Presses Update and expects the trap's box; the edit goes on.
    void expectFailure(const QString& description) {
        const bool wasStale = editor().mbListsStale;
        expectTrap(description);
        press("cmdUpdate");
        EXPECT_EQ(host_.messages().back().title, QString());
        EXPECT_EQ(host_.messages().back().icon, MessageIcon::None);
        EXPECT_EQ(host_.messages().back().buttons, MessageButtons::Ok);
        EXPECT_TRUE(isEditing());
        EXPECT_TRUE(editor().mbEditFlag != editor().mbAddNewFlag);
        EXPECT_EQ(editor().mbListsStale, wasStale);
    }

    void beginToEdit() {
        open();
        press("cmdEdit");
        enter("txtFields_0", kTyped);
    }

    void expectStoredAsBefore() {
        EXPECT_EQ(stored("SELECT group_concat(Name) FROM (SELECT Name FROM Data ORDER BY Name)"),
                  Value(QStringLiteral("Adler,Smith,Zed")));
    }

    const QString kTyped = QStringLiteral("Aaron");
};

TEST_F(PersonManagerThatFails, SaysThatANewPersonHasNoName) {
    open();
    press("cmdAdd");
    enter("txtFields_1", QStringLiteral("Nobody"));
    pressKey(in<DatePicker>("dtpBirthday"), Qt::Key_Up);
    expectFailure(aboutPeople(kRefused + QStringLiteral("Data.Name has no value")));
    EXPECT_EQ(textOf("txtFields_1"), QStringLiteral("Nobody"));
    EXPECT_EQ(status(), QStringLiteral("Add record"));
    expectStoredAsBefore();
}

TEST_F(PersonManagerThatFails, SaysThatANewPersonHasNoBirthDate) {
    open();
    press("cmdAdd");
    enter("txtFields_0", kTyped);
    expectFailure(aboutPeople(kRefused + QStringLiteral("Data.Birthdate has no value")));
    EXPECT_EQ(name(), kTyped);
    expectStoredAsBefore();
}

TEST_F(PersonManagerThatFails, ChecksNothingItselfWhereEverythingIsEmpty) {
    open();
    press("cmdAdd");
    expectFailure(aboutPeople(kRefused + QStringLiteral("Data.Name has no value")));
    expectStoredAsBefore();
}

TEST_F(PersonManagerThatFails, SaysThatANameWasTakenAway) {
    open();
    press("cmdEdit");
    enter("txtFields_0", QString());
    expectFailure(aboutPeople(kRefused + QStringLiteral("Data.Name has no value")));
    EXPECT_EQ(name(), QString());
    expectStoredAsBefore();
}

TEST_F(PersonManagerThatFails, SaysThatThereIsNoSuchCategory) {
    for (const char* number : {"99", "abc"}) {
        open();
        press("cmdEdit");
        enter("txtFields_4", QString::fromLatin1(number));
        expectFailure(aboutPeople(kRefused +
                                  QStringLiteral("the row refers to another that does not exist")));
        EXPECT_EQ(textOf("txtFields_4"), QString::fromLatin1(number));
        EXPECT_EQ(stored("SELECT CatID FROM Data WHERE Name = 'Adler'"), Value(friends_));
    }
}

TEST_F(PersonManagerThatFails, SaysThatTheCategoryIsGone) {
    beginToEdit();
    in<ComboBox>("cbAddCat").setText(QStringLiteral("Family"));
    runOnStore("DELETE FROM Category WHERE Category = 'Family'");
    expectFailure(
        aboutPeople(kRefused + QStringLiteral("the row refers to another that does not exist")));
}

TEST_F(PersonManagerThatFails, WritesWhatIsCorrectedAfterARefusal) {
    open();
    press("cmdAdd");
    enter("txtFields_0", QStringLiteral("Moss"));
    expectFailure(aboutPeople(kRefused + QStringLiteral("Data.Birthdate has no value")));
    pressKey(in<DatePicker>("dtpBirthday"), Qt::Key_Up);
    press("cmdUpdate");
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(stored("SELECT count(*) FROM Data WHERE Name = 'Moss'"), Value(1));
}

TEST_F(PersonManagerThatFails, WritesNothingOfTheOtherRowsWhereOneIsRefused) {
    beginToEdit();
    press("cmdAlphabet_9");
    enter("txtFields_0", QString());
    expectFailure(aboutPeople(kRefused + QStringLiteral("Data.Name has no value")));
    expectStoredAsBefore();
}

TEST_F(PersonManagerThatFails, SaysThatThePersonHasBeenChangedMeanwhile) {
    beginToEdit();
    runOnStore("UPDATE Data SET Notes = 'new' WHERE Name = 'Adler'");
    expectFailure(kNotLocated);
    EXPECT_EQ(name(), kTyped);
    EXPECT_EQ(stored("SELECT Notes FROM Data WHERE Name = 'Adler'"), Value(QStringLiteral("new")));
    expectStoredAsBefore();
}

TEST_F(PersonManagerThatFails, SaysThatThePersonHasBeenDeletedMeanwhile) {
    beginToEdit();
    runOnStore("DELETE FROM Data WHERE Name = 'Adler'");
    expectFailure(kNotLocated);
    EXPECT_EQ(name(), kTyped);
    EXPECT_EQ(stored("SELECT count(*) FROM Data"), Value(2));
}

TEST_F(PersonManagerThatFails, SaysThatAPersonToDeleteHasBeenChangedMeanwhile) {
    open();
    runOnStore("UPDATE Data SET Notes = 'new' WHERE Name = 'Adler'");
    host_.expectMessage(QStringLiteral("Are you sure?"), Answer::Yes);
    expectTrap(kNotLocated);
    press("cmdDelete");
    EXPECT_EQ(name(), QStringLiteral("Adler"));
    EXPECT_FALSE(editor().mbListsStale);
    expectStoredAsBefore();
}

TEST_F(PersonManagerThatFails, SaysThatAnotherProcessHoldsTheDatabase) {
    beginToEdit();
    SQLite::Database other(directory_.people().toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    expectFailure(aboutPeople(QStringLiteral("Permission denied: database is locked")));
    EXPECT_EQ(name(), kTyped);
    other.exec("COMMIT");
    expectStoredAsBefore();
    press("cmdUpdate");
    EXPECT_EQ(stored("SELECT count(*) FROM Data WHERE Name = 'Aaron'"), Value(1));
}

TEST_F(PersonManagerThatFails, BeginsNoEditWhileAnotherProcessHoldsTheDatabase) {
    open();
    SQLite::Database other(directory_.people().toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    for (const char* start : {"cmdEdit", "cmdAdd"}) {
        expectTrap(aboutPeople(QStringLiteral("Permission denied: database is locked")));
        press(start);
        EXPECT_FALSE(isEditing());
    }
    EXPECT_EQ(status(), QStringLiteral("Record: 1"));
}

TEST_F(PersonManagerThatFails, SaysThatTheDiskIsFull) {
    load();
    const FullDisk full;
    open();
    press("cmdEdit");
    const QString longText(100'000, u'x');
    in<MultiLineTextBox>("txtFields_5").setText(longText);
    expectFailure(aboutPeople(QStringLiteral("Disk full: database or disk is full")));
    EXPECT_EQ(in<MultiLineTextBox>("txtFields_5").Text(), longText);
    EXPECT_TRUE(stored("SELECT Notes FROM Data WHERE Name = 'Adler'").isNull());
    expectStoredAsBefore();
}

TEST_F(PersonManagerThatFails, EndsTheProgramWhereTheDatabaseIsGoneWhenItIsOpened) {
    load();
    QFile::remove(directory_.people());
    host_.expectMessage(
        QStringLiteral("Run-time error '53':\n\n") +
        aboutPeople(QStringLiteral("File not found: there is no file of this name")));
    frmAdd form(&window());
    runEvent([&] { form.Show(); });
    EXPECT_EQ(host_.exitCode(), 1);
}

TEST_F(PersonManagerThatFails, EndsTheProgramWhereNobodyIsLeftWhenItCloses) {
    beginToEdit();
    press("cmdUpdate");
    runOnStore("DELETE FROM Data");
    host_.expectMessage(noCurrentRecordBox());
    close();
    EXPECT_EQ(host_.exitCode(), 1);
}

}  // namespace
