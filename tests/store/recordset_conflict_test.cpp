// Two that write the same rows.
#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include <functional>

#include "store/databases.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/people.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

namespace {

class RecordsetConflictTest : public testing::Test {
  protected:
    RecordsetConflictTest() {
        addCategory(directory_.people(), QStringLiteral("Family"));
        addPerson(directory_.people(), {.name = QStringLiteral("Adler"),
                                        .firstName = QStringLiteral("Ada"),
                                        .birthdate = 1.5});
        addPerson(directory_.people(), {.name = QStringLiteral("Berg")});
        set_ = std::make_unique<Recordset>(connection_, statements::allPeopleWithNotes());
    }

    // Lets another write the first person.
    void another(const char* assignments) {
        runSql(directory_.people(), QStringLiteral("UPDATE Data SET %1 WHERE NameID = 1")
                                        .arg(QString::fromUtf8(assignments)));
    }

    Value stored(const char* field) const {
        return valueOf(
            directory_.people(),
            QStringLiteral("SELECT %1 FROM Data WHERE NameID = 1").arg(QString::fromUtf8(field)));
    }

    static void expectConflict(const std::function<void()>& write) {
        EXPECT_EQ(descriptionOf(write),
                  u"Row cannot be located for updating. Some values may have been changed since it "
                  u"was last read.");
    }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
    Connection connection_ = openPersonDatabase();
    std::unique_ptr<Recordset> set_;
};

const QString kMine = QStringLiteral("mine");

}  // namespace

TEST_F(RecordsetConflictTest, RefusesToWriteOverAnothersChangeOfAnyField) {
    set_->Collect(u"Notes", kMine);
    for (const char* change :
         {"Name = 'Zed'", "FName = NULL", "Birthdate = 2.5", "Gender = -1", "Notes = 'theirs'"}) {
        another(change);
        expectConflict([&] { set_->UpdateBatch(adAffectAll); });
        another("Name = 'Adler', FName = 'Ada', Birthdate = 1.5, Gender = 0, Notes = NULL");
    }
    EXPECT_EQ(set_->Fields(u"Notes"), Value(kMine));
    set_->UpdateBatch(adAffectAll);
    EXPECT_EQ(stored("Notes"), Value(kMine));
}

TEST_F(RecordsetConflictTest, TakesAChangeOfCaseOrAccentForAChange) {
    set_->Collect(u"Notes", kMine);
    another("Name = 'ADLER'");
    expectConflict([&] { set_->Update(); });
    another("Name = 'Adler', FName = 'Ad\xC3\xA1'");
    expectConflict([&] { set_->Update(); });
    EXPECT_TRUE(stored("Notes").isNull());
}

TEST_F(RecordsetConflictTest, DoesNotTakeAWriteOfTheSameValuesForAChange) {
    set_->Collect(u"Notes", kMine);
    another("Name = 'Adler'");
    set_->Update();
    EXPECT_EQ(stored("Notes"), Value(kMine));
}

TEST_F(RecordsetConflictTest, RefusesToWriteARowThatIsGone) {
    set_->Collect(u"Notes", kMine);
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data WHERE NameID = 1"));
    expectConflict([&] { set_->Update(); });
    expectConflict([&] { set_->Delete(adAffectCurrent); });
    EXPECT_EQ(set_->RecordCount(), 2);
}

TEST_F(RecordsetConflictTest, RefusesToDeleteARowThatAnotherChanged) {
    another("Name = 'Zed'");
    expectConflict([&] { set_->Delete(adAffectCurrent); });
    EXPECT_EQ(stored("Name"), Value(QStringLiteral("Zed")));
    EXPECT_EQ(set_->Fields(u"Name"), Value(QStringLiteral("Adler")));
}

TEST_F(RecordsetConflictTest, WritesNothingOfABatchInWhichOneRowConflicts) {
    set_->Collect(u"Notes", kMine);
    set_->MoveNext();
    set_->Collect(u"Notes", kMine);
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data WHERE NameID = 2"));
    expectConflict([&] { set_->UpdateBatch(adAffectAll); });
    EXPECT_TRUE(stored("Notes").isNull());
    set_->CancelUpdate();
    set_->UpdateBatch(adAffectAll);
    EXPECT_EQ(stored("Notes"), Value(kMine));
}

TEST_F(RecordsetConflictTest, IsSettledByOpeningTheSetAgain) {
    another("Name = 'Aaron'");
    Recordset again(connection_, statements::allPeopleWithNotes());
    again.Collect(u"Notes", kMine);
    again.Update();
    EXPECT_EQ(stored("Notes"), Value(kMine));
    EXPECT_EQ(stored("Name"), Value(QStringLiteral("Aaron")));
}

TEST_F(RecordsetConflictTest, HasTheNumberOfARowThatIsNotLocated) {
    set_->Collect(u"Notes", kMine);
    another("Name = 'Zed'");
    EXPECT_EQ(errorOf([&] { set_->Update(); }), -2147217864);
}

TEST_F(RecordsetConflictTest, SaysBeforeAnEditWhatStandsInItsWay) {
    SQLite::Database other(directory_.people().toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    EXPECT_EQ(errorOf([&] { set_->Edit(); }), 70);
    other.exec("COMMIT");
    EXPECT_EQ(errorOf([&] { set_->Edit(); }), 0);
    set_->MovePrevious();
    EXPECT_EQ(errorOf([&] { set_->Edit(); }), 3021);
    Recordset readOnly(connection_, statements::allPeopleWithNotes(), adLockReadOnly);
    EXPECT_EQ(errorOf([&] { readOnly.Edit(); }), 3251);
}

TEST_F(RecordsetConflictTest, NeedsNothingOfTheStoreToCollectAfterAnEditHasBegun) {
    set_->Edit();
    SQLite::Database other(directory_.people().toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    set_->Collect(u"Notes", kMine);
    EXPECT_EQ(set_->Fields(u"Notes"), Value(kMine));
}
