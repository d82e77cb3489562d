// The birthdays of a day, without a window.
#include "analyses/birthdays.h"

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

class Birthdays : public testing::Test {
  protected:
    Birthdays() { addCategory(directory_.people(), QStringLiteral("Family")); }

    void add(const char* name, const Value& firstName, Date birthdate) {
        addPerson(directory_.people(), {.name = QString::fromUtf8(name),
                                        .firstName = firstName,
                                        .birthdate = Value(birthdate)});
    }

    std::vector<Birthday> on(Date date) {
        Connection connection = openPersonDatabase();
        Recordset people(connection, statements::birthdays());
        return birthdaysOn(date, people);
    }

    QStringList namesOn(Date date) {
        QStringList names;
        for (const Birthday& birthday : on(date))
            names += birthday.name;
        return names;
    }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
};

const Value kAnna = QStringLiteral("Anna");
const Date kBorn = DateSerial(1972, 3, 14);

TEST_F(Birthdays, AreThoseOfTheDayAndTheMonthWhateverTheYear) {
    add("Born", {}, kBorn);
    add("Later", {}, DateSerial(1999, 3, 14));
    add("OtherDay", {}, DateSerial(1972, 3, 15));
    add("OtherMonth", {}, DateSerial(1972, 4, 14));
    EXPECT_EQ(namesOn(DateSerial(2000, 3, 14)),
              QStringList({QStringLiteral("Born"), QStringLiteral("Later")}));
}

TEST_F(Birthdays, AreNoneWhereNobodyWasBorn) {
    add("Born", {}, kBorn);
    EXPECT_EQ(on(DateSerial(2000, 3, 13)), std::vector<Birthday>());
}

TEST_F(Birthdays, RaiseWhenThereIsNobodyAtAll) {
    EXPECT_EQ(errorOf([this] { on(kBorn); }), 3021);
}

TEST_F(Birthdays, RaiseForADateOfBirthThatIsNull) {
    directory_.dropConstraints();
    addPerson(directory_.people(), {.name = QStringLiteral("Undated"), .birthdate = Value()});
    EXPECT_EQ(errorOf([this] { on(kBorn); }), 94);
}

TEST_F(Birthdays, OfALeapDayAreListedOnALeapDayAlone) {
    add("Leap", {}, DateSerial(1972, 2, 29));
    EXPECT_EQ(namesOn(DateSerial(2000, 2, 29)), QStringList(QStringLiteral("Leap")));
    EXPECT_EQ(namesOn(DateSerial(2001, 2, 28)), QStringList());
    EXPECT_EQ(namesOn(DateSerial(2001, 3, 1)), QStringList());
}

TEST_F(Birthdays, TellTheAgeThatIsReachedInTheYear) {
    add("Born", {}, kBorn);
    EXPECT_EQ(on(DateSerial(2000, 3, 14)).front().age, 28);
    EXPECT_EQ(on(kBorn).front().age, 0);
    EXPECT_EQ(on(DateSerial(1970, 3, 14)).front().age, -2);
}

TEST_F(Birthdays, NamePeopleFirstNameFirst) {
    add("Smith ", QStringLiteral(" Anna"), kBorn);
    EXPECT_EQ(namesOn(kBorn), QStringList(QStringLiteral("Anna Smith")));
}

TEST_F(Birthdays, NamePeopleWithoutAFirstNameByTheirName) {
    add(" Adler ", {}, kBorn);
    add(" Berg ", QStringLiteral(""), kBorn);
    EXPECT_EQ(namesOn(kBorn), QStringList({QStringLiteral("Adler"), QStringLiteral("Berg")}));
}

TEST_F(Birthdays, CarryTheStarSignInSmallLetters) {
    add("Fish", {}, kBorn);
    add("Archer", {}, DateSerial(1972, 12, 1));
    EXPECT_EQ(on(kBorn).front().signKey, QStringLiteral("pisces"));
    EXPECT_EQ(on(DateSerial(2000, 12, 1)).front().signKey, QStringLiteral("sagittarius"));
}

TEST_F(Birthdays, StandInOrderOfNameFirstNameAndDateOfBirth) {
    add("Smith", QStringLiteral("Ben"), kBorn);
    add("Smith", kAnna, DateSerial(1999, 3, 14));
    add("Smith", kAnna, kBorn);
    add("Adler", QStringLiteral("Zoe"), kBorn);
    std::vector<std::pair<QString, Long>> found;
    for (const Birthday& birthday : on(DateSerial(2000, 3, 14)))
        found.emplace_back(birthday.name, birthday.age);
    const std::vector<std::pair<QString, Long>> expected{{QStringLiteral("Zoe Adler"), 28},
                                                         {QStringLiteral("Anna Smith"), 28},
                                                         {QStringLiteral("Anna Smith"), 1},
                                                         {QStringLiteral("Ben Smith"), 28}};
    EXPECT_EQ(found, expected);
}

TEST_F(Birthdays, AreFoundInTheWholeSetWhereverItStands) {
    add("Adler", {}, kBorn);
    add("Zed", {}, kBorn);
    Connection connection = openPersonDatabase();
    Recordset people(connection, statements::birthdays());
    people.MoveLast();
    EXPECT_EQ(birthdaysOn(kBorn, people).size(), 2U);
    EXPECT_EQ(birthdaysOn(kBorn, people).size(), 2U);
}

// Before 1900 a date counts down, and its time of day forward.
TEST_F(Birthdays, FallOnEveryDayOfTheYearOnce) {
    add("Person", {}, DateSerial(1888, 2, 29) + 0.5);
    add("Person", {}, DateSerial(1899, 12, 29) + 0.5);
    add("Person", {}, DateSerial(1899, 12, 30) + 0.5);
    add("Person", {}, DateSerial(1904, 12, 31));
    add("Person", {}, DateSerial(2000, 1, 1));
    std::size_t found = 0;
    for (int day = 0; day < 366; ++day)
        found += on(DateSerial(2000, 1, 1) + day).size();
    EXPECT_EQ(found, 5U);
}

}  // namespace
