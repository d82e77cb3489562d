// The record set as it is read: moves, places, fields and searches.
#include "store/recordset.h"

#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "store/databases.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/people.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

namespace {

// Adler, berg and Curie, in this order of name and in the other of number.
class RecordsetTest : public testing::Test {
  protected:
    RecordsetTest() {
        addCategory(directory_.people(), QStringLiteral("Family"));
        add(u"Curie");
        add(u"berg");
        add(u"Adler");
    }

    void add(const char16_t* name) {
        addPerson(directory_.people(), {.name = QString::fromUtf16(name)});
    }

    Recordset people() { return Recordset(connection_, statements::allPeopleWithNotes()); }
    Recordset nobody() { return Recordset(connection_, statements::person(4711)); }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
    Connection connection_ = openPersonDatabase();
};

QString nameOf(const Recordset& set) {
    return set.Fields(u"Name").toText();
}

}  // namespace

TEST_F(RecordsetTest, StandsOnTheFirstRowWhenOpened) {
    const Recordset set = people();
    EXPECT_EQ(set.State(), adStateOpen);
    EXPECT_EQ(set.RecordCount(), 3);
    EXPECT_FALSE(set.BOF());
    EXPECT_FALSE(set.EndOfFile());
    EXPECT_EQ(set.AbsolutePosition(), 1);
    EXPECT_EQ(nameOf(set), u"Adler");
}

TEST_F(RecordsetTest, IsAtBothEndsWithoutRows) {
    const Recordset set = nobody();
    EXPECT_EQ(set.RecordCount(), 0);
    EXPECT_TRUE(set.BOF());
    EXPECT_TRUE(set.EndOfFile());
    EXPECT_EQ(set.AbsolutePosition(), -1);
}

TEST_F(RecordsetTest, WalksToTheEndAndBack) {
    Recordset set = people();
    QStringList names;
    for (; !set.EndOfFile(); set.MoveNext())
        names << nameOf(set);
    EXPECT_EQ(set.AbsolutePosition(), -3);
    for (set.MovePrevious(); !set.BOF(); set.MovePrevious())
        names << nameOf(set);
    EXPECT_EQ(set.AbsolutePosition(), -2);
    EXPECT_EQ(names.join(u' '), u"Adler berg Curie Curie berg Adler");
    set.MoveNext();
    EXPECT_EQ(nameOf(set), u"Adler");
}

TEST_F(RecordsetTest, GoesToItsEnds) {
    Recordset set = people();
    set.MoveLast();
    EXPECT_EQ(nameOf(set), u"Curie");
    EXPECT_EQ(set.AbsolutePosition(), 3);
    set.MoveFirst();
    EXPECT_EQ(nameOf(set), u"Adler");
}

TEST_F(RecordsetTest, MovesBySeveralRowsAtMostOneBeyondAnEnd) {
    Recordset set = people();
    set.Move(2);
    EXPECT_EQ(nameOf(set), u"Curie");
    set.Move(-1);
    EXPECT_EQ(nameOf(set), u"berg");
    set.Move(0);
    EXPECT_EQ(nameOf(set), u"berg");
    set.Move(2'000'000'000);
    EXPECT_TRUE(set.EndOfFile());
    set.Move(-2'000'000'000);
    EXPECT_TRUE(set.BOF());
    set.Move(3);
    EXPECT_EQ(nameOf(set), u"Curie");
}

TEST_F(RecordsetTest, RaisesNoCurrentRecordBeyondItsEnds) {
    Recordset set = people();
    set.MovePrevious();
    EXPECT_EQ(errorOf([&] { set.MovePrevious(); }), 3021);
    EXPECT_EQ(errorOf([&] { nameOf(set); }), 3021);
    EXPECT_EQ(errorOf([&] { set.Bookmark(); }), 3021);
    EXPECT_EQ(errorOf([&] { set.Find(QStringLiteral("NameID = 1")); }), 3021);
    set.MoveLast();
    set.MoveNext();
    EXPECT_EQ(errorOf([&] { set.MoveNext(); }), 3021);
    EXPECT_EQ(errorOf([&] { set.Move(5); }), 3021);
    EXPECT_EQ(errorOf([&] { nameOf(set); }), 3021);
}

TEST_F(RecordsetTest, RaisesNoCurrentRecordForEveryMoveWithoutRows) {
    Recordset set = nobody();
    EXPECT_EQ(errorOf([&] { set.MoveFirst(); }), 3021);
    EXPECT_EQ(errorOf([&] { set.MoveLast(); }), 3021);
    EXPECT_EQ(errorOf([&] { set.MoveNext(); }), 3021);
    EXPECT_EQ(errorOf([&] { set.MovePrevious(); }), 3021);
    EXPECT_EQ(errorOf([&] { set.Find(QStringLiteral("NameID = 1")); }), 3021);
}

TEST_F(RecordsetTest, ReadsFieldsWithoutRegardToTheCaseOfTheirNames) {
    runSql(directory_.people(),
           QStringLiteral("UPDATE Data SET FName = 'Ada', Gender = -1 WHERE Name = 'Adler'"));
    const Recordset set = people();
    for (const char16_t* name : {u"fname", u"FName", u"FNAME"})
        EXPECT_EQ(set.Fields(QStringView(name)).toText(), u"Ada")
            << qPrintable(QString::fromUtf16(name));
    EXPECT_EQ(set.Fields(u"birthdate").toDate(), modCycles::DateSerial(1980, 6, 15));
    EXPECT_EQ(set.Fields(u"gender"), Value(-1));
}

TEST_F(RecordsetTest, ReadsAMissingValueAsNullAndRefusesAnUnknownName) {
    const Recordset set = people();
    EXPECT_TRUE(set.Fields(u"Notes").isNull());
    EXPECT_EQ(errorOf([&] { set.Fields(u"Nam"); }), 3265);
    EXPECT_EQ(errorOf([&] { set.Fields(u""); }), 3265);
}

TEST_F(RecordsetTest, KeepsTextsOfAnyLettersAndLength) {
    const QString text = QString::fromUtf8("\xC3\x85\xC4\xB1\xE2\x82\xAC\xF0\x9F\x98\x80'\"\r\n") +
                         QString(70'000, u'ß');
    addPerson(directory_.people(), {.name = text, .notes = QStringLiteral("")});
    Recordset set = people();
    set.Find(QStringLiteral("NameID = 4"));
    EXPECT_EQ(nameOf(set), text);
    EXPECT_EQ(set.Fields(u"Notes"), Value(QStringLiteral("")));
}

TEST_F(RecordsetTest, FindsFromTheCurrentRowOnIncludingIt) {
    Recordset set = people();
    set.Find(QStringLiteral("NameID = 2"));
    EXPECT_EQ(nameOf(set), u"berg");
    set.Find(QStringLiteral("NameID = 2"));
    EXPECT_EQ(nameOf(set), u"berg");
    set.Find(QStringLiteral("NameID = 3"));
    EXPECT_TRUE(set.EndOfFile()) << "an earlier row is not found";
}

TEST_F(RecordsetTest, StandsAtTheEndWhenNothingIsFound) {
    Recordset set = people();
    EXPECT_EQ(errorOf([&] { set.Find(QStringLiteral("NameID = 1234567")); }), 0);
    EXPECT_TRUE(set.EndOfFile());
    EXPECT_FALSE(set.BOF());
}

TEST_F(RecordsetTest, FindsTheFirstNameOfALetterOrBehindIt) {
    Recordset set = people();
    set.Find(QStringLiteral("Name > 'a*'"));
    EXPECT_EQ(nameOf(set), u"Adler");
    set.Find(QStringLiteral("Name > 'b*'"));
    EXPECT_EQ(nameOf(set), u"berg");
    set.MoveFirst();
    set.Find(QStringLiteral("name > 'bf*'"));
    EXPECT_EQ(nameOf(set), u"Curie");
    set.MoveFirst();
    set.Find(QStringLiteral("Name > 'y*'"));
    EXPECT_TRUE(set.EndOfFile());
}

TEST_F(RecordsetTest, PassesOverANameThatIsTheLetterAlone) {
    add(u"A");
    Recordset set = people();
    EXPECT_EQ(nameOf(set), u"A");
    set.Find(QStringLiteral("Name > 'a*'"));
    EXPECT_EQ(nameOf(set), u"Adler");
}

TEST_F(RecordsetTest, RefusesCriteriaThatItCannotReadAndStays) {
    Recordset set = people();
    set.MoveNext();
    EXPECT_EQ(errorOf([&] { set.Find(QStringLiteral("NameID")); }), 3001);
    EXPECT_EQ(errorOf([&] { set.Find(QStringLiteral("Nobody = 1")); }), 3265);
    EXPECT_EQ(nameOf(set), u"berg");
}

TEST_F(RecordsetTest, ReturnsToABookmark) {
    Recordset set = people();
    set.MoveNext();
    const Long bookmark = set.Bookmark();
    EXPECT_GT(bookmark, 0);
    set.MoveLast();
    set.setBookmark(bookmark);
    EXPECT_EQ(nameOf(set), u"berg");
    EXPECT_EQ(errorOf([&] { set.setBookmark(0); }), 3021);
    EXPECT_EQ(errorOf([&] { set.setBookmark(99); }), 3021);
    EXPECT_EQ(nameOf(set), u"berg");
}

TEST_F(RecordsetTest, ShowsWhatWasReadUntilItIsOpenedAgain) {
    Recordset set = people();
    add(u"Aaron");
    EXPECT_EQ(set.RecordCount(), 3);
    EXPECT_EQ(nameOf(set), u"Adler");
    set = people();
    EXPECT_EQ(set.RecordCount(), 4);
    EXPECT_EQ(nameOf(set), u"Aaron");
}

TEST_F(RecordsetTest, HoldsNoLock) {
    const Recordset set = people();
    runSql(directory_.people(), QStringLiteral("BEGIN EXCLUSIVE; COMMIT"));
    EXPECT_EQ(nameOf(set), u"Adler");
}

TEST_F(RecordsetTest, RefusesEverythingWhenClosed) {
    Recordset set = people();
    set.Close();
    EXPECT_EQ(set.State(), adStateClosed);
    EXPECT_EQ(errorOf([&] { set.RecordCount(); }), 3704);
    EXPECT_EQ(errorOf([&] { set.MoveFirst(); }), 3704);
    EXPECT_EQ(errorOf([&] { nameOf(set); }), 3704);
    EXPECT_EQ(errorOf([&] { set.AddNew(); }), 3704);
    EXPECT_EQ(errorOf([&] { set.Close(); }), 3704);
}
