// What a person's card says, without a window.
#include "records/person_card.h"

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

class PersonCardTest : public testing::Test {
  protected:
    PersonCardTest() { addCategory(directory_.people(), QStringLiteral("Family")); }

    PersonCard cardOf(const PersonRow& person) {
        const Long nameId = addPerson(directory_.people(), person);
        return cardOf(nameId);
    }

    PersonCard cardOf(Long nameId) {
        Connection connection = openPersonDatabase();
        const Recordset row(connection, statements::person(nameId));
        return personCard(row, host_.today());
    }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
};

const Value kAnna = QStringLiteral("Anna");
const Value kSmith = QStringLiteral("Smith");

}  // namespace

TEST(CardName, HasTheAgeBehindTheFullName) {
    EXPECT_EQ(cardName(kAnna, kSmith, 10), QStringLiteral("Anna Smith (10)"));
    EXPECT_EQ(cardName(kAnna, kSmith, -1), QStringLiteral("Anna Smith (-1)"));
}

TEST(CardName, BeginsWithTheNameWhereThereIsNoFirstName) {
    EXPECT_EQ(cardName({}, kSmith, 10), QStringLiteral("Smith (10)"));
    EXPECT_EQ(cardName(QStringLiteral(""), kSmith, 10), QStringLiteral("Smith (10)"));
}

TEST(CardName, LosesTheBlanksAtItsEndsAlone) {
    EXPECT_EQ(cardName(QStringLiteral(" Anna "), QStringLiteral(" Smith "), 10),
              QStringLiteral("Anna   Smith  (10)"));
}

TEST_F(PersonCardTest, TellsOfAPersonInFull) {
    const PersonCard card = cardOf({.name = QStringLiteral("Smith"),
                                    .firstName = kAnna,
                                    .birthdate = Value(DateSerial(1972, 10, 20)),
                                    .isFemale = true,
                                    .notes = QStringLiteral("Likes walks.\r\nAnd tea.")});
    EXPECT_EQ(card.name, QStringLiteral("Anna Smith (27)"));
    EXPECT_EQ(card.birth, QStringLiteral("Friday, 20 October 1972"));
    EXPECT_EQ(card.notes, QStringLiteral("Likes walks.\r\nAnd tea."));
    EXPECT_EQ(card.sign, QStringLiteral("Libra"));
    EXPECT_FALSE(card.isMale);
}

TEST_F(PersonCardTest, IsThatOfAManForAGenderOfNoughtAlone) {
    EXPECT_TRUE(cardOf({.name = QStringLiteral("Ben")}).isMale);
    directory_.dropConstraints();
    const Long nameId = addPerson(directory_.people(), {.name = QStringLiteral("Ben")});
    for (const char* gender : {"1", "-2", "NULL"}) {
        runSql(directory_.people(),
               QStringLiteral("UPDATE Data SET Gender = ") + QLatin1String(gender));
        EXPECT_FALSE(cardOf(nameId).isMale) << gender;
    }
}

TEST_F(PersonCardTest, IsTheSameForNotesThatAreEmptyAndNull) {
    EXPECT_EQ(cardOf({.name = QStringLiteral("Ben"), .notes = {}}).notes, QString());
    EXPECT_EQ(cardOf({.name = QStringLiteral("Ben"), .notes = QStringLiteral("")}).notes,
              QString());
}

TEST_F(PersonCardTest, TellsANegativeAgeOfWhoIsNotBornYet) {
    EXPECT_EQ(
        cardOf({.name = QStringLiteral("Unborn"), .birthdate = Value(DateSerial(2000, 3, 15))})
            .name,
        QStringLiteral("Unborn (-1)"));
}

TEST_F(PersonCardTest, RaisesForNobodyAndForADateOfBirthThatIsNull) {
    EXPECT_EQ(errorOf([this] { cardOf(4711); }), 3021);
    directory_.dropConstraints();
    EXPECT_EQ(
        errorOf([this] { cardOf({.name = QStringLiteral("Undated"), .birthdate = Value()}); }), 94);
}
