// The summary of a new person, and the fields to write.
#include "records/new_person.h"

#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "support/printing.h"
#include "support/recording_host.h"

using modCycles::DateSerial;

namespace {

class NewPersonTest : public testing::Test {
  protected:
    NewPerson person_{.firstName = QStringLiteral(" Anna Maria "),
                      .name = QStringLiteral(" Lee "),
                      .birthdate = DateSerial(1972, 10, 20),
                      .isFemale = true,
                      .notes = QStringLiteral(" Likes walks ")};

    QStringList fieldNames() const {
        QStringList names;
        for (const auto& [name, value] : newPersonFields(person_, 1))
            names += name;
        return names;
    }

    // The value of a field; Null where it is not to be written.
    Value field(const char* wanted) const {
        for (const auto& [name, value] : newPersonFields(person_, 7)) {
            if (name == QString::fromLatin1(wanted))
                return value;
        }
        return {};
    }

    RecordingHost host_;
};

}  // namespace

TEST_F(NewPersonTest, IsSummedUpLineByLine) {
    EXPECT_EQ(newPersonSummary(person_, QStringLiteral("Family")),
              QStringLiteral("The following information will be written to the database:\r\n"
                             "\r\n"
                             "Name:\r\n"
                             "     Lee\r\n"
                             "\r\n"
                             "First name:\r\n"
                             "     Anna Maria\r\n"
                             "\r\n"
                             "Birthdate:\r\n"
                             "     Friday, 20 October 1972\r\n"
                             "\r\n"
                             "Gender:\r\n"
                             "     Female\r\n"
                             "\r\n"
                             "Category:\r\n"
                             "     Family\r\n"
                             "\r\n"
                             "Notes:\r\n"
                             "     Likes walks"));
}

TEST_F(NewPersonTest, IsSummedUpWithHeadingsAloneWhereNothingWasEntered) {
    person_ = {.firstName = {},
               .name = QStringLiteral("  "),
               .birthdate = DateSerial(2000, 3, 14),
               .isFemale = false,
               .notes = {}};
    EXPECT_EQ(newPersonSummary(person_, {}),
              QStringLiteral("The following information will be written to the database:\r\n\r\n"
                             "Name:\r\n     \r\n\r\nFirst name:\r\n     \r\n\r\n"
                             "Birthdate:\r\n     Tuesday, 14 March 2000\r\n\r\n"
                             "Gender:\r\n     Male\r\n\r\nCategory:\r\n     \r\n\r\n"
                             "Notes:\r\n     "));
}

TEST_F(NewPersonTest, IsSummedUpWithItsCategoryAsThatStands) {
    const QString summary = newPersonSummary(person_, QStringLiteral(" Aunts & <b>uncles</b> "));
    EXPECT_TRUE(summary.contains(QStringLiteral("\r\n      Aunts & <b>uncles</b> \r\n")));
}

TEST_F(NewPersonTest, IsWrittenFieldByFieldInTheirOrder) {
    EXPECT_EQ(fieldNames(), QStringList({QStringLiteral("FName"), QStringLiteral("Name"),
                                         QStringLiteral("Birthdate"), QStringLiteral("Gender"),
                                         QStringLiteral("CatID"), QStringLiteral("Notes")}));
    EXPECT_EQ(field("FName"), Value(QStringLiteral("Anna Maria")));
    EXPECT_EQ(field("Name"), Value(QStringLiteral("Lee")));
    EXPECT_EQ(field("Birthdate"), Value(DateSerial(1972, 10, 20)));
    EXPECT_EQ(field("Gender"), Value(-1));
    EXPECT_EQ(field("CatID"), Value(7));
    EXPECT_EQ(field("Notes"), Value(QStringLiteral("Likes walks")));
}

TEST_F(NewPersonTest, IsWrittenWithoutAFirstNameAndNotesOfBlanks) {
    person_.firstName = QStringLiteral("  ");
    person_.notes = QString();
    EXPECT_EQ(fieldNames(), QStringList({QStringLiteral("Name"), QStringLiteral("Birthdate"),
                                         QStringLiteral("Gender"), QStringLiteral("CatID")}));
}

TEST_F(NewPersonTest, IsWrittenWithANameThatIsEmpty) {
    person_.name = QStringLiteral("   ");
    EXPECT_EQ(field("Name"), Value(QStringLiteral("")));
}

TEST_F(NewPersonTest, IsANoughtIfMale) {
    person_.isFemale = false;
    EXPECT_EQ(field("Gender"), Value(0));
}

TEST(Gender, HasItsWord) {
    EXPECT_EQ(genderCaption(false), QStringLiteral("Male"));
    EXPECT_EQ(genderCaption(true), QStringLiteral("Female"));
}
