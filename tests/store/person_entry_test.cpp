// The texts by which people are shown.
#include "store/person_entry.h"

#include <gtest/gtest.h>

#include "store/databases.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/people.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

namespace {

const Value kSmith = QStringLiteral("Smith");
const Value kAnna = QStringLiteral("Anna");

}  // namespace

TEST(DisplayText, IsTheNameAndTheFirstName) {
    EXPECT_EQ(displayText(kSmith, kAnna), u"Smith, Anna");
}

TEST(DisplayText, IsTheNameAloneWithoutAFirstName) {
    EXPECT_EQ(displayText(kSmith, Value()), u"Smith");
    EXPECT_EQ(displayText(kSmith, Value(QString())), u"Smith");
    EXPECT_EQ(displayText(kSmith, Value(QStringLiteral(""))), u"Smith");
}

TEST(DisplayText, TakesABlankForAFirstName) {
    EXPECT_EQ(displayText(kSmith, Value(QStringLiteral(" "))), u"Smith,  ");
}

TEST(DisplayText, RaisesInvalidUseOfNullWithoutAName) {
    EXPECT_EQ(errorOf([] { displayText(Value(), kAnna); }), 94);
}

TEST(FullName, IsTheFirstNameThenTheName) {
    EXPECT_EQ(fullName(kSmith, kAnna), u"Anna Smith");
}

TEST(FullName, HasNoBlanksAtItsEnds) {
    EXPECT_EQ(fullName(kSmith, Value()), u"Smith");
    EXPECT_EQ(fullName(kSmith, Value(QStringLiteral("  "))), u"Smith");
    EXPECT_EQ(fullName(Value(QStringLiteral(" Smith ")), Value()), u"Smith");
    EXPECT_EQ(fullName(Value(QStringLiteral("van Doe ")), kAnna), u"Anna van Doe");
}

TEST(PersonEntry, IsReadFromTheCurrentRow) {
    RecordingHost host;
    ProgramDirectory directory(host);
    addCategory(directory.people(), QStringLiteral("Family"));
    const Long nameId =
        addPerson(directory.people(), {.name = QStringLiteral("Smith"), .firstName = kAnna});
    Connection connection = openPersonDatabase();
    const Recordset row(connection, statements::person(nameId));
    EXPECT_EQ(displayText(row), u"Smith, Anna");
    EXPECT_EQ(fullName(row), u"Anna Smith");
}
