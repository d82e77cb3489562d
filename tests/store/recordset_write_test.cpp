// The record set as it is written: pending values, new rows, batches and deletes.
#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "store/databases.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/people.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

namespace {

const QString kAdler = QStringLiteral("Adler");
const QString kBerg = QStringLiteral("Berg");
const QString kCurie = QStringLiteral("Curie");
const QString kZed = QStringLiteral("Zed");

// Adler, Berg and Curie, numbered 1, 2 and 3.
class RecordsetWriteTest : public testing::Test {
  protected:
    Connection openFilled() {
        addCategory(directory_.people(), QStringLiteral("Family"));
        for (const QString& name : {kAdler, kBerg, kCurie})
            addPerson(directory_.people(), {.name = name});
        return openPersonDatabase();
    }

    QString storedNames() const {
        return valueOf(directory_.people(),
                       QStringLiteral("SELECT group_concat(Name, ' ') FROM "
                                      "(SELECT Name FROM Data ORDER BY NameID)"))
            .toText();
    }

    void fillNewRow(const QString& name) {
        set_.Collect(u"Name", name);
        set_.Collect(u"Birthdate", Value(modCycles::DateSerial(2000, 3, 14)));
        set_.Collect(u"gender", Value(-1));
        set_.Collect(u"CatID", 1);
    }

    QString name() const { return set_.Fields(u"Name").toText(); }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
    Connection connection_ = openFilled();
    Recordset set_{connection_, statements::allPeopleWithNotes()};
};

}  // namespace

TEST_F(RecordsetWriteTest, ShowsPendingValuesBeforeTheyAreWritten) {
    set_.Collect(u"NAME", kZed);
    EXPECT_EQ(name(), kZed);
    EXPECT_EQ(storedNames(), u"Adler Berg Curie");
}

TEST_F(RecordsetWriteTest, WritesTheCurrentRowOnUpdate) {
    set_.Collect(u"Name", kZed);
    set_.Collect(u"Notes", QStringLiteral("A note"));
    set_.Update();
    EXPECT_EQ(storedNames(), u"Zed Berg Curie");
    EXPECT_EQ(set_.Fields(u"Notes").toText(), u"A note");
    EXPECT_EQ(set_.AbsolutePosition(), 1);
}

TEST_F(RecordsetWriteTest, WritesTheSameRowTwice) {
    for (const QString& text : {kZed, kBerg}) {
        set_.Collect(u"Name", text);
        set_.Update();
    }
    EXPECT_EQ(storedNames(), u"Berg Berg Curie");
}

TEST_F(RecordsetWriteTest, WritesNullAndTheEmptyTextAsTheyAre) {
    set_.Collect(u"FName", QStringLiteral(""));
    set_.Collect(u"Notes", Value());
    set_.Update();
    EXPECT_EQ(valueOf(directory_.people(),
                      QStringLiteral("SELECT FName IS NOT NULL AND Notes IS NULL FROM Data "
                                     "WHERE NameID = 1")),
              Value(1));
}

TEST_F(RecordsetWriteTest, KeepsPendingValuesOnTheirRowsWhenItMoves) {
    set_.Collect(u"Name", kZed);
    set_.MoveNext();
    EXPECT_EQ(name(), kBerg);
    set_.Collect(u"Notes", QStringLiteral("n"));
    set_.MovePrevious();
    EXPECT_EQ(name(), kZed);
    set_.UpdateBatch(adAffectAll);
    EXPECT_EQ(storedNames(), u"Zed Berg Curie");
    set_.MoveNext();
    EXPECT_EQ(
        valueOf(directory_.people(), QStringLiteral("SELECT Notes FROM Data WHERE NameID = 2"))
            .toText(),
        u"n");
}

TEST_F(RecordsetWriteTest, WritesABatchFromNoRowToo) {
    set_.Collect(u"Name", kZed);
    set_.MoveLast();
    set_.MoveNext();
    set_.UpdateBatch(adAffectAll);
    EXPECT_EQ(storedNames(), u"Zed Berg Curie");
    EXPECT_TRUE(set_.EndOfFile());
}

TEST_F(RecordsetWriteTest, WritesOnlyTheCurrentRowWhenAskedTo) {
    set_.Collect(u"Name", kZed);
    set_.MoveNext();
    set_.Collect(u"Name", kZed);
    set_.UpdateBatch(adAffectCurrent);
    EXPECT_EQ(storedNames(), u"Adler Zed Curie");
    set_.UpdateBatch(adAffectAll);
    EXPECT_EQ(storedNames(), u"Zed Zed Curie");
}

TEST_F(RecordsetWriteTest, HasNothingToWriteWithoutPendingValues) {
    EXPECT_EQ(errorOf([&] { set_.Update(); }), 0);
    EXPECT_EQ(errorOf([&] { set_.UpdateBatch(adAffectAll); }), 0);
    EXPECT_EQ(errorOf([&] { set_.CancelUpdate(); }), 0);
    EXPECT_EQ(storedNames(), u"Adler Berg Curie");
}

TEST_F(RecordsetWriteTest, FindsByPendingValues) {
    set_.MoveLast();
    set_.Collect(u"Name", kZed);
    set_.MoveFirst();
    set_.Find(QStringLiteral("Name = 'zed'"));
    EXPECT_EQ(set_.AbsolutePosition(), 3);
    set_.MoveFirst();
    set_.Find(QStringLiteral("Name = 'Curie'"));
    EXPECT_TRUE(set_.EndOfFile());
}

TEST_F(RecordsetWriteTest, AddsARowOfNullsAtTheEndAndStandsOnIt) {
    set_.AddNew();
    EXPECT_EQ(set_.RecordCount(), 4);
    EXPECT_EQ(set_.AbsolutePosition(), 4);
    EXPECT_TRUE(set_.Fields(u"Name").isNull());
    EXPECT_TRUE(set_.Fields(u"NameID").isNull());
    EXPECT_EQ(storedNames(), u"Adler Berg Curie");
}

TEST_F(RecordsetWriteTest, LearnsTheNumberOfANewRowWhenItIsWritten) {
    set_.AddNew();
    fillNewRow(QStringLiteral("Aaron"));
    set_.Update();
    EXPECT_EQ(set_.Fields(u"NameID"), Value(4));
    EXPECT_EQ(set_.Fields(u"Birthdate").toDate(), modCycles::DateSerial(2000, 3, 14));
    EXPECT_EQ(storedNames(), u"Adler Berg Curie Aaron");
}

TEST_F(RecordsetWriteTest, KeepsANewRowAtTheEndUntilItIsOpenedAgain) {
    set_.AddNew();
    fillNewRow(QStringLiteral("Aaron"));
    set_.UpdateBatch(adAffectAll);
    set_.MoveFirst();
    EXPECT_EQ(name(), kAdler);
    set_.MoveLast();
    EXPECT_EQ(name(), u"Aaron");
    EXPECT_EQ(Recordset(connection_, statements::allPeople()).Fields(u"Name").toText(), u"Aaron");
}

TEST_F(RecordsetWriteTest, ChangesAndDeletesARowThatItAdded) {
    set_.AddNew();
    fillNewRow(QStringLiteral("Aaron"));
    set_.Update();
    set_.Collect(u"Name", kZed);
    set_.Update();
    EXPECT_EQ(storedNames(), u"Adler Berg Curie Zed");
    set_.Delete(adAffectCurrent);
    EXPECT_EQ(storedNames(), u"Adler Berg Curie");
}

TEST_F(RecordsetWriteTest, TakesTheStoresDefaultsForWhatANewRowLeavesOut) {
    set_.AddNew();
    set_.Collect(u"Name", kZed);
    set_.Collect(u"Birthdate", 5);
    set_.Collect(u"CatID", 1);
    set_.Update();
    EXPECT_EQ(set_.Fields(u"Gender"), Value(0));
    EXPECT_EQ(set_.Fields(u"Birthdate"), Value(5.0));
    EXPECT_TRUE(set_.Fields(u"Notes").isNull());
}

TEST_F(RecordsetWriteTest, AddsToTheWholeTableEvenIfItIsEmpty) {
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data"));
    Recordset whole(connection_, statements::wholeTable());
    whole.AddNew();
    whole.Collect(u"Name", kZed);
    whole.Collect(u"Birthdate", 5);
    whole.Collect(u"CatID", 1);
    whole.Update();
    EXPECT_EQ(whole.RecordCount(), 1);
    EXPECT_EQ(storedNames(), kZed);
}

TEST_F(RecordsetWriteTest, ForgetsTheCurrentRowsPendingValuesOnCancel) {
    set_.Collect(u"Name", kZed);
    set_.MoveNext();
    set_.Collect(u"Name", kZed);
    set_.CancelUpdate();
    EXPECT_EQ(name(), kBerg);
    set_.UpdateBatch(adAffectAll);
    EXPECT_EQ(storedNames(), u"Zed Berg Curie");
}

TEST_F(RecordsetWriteTest, TakesACancelledNewRowAwayAndReturnsToTheRowBefore) {
    set_.MoveNext();
    set_.AddNew();
    set_.Collect(u"Name", kZed);
    set_.CancelUpdate();
    EXPECT_EQ(set_.RecordCount(), 3);
    EXPECT_EQ(name(), kBerg);
    set_.UpdateBatch(adAffectAll);
    EXPECT_EQ(storedNames(), u"Adler Berg Curie");
}

TEST_F(RecordsetWriteTest, StandsAtTheEndAfterACancelledNewRowThatNoneWasBefore) {
    set_.MovePrevious();
    set_.AddNew();
    set_.CancelUpdate();
    EXPECT_TRUE(set_.EndOfFile());
    EXPECT_FALSE(set_.BOF());
}

TEST_F(RecordsetWriteTest, DoesNotTakeAWrittenRowAwayOnCancel) {
    set_.AddNew();
    fillNewRow(kZed);
    set_.Update();
    set_.CancelUpdate();
    EXPECT_EQ(set_.RecordCount(), 4);
    EXPECT_EQ(name(), kZed);
}

TEST_F(RecordsetWriteTest, StandsOnNoRowAfterADelete) {
    set_.MoveNext();
    const Long bookmark = set_.Bookmark();
    set_.Delete(adAffectCurrent);
    EXPECT_EQ(storedNames(), u"Adler Curie");
    EXPECT_EQ(set_.RecordCount(), 2);
    EXPECT_FALSE(set_.BOF());
    EXPECT_FALSE(set_.EndOfFile());
    EXPECT_EQ(set_.AbsolutePosition(), -1);
    EXPECT_EQ(errorOf([&] { name(); }), 3021);
    EXPECT_EQ(errorOf([&] { set_.Delete(adAffectCurrent); }), 3021);
    EXPECT_EQ(errorOf([&] { set_.Collect(u"Name", kZed); }), 3021);
    EXPECT_EQ(errorOf([&] { set_.setBookmark(bookmark); }), 3021);
}

TEST_F(RecordsetWriteTest, MovesFromADeletedRowToItsNeighbours) {
    set_.MoveNext();
    set_.Delete(adAffectCurrent);
    set_.MoveNext();
    EXPECT_EQ(name(), kCurie);
    EXPECT_EQ(set_.AbsolutePosition(), 2);
    set_.Delete(adAffectCurrent);
    set_.MovePrevious();
    EXPECT_EQ(name(), kAdler);
}

TEST_F(RecordsetWriteTest, IsAtTheEndBehindADeletedLastRow) {
    set_.MoveLast();
    set_.Delete(adAffectCurrent);
    set_.MoveNext();
    EXPECT_TRUE(set_.EndOfFile());
    set_.MoveLast();
    EXPECT_EQ(name(), kBerg);
}

TEST_F(RecordsetWriteTest, IsAtBothEndsWhenItsOnlyRowIsDeletedAndLeft) {
    Recordset one(connection_, statements::person(1));
    one.Delete(adAffectCurrent);
    EXPECT_EQ(one.RecordCount(), 0);
    one.MoveNext();
    EXPECT_TRUE(one.BOF());
    EXPECT_TRUE(one.EndOfFile());
    EXPECT_EQ(errorOf([&] { one.MoveFirst(); }), 3021);
}

TEST_F(RecordsetWriteTest, ForgetsTheDeletedRowsPendingValues) {
    set_.Collect(u"Name", kZed);
    set_.Delete(adAffectCurrent);
    set_.UpdateBatch(adAffectAll);
    EXPECT_EQ(storedNames(), u"Berg Curie");
}

TEST_F(RecordsetWriteTest, DeletesANewRowThatTheStoreNeverSaw) {
    set_.AddNew();
    set_.Delete(adAffectCurrent);
    EXPECT_EQ(set_.RecordCount(), 3);
    set_.UpdateBatch(adAffectAll);
    EXPECT_EQ(storedNames(), u"Adler Berg Curie");
}

TEST_F(RecordsetWriteTest, DeletesNothingButTheCurrentRow) {
    EXPECT_EQ(errorOf([&] { set_.Delete(adAffectAll); }), 3001);
    EXPECT_EQ(storedNames(), u"Adler Berg Curie");
}

TEST_F(RecordsetWriteTest, WritesAllOfABatchOrNothing) {
    set_.Collect(u"Name", kZed);
    set_.MoveLast();
    set_.Collect(u"CatID", 4711);
    set_.AddNew();
    fillNewRow(kZed);
    EXPECT_EQ(errorOf([&] { set_.UpdateBatch(adAffectAll); }), 3719);
    EXPECT_EQ(storedNames(), u"Adler Berg Curie");

    set_.MoveFirst();
    EXPECT_EQ(name(), kZed) << "what was pending stays";
    set_.Move(2);
    EXPECT_EQ(set_.Fields(u"CatID").toLong(), 4711);
    set_.Collect(u"CatID", 1);
    set_.UpdateBatch(adAffectAll);
    EXPECT_EQ(storedNames(), u"Zed Berg Curie Zed");
}

TEST_F(RecordsetWriteTest, NamesWhatARejectedRowLacks) {
    set_.AddNew();
    set_.Collect(u"Birthdate", 5);
    set_.Collect(u"CatID", 1);
    const QString start =
        QStringLiteral("Data value conflicts with the integrity constraints of the field: ");
    const auto update = [&] { set_.UpdateBatch(adAffectAll); };
    EXPECT_TRUE(descriptionOf(update).startsWith(start + QStringLiteral("Data.Name has no value")))
        << qPrintable(descriptionOf(update));
    set_.Collect(u"Name", kZed);
    set_.Collect(u"CatID", 4711);
    EXPECT_TRUE(descriptionOf(update).startsWith(
        start + QStringLiteral("the row refers to another that does not exist")))
        << qPrintable(descriptionOf(update));
    set_.Collect(u"CatID", 1);
    set_.Collect(u"Gender", 1);
    EXPECT_EQ(errorOf(update), 3719);
    set_.Collect(u"Gender", 0);
    EXPECT_EQ(errorOf(update), 0);
}

TEST_F(RecordsetWriteTest, KeepsWhatIsPendingWhileTheFileIsLocked) {
    Connection other = openPersonDatabase();
    other.database().exec("BEGIN IMMEDIATE");
    set_.Collect(u"Name", kZed);
    EXPECT_EQ(errorOf([&] { set_.UpdateBatch(adAffectAll); }), 70);
    EXPECT_EQ(name(), kZed);
    other.database().exec("COMMIT");
    set_.UpdateBatch(adAffectAll);
    EXPECT_EQ(storedNames(), u"Zed Berg Curie");
}

TEST_F(RecordsetWriteTest, KeepsARowThatCannotBeDeletedWhileAnotherReads) {
    Connection other = openPersonDatabase();
    other.database().exec("BEGIN; SELECT * FROM Data");
    EXPECT_EQ(errorOf([&] { set_.Delete(adAffectCurrent); }), 70);
    other.database().exec("COMMIT");
    EXPECT_EQ(name(), kAdler);
    EXPECT_EQ(storedNames(), u"Adler Berg Curie");
    set_.Delete(adAffectCurrent);
    EXPECT_EQ(storedNames(), u"Berg Curie");
}

TEST_F(RecordsetWriteTest, RefusesEveryChangeOfAReadOnlySet) {
    Recordset readOnly(connection_, statements::allPeople(), adLockReadOnly);
    EXPECT_EQ(errorOf([&] { readOnly.AddNew(); }), 3251);
    EXPECT_EQ(errorOf([&] { readOnly.Collect(u"Name", kZed); }), 3251);
    EXPECT_EQ(errorOf([&] { readOnly.Delete(adAffectCurrent); }), 3251);
    EXPECT_EQ(readOnly.RecordCount(), 3);
}

TEST_F(RecordsetWriteTest, RefusesEveryChangeOfASetWithoutItsKey) {
    Recordset noKey(connection_, QStringLiteral("select Name from Data"));
    EXPECT_EQ(errorOf([&] { noKey.Collect(u"Name", kZed); }), 3251);
    EXPECT_EQ(errorOf([&] { noKey.AddNew(); }), 3251);
}

TEST_F(RecordsetWriteTest, RefusesFieldsItDoesNotHave) {
    EXPECT_EQ(errorOf([&] { set_.Collect(u"Nobody", kZed); }), 3265);
    set_.UpdateBatch(adAffectAll);
    EXPECT_EQ(storedNames(), u"Adler Berg Curie");
}

TEST_F(RecordsetWriteTest, SurvivesTheMoveOfItsConnectionAndItself) {
    Connection movedConnection = std::move(connection_);
    Recordset movedSet = std::move(set_);
    movedSet.Collect(u"Name", kZed);
    movedSet.Update();
    EXPECT_EQ(storedNames(), u"Zed Berg Curie");
    EXPECT_EQ(set_.State(), adStateClosed);
}
