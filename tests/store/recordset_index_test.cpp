// Searches in a record set with an index: their results are those of a walk.
#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "store/databases.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/people.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

using modCycles::DateSerial;

namespace {

// Twelve people of three categories, whose names stand in another order than their numbers.
class RecordsetIndexTest : public testing::Test {
  protected:
    RecordsetIndexTest() {
        for (const char* category : {"Family", "Friends", "Work"})
            addCategory(directory_.people(), QString::fromLatin1(category));
        for (int person = 0; person < kPeople; ++person)
            addPerson(directory_.people(), {.name = QString(QChar(u'A' + person * 5 % kPeople)),
                                            .birthdate = Value(DateSerial(1980, 1, 1 + person % 4)),
                                            .isFemale = person % 2 == 0,
                                            .catId = 1 + person % 3});
    }

    Recordset people() { return Recordset(connection_, statements::allPeopleWithNotes()); }

    Recordset indexed(QStringView field) {
        Recordset set = people();
        set.indexForFind(field);
        return set;
    }

    // Where a search from a row ends.
    static Long placeAfter(Recordset& set, Long row, const QString& criteria) {
        set.MoveFirst();
        set.Move(row);
        set.Find(criteria);
        return set.AbsolutePosition();
    }

    static constexpr int kPeople = 12;

    RecordingHost host_;
    ProgramDirectory directory_{host_};
    Connection connection_ = openPersonDatabase();
};

TEST_F(RecordsetIndexTest, FindsFromEveryRowWhatAWalkFinds) {
    Recordset walked = people();
    for (const char* field : {"NameID", "CatID", "Gender", "Birthdate"}) {
        Recordset set = indexed(QString::fromLatin1(field));
        for (const int number : {-1, 0, 1, 2, 3, 7, 12, 13, 29221, 29223}) {
            const QString criteria =
                QString::fromLatin1(field) + QStringLiteral(" = ") + QString::number(number);
            for (Long row = 0; row < kPeople; ++row)
                EXPECT_EQ(placeAfter(set, row, criteria), placeAfter(walked, row, criteria))
                    << criteria.toStdString() << " from " << row;
        }
    }
}

TEST_F(RecordsetIndexTest, WalksForEveryOtherSearch) {
    Recordset walked = people();
    Recordset set = indexed(u"nameid");
    for (const char* criteria :
         {"NameID > 7", "NameID <> 3", "Name = 'C'", "CatID = 3", "NameID = '3'"}) {
        const QString text = QString::fromLatin1(criteria);
        EXPECT_EQ(placeAfter(set, 2, text), placeAfter(walked, 2, text)) << criteria;
    }
}

TEST_F(RecordsetIndexTest, IsUsedFromARowAlone) {
    Recordset set = indexed(u"NameID");
    set.MoveLast();
    set.MoveNext();
    EXPECT_EQ(errorOf([&] { set.Find(QStringLiteral("NameID = 1")); }), 3021);
}

TEST_F(RecordsetIndexTest, RaisesAnErrorForAnUnknownField) {
    EXPECT_EQ(errorOf([this] { indexed(u"Nobody"); }), 3265);
}

TEST_F(RecordsetIndexTest, FindsAPendingValueThatCameLater) {
    Recordset set = indexed(u"CatID");
    set.MoveLast();
    set.Collect(u"CatID", 99);
    EXPECT_EQ(placeAfter(set, 0, QStringLiteral("CatID = 99")), kPeople);
}

TEST_F(RecordsetIndexTest, FindsARowThatWasAddedLater) {
    Recordset set = indexed(u"CatID");
    set.AddNew();
    set.Collect(u"CatID", 99);
    EXPECT_EQ(placeAfter(set, 0, QStringLiteral("CatID = 99")), kPeople + 1);
}

TEST_F(RecordsetIndexTest, FindsNoRowThatWasDeletedLater) {
    Recordset set = indexed(u"NameID");
    set.Find(QStringLiteral("NameID = 5"));
    set.Delete(adAffectCurrent);
    set.MoveFirst();
    set.Find(QStringLiteral("NameID = 5"));
    EXPECT_TRUE(set.EndOfFile());
}

TEST_F(RecordsetIndexTest, IsMadeForNoSetWithPendingChanges) {
    Recordset set = people();
    set.MoveLast();
    set.Collect(u"CatID", 99);
    set.indexForFind(u"CatID");
    EXPECT_EQ(placeAfter(set, 0, QStringLiteral("CatID = 99")), kPeople);
}

TEST_F(RecordsetIndexTest, IsMadeForNoSetThatHasLostARow) {
    Recordset set = people();
    set.Find(QStringLiteral("NameID = 5"));
    set.Delete(adAffectCurrent);
    set.indexForFind(u"NameID");
    set.MoveFirst();
    set.Find(QStringLiteral("NameID = 5"));
    EXPECT_TRUE(set.EndOfFile());
}

TEST_F(RecordsetIndexTest, IsMadeAnewForWhatHasBeenWritten) {
    Recordset set = indexed(u"CatID");
    set.MoveLast();
    set.Collect(u"CatID", 2);
    set.Update();
    set.indexForFind(u"CatID");
    EXPECT_EQ(placeAfter(set, kPeople - 1, QStringLiteral("CatID = 2")), kPeople);
}

}  // namespace
