// A person as two people are compared, and the others.
#include "analyses/compared_person.h"

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

const Date kBorn = DateSerial(1972, 10, 20);
const QString kSmith = QStringLiteral("Smith");
const QString kAnna = QStringLiteral("Anna");

ComparedPerson named(const QString& name, const QString& firstName) {
    return {.nameId = 1, .name = name, .firstName = firstName, .birthdate = kBorn};
}

class ComparedPeople : public testing::Test {
  protected:
    ComparedPeople() { addCategory(directory_.people(), QStringLiteral("Family")); }

    Long add(const QString& name, const Value& firstName = {}) {
        return addPerson(directory_.people(),
                         {.name = name, .firstName = firstName, .birthdate = Value(kBorn)});
    }

    ComparedPerson read(Long nameId) {
        return comparedPerson(Recordset(connection_, statements::person(nameId)));
    }

    // "text=itemData" of everybody but one.
    QStringList others(Long nameId) {
        Recordset people(connection_, statements::allPeopleWithNotes());
        QStringList all;
        for (const ListEntry& entry : othersThan(read(nameId), people))
            all += entry.text + u'=' + QString::number(entry.itemData);
        return all;
    }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
    Connection connection_ = openPersonDatabase();
};

TEST_F(ComparedPeople, AreReadFromTheirRow) {
    const Long nameId = add(kSmith, kAnna);
    const ComparedPerson person = read(nameId);
    EXPECT_EQ(person.nameId, nameId);
    EXPECT_EQ(person.name, kSmith);
    EXPECT_EQ(person.firstName, kAnna);
    EXPECT_EQ(person.birthdate, kBorn);
}

TEST_F(ComparedPeople, HaveAnEmptyFirstNameWhereThereIsNone) {
    EXPECT_EQ(read(add(kSmith)).firstName, QString());
    EXPECT_EQ(read(add(kSmith, QStringLiteral(""))).firstName, QString());
}

TEST_F(ComparedPeople, RaiseWhereThereIsNobodyOrNoBirthDate) {
    EXPECT_EQ(errorOf([this] { read(4711); }), 3021);
    { const Connection closed = std::move(connection_); }
    directory_.dropConstraints();
    connection_ = openPersonDatabase();
    const Long undated = addPerson(directory_.people(), {.name = kSmith, .birthdate = Value()});
    EXPECT_EQ(errorOf([&] { read(undated); }), 94);
}

TEST_F(ComparedPeople, LeaveOutOneByTheNumberAndKeepANamesake) {
    const Long anna = add(kSmith, kAnna);
    const Long namesake = add(kSmith, kAnna);
    EXPECT_EQ(others(anna), QStringList(QStringLiteral("Smith, Anna=%1").arg(namesake)));
    EXPECT_EQ(others(namesake), QStringList(QStringLiteral("Smith, Anna=%1").arg(anna)));
}

TEST_F(ComparedPeople, KeepTheOrderOfTheSetAndNotThatOfTheirTexts) {
    add(kSmith, QStringLiteral("Zoe"));
    add(kSmith, kAnna);
    add(QStringLiteral("Adler"), QStringLiteral(""));
    const Long last = add(QStringLiteral("Zed"));
    EXPECT_EQ(others(last), QStringList({QStringLiteral("Adler=3"), QStringLiteral("Smith, Zoe=1"),
                                         QStringLiteral("Smith, Anna=2")}));
}

TEST_F(ComparedPeople, AreNobodyBesideOneAlone) {
    EXPECT_EQ(others(add(kSmith)), QStringList());
}

TEST(ComparedPersonTexts, PutTheFirstNameFirst) {
    EXPECT_EQ(fullName(named(kSmith, kAnna)), QStringLiteral("Anna Smith"));
    EXPECT_EQ(fullName(named(kSmith, {})), kSmith);
    EXPECT_EQ(fullName(named(QStringLiteral("Smith "), QStringLiteral(" Anna"))),
              QStringLiteral("Anna Smith"));
}

TEST(ComparedPersonTexts, CaptionTheWindowWithNameAndStarSign) {
    EXPECT_EQ(comparisonCaption(named(kSmith, kAnna)),
              QStringLiteral("Compatibility: Anna Smith (Libra) and ..."));
    EXPECT_EQ(comparisonCaption(named(kSmith, {})),
              QStringLiteral("Compatibility: Smith (Libra) and ..."));
}

TEST(ComparedPersonTexts, OwnTheFavouritesOfDisplayTextAndName) {
    const ComparedPerson person = named(kSmith, kAnna);
    for (const char* own : {"Smith, Anna", "Smith", " Smith ", " Smith, Anna  "})
        EXPECT_TRUE(isFavouriteOf(person, QString::fromLatin1(own))) << own;
    for (const char* other : {"Smith, Ann", "smith", "Smith,", "Smith,Anna", "Anna", ""})
        EXPECT_FALSE(isFavouriteOf(person, QString::fromLatin1(other))) << other;
}

TEST(ComparedPersonTexts, OwnTheNameAloneAndWithACommaWithoutAFirstName) {
    const ComparedPerson person = named(kSmith, {});
    EXPECT_TRUE(isFavouriteOf(person, kSmith));
    EXPECT_TRUE(isFavouriteOf(person, QStringLiteral("Smith,")));
    EXPECT_FALSE(isFavouriteOf(person, QStringLiteral("Smith, Anna")));
}

TEST(ComparedPersonTexts, OwnAFavouriteWhateverBlanksTheNameHas) {
    EXPECT_TRUE(isFavouriteOf(named(QStringLiteral(" Smith "), {}), kSmith));
}

}  // namespace
