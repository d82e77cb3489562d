// The add-person wizard where writing fails.
#include <SQLiteCpp/Database.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>

#include "records/wizard_driver.h"
#include "support/errors.h"

namespace {

class WizardThatFails : public WizardTest {
  protected:
    // Presses Finish and expects the trap's box, with an error of the store.
    void expectFailure(const QString& error) {
        expectBox(error + QStringLiteral(", ") + database());
    }

    void expectBox(const QString& description) {
        const bool wasDirty = wizard().WizardDirty;
        host_.expectMessage(description +
                            QStringLiteral(". Please report this error to the author."));
        press("cmdNext");
        EXPECT_EQ(host_.messages().back().icon, MessageIcon::None);
        EXPECT_EQ(host_.messages().back().title, QString());
        EXPECT_EQ(wizard().WizardStep, wizard::kWriting);
        EXPECT_EQ(wizard().WizardDirty, wasDirty);
        expectSummaryStays();
    }

    void expectSummaryStays() {
        EXPECT_TRUE(in<QWidget>("txtFinal").isVisibleTo(&wizard()));
        EXPECT_EQ(captionOf("cmdNext"), QStringLiteral("&Finish"));
        EXPECT_EQ(in<QLabel>("lblIntro").text(), wizard::step(wizard::kSummary).guidance);
    }

    QString database() const { return QDir::toNativeSeparators(directory_.people()); }

    // Nobody, neither the wizard, holds the database or has begun to write it.
    void expectStoreIsFree() { runSql(directory_.people(), QStringLiteral("BEGIN EXCLUSIVE")); }

    void refuseRowsOf(const char* table) {
        runSql(directory_.people(), QStringLiteral("CREATE TRIGGER refuse BEFORE INSERT ON %1 "
                                                   "BEGIN SELECT RAISE(ABORT, 'no more rows'); END")
                                        .arg(QString::fromLatin1(table)));
    }

    const QString kRefused = QStringLiteral(
        "Data value conflicts with the integrity constraints of the field: no more rows");
};

TEST_F(WizardThatFails, SaysThatNoCategoryIsSelected) {
    open();
    enterName(kJohnDoe);
    goTo(wizard::kSummary);
    expectBox(QStringLiteral("Invalid property array index"));
    EXPECT_EQ(peopleStored(), 3);
    expectStoreIsFree();
}

TEST_F(WizardThatFails, SaysWhyAPersonIsRefusedAndWritesNothing) {
    refuseRowsOf("Data");
    openAtSummary();
    expectFailure(kRefused);
    EXPECT_EQ(peopleStored(), 3);
    expectStoreIsFree();
}

TEST_F(WizardThatFails, SaysDoneAtTheNextFinishThoughNothingIsWritten) {
    refuseRowsOf("Data");
    openAtSummary();
    expectFailure(kRefused);
    press("cmdNext");
    EXPECT_EQ(wizard().WizardStep, wizard::kDone);
    EXPECT_EQ(in<QLabel>("lblIntro").text(), wizard::step(wizard::kDone).guidance);
    EXPECT_EQ(captionOf("cmdNext"), QStringLiteral("&Next >"));
    EXPECT_FALSE(in<QWidget>("txtFinal").isVisibleTo(&wizard()));
    EXPECT_FALSE(wizard().WizardDirty);
    EXPECT_EQ(peopleStored(), 3);
}

TEST_F(WizardThatFails, LeadsBackToTheSummaryAndWritesOnceThatIsPossible) {
    refuseRowsOf("Data");
    openAtSummary();
    expectFailure(kRefused);
    press("cmdBack");
    EXPECT_EQ(wizard().WizardStep, wizard::kSummary);
    runSql(directory_.people(), QStringLiteral("DROP TRIGGER refuse"));
    press("cmdNext");
    EXPECT_EQ(wizard().WizardStep, wizard::kDone);
    EXPECT_EQ(peopleStored(), 4);
}

TEST_F(WizardThatFails, StaysDirtyWhereACategoryWasAddedBefore) {
    refuseRowsOf("Data");
    openAtSummary();
    enterCategory(QStringLiteral("Aunts"));
    expectFailure(kRefused);
    EXPECT_TRUE(wizard().WizardDirty);
}

TEST_F(WizardThatFails, SaysThatTheCategoryIsGone) {
    openAtSummary();
    runSql(directory_.people(), QStringLiteral("DELETE FROM Category WHERE Category = 'Family'"));
    expectFailure(
        QStringLiteral("Data value conflicts with the integrity constraints of the field: "
                       "the row refers to another that does not exist"));
    EXPECT_EQ(peopleStored(), 3);
}

TEST_F(WizardThatFails, SaysThatAnotherProcessHoldsTheDatabase) {
    openAtSummary();
    SQLite::Database other(directory_.people().toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    expectFailure(QStringLiteral("Permission denied: database is locked"));
    other.exec("COMMIT");
    EXPECT_EQ(peopleStored(), 3);
}

TEST_F(WizardThatFails, SaysThatTheDatabaseIsReadOnly) {
    openAtSummary();
    QFile::setPermissions(directory_.people(), QFile::ReadOwner);
    if (QFileInfo(directory_.people()).isWritable())
        GTEST_SKIP() << "This user may write whatever the permissions say";
    expectFailure(QStringLiteral("Permission denied: the file is read-only"));
}

TEST_F(WizardThatFails, SaysThatTheDatabaseIsGoneBeforeThatNoCategoryIsSelected) {
    open();
    enterName(kJohnDoe);
    goTo(wizard::kSummary);
    QFile::remove(directory_.people());
    expectFailure(QStringLiteral("File not found: there is no file of this name"));
}

TEST_F(WizardThatFails, EndsTheProgramWhereACategoryCannotBeAdded) {
    refuseRowsOf("Category");
    open();
    host_.expectMessage(QStringLiteral("Run-time error '3719':\n\n") + kRefused +
                        QStringLiteral(", ") + database());
    enterCategory(QStringLiteral("Aunts"));
    EXPECT_EQ(host_.exitCode(), 1);
    EXPECT_EQ(stored("SELECT count(*) FROM Category"), Value(2));
    EXPECT_FALSE(wizard().WizardDirty);
}

TEST_F(WizardThatFails, EndsTheProgramWithoutCategories) {
    load();
    runSql(directory_.people(), QStringLiteral("DELETE FROM Category"));
    host_.expectMessage(noCurrentRecordBox());
    frmAddNew form(&window());
    runEvent([&] { form.ShowModal(); });
    EXPECT_EQ(host_.exitCode(), 1);
    EXPECT_FALSE(form.isVisible());
}

}  // namespace
