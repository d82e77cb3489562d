// The writing of a new person and of a new category.
#include "records/new_records.h"

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "store/databases.h"
#include "support/errors.h"
#include "support/people.h"
#include "support/printing.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

using modCycles::DateSerial;

namespace {

class NewRecordsTest : public testing::Test {
  protected:
    void write() { writePerson(openPersonDatabase(), person_, family_); }

    // What the latest of the people has in a field.
    Value latest(const char* field) const {
        return valueOf(directory_.people(),
                       QStringLiteral("SELECT %1 FROM Data ORDER BY NameID DESC LIMIT 1")
                           .arg(QString::fromLatin1(field)));
    }

    Long count(const char* table) const {
        return valueOf(directory_.people(),
                       QStringLiteral("SELECT count(*) FROM %1").arg(QString::fromLatin1(table)))
            .toLong();
    }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
    Long family_ = addCategory(directory_.people(), QStringLiteral("Family"));
    NewPerson person_{.firstName = QStringLiteral("Zoë"),
                      .name = QStringLiteral("O'Brien \"Nováková\""),
                      .birthdate = DateSerial(1980, 2, 29),
                      .isFemale = true,
                      .notes = QStringLiteral("one\r\ntwo")};
};

}  // namespace

TEST_F(NewRecordsTest, WriteAPersonAsEntered) {
    write();
    EXPECT_EQ(count("Data"), 1);
    EXPECT_EQ(latest("FName"), Value(QStringLiteral("Zoë")));
    EXPECT_EQ(latest("Name"), Value(QStringLiteral("O'Brien \"Nováková\"")));
    EXPECT_EQ(latest("Birthdate"), Value(DateSerial(1980, 2, 29)));
    EXPECT_EQ(latest("Gender"), Value(-1));
    EXPECT_EQ(latest("CatID"), Value(family_));
    EXPECT_EQ(latest("Notes"), Value(QStringLiteral("one\r\ntwo")));
}

TEST_F(NewRecordsTest, LeaveAFirstNameAndNotesWithoutTextNull) {
    person_.firstName = QStringLiteral("  ");
    person_.notes = QString();
    write();
    EXPECT_TRUE(latest("FName").isNull());
    EXPECT_TRUE(latest("Notes").isNull());
}

TEST_F(NewRecordsTest, WriteAnEmptyNameAsATextAndNotNull) {
    person_.name = QString();
    write();
    EXPECT_EQ(latest("Name"), Value(QStringLiteral("")));
}

TEST_F(NewRecordsTest, WriteAPersonAgainWithANumberOfItsOwn) {
    write();
    const Value first = latest("NameID");
    write();
    EXPECT_EQ(count("Data"), 2);
    EXPECT_NE(latest("NameID"), first);
}

TEST_F(NewRecordsTest, RefuseAPersonOfACategoryThatIsGone) {
    EXPECT_EQ(errorOf([this] { writePerson(openPersonDatabase(), person_, family_ + 1); }), 3719);
    EXPECT_EQ(count("Data"), 0);
}

TEST_F(NewRecordsTest, WriteNothingOfAPersonForWhomThereIsNoRoomOnTheDisk) {
    Connection full = openPersonDatabase();
    full.database().exec("PRAGMA max_page_count = 1");  // clamped to the present size
    person_.notes = QString(100'000, u'x');
    EXPECT_EQ(errorOf([&] { writePerson(std::move(full), person_, family_); }), 61);
    EXPECT_EQ(count("Data"), 0);
}

TEST_F(NewRecordsTest, WriteACategoryEachTimeAlsoUnderANameThatThereIs) {
    writeCategory(openPersonDatabase(), QStringLiteral("Friends"));
    writeCategory(openPersonDatabase(), QStringLiteral("Friends"));
    EXPECT_EQ(count("Category WHERE Category = 'Friends'"), 2);
    EXPECT_EQ(count("Category"), 3);
}
