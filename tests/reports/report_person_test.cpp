// What the reports on one person say of them.
#include "reports/report_person.h"

#include <gtest/gtest.h>

#include "store/databases.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/people.h"
#include "support/printing.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

using modCycles::DateSerial;

namespace {

class ReportPersonTest : public testing::Test {
  protected:
    ReportPerson read(Long nameId) {
        Connection connection = openPersonDatabase();
        Recordset categories(connection, statements::categories());
        const Recordset person(connection, statements::person(nameId));
        return reportPerson(person, categories);
    }

    ReportPerson readAdded(const PersonRow& person) {
        return read(addPerson(directory_.people(), person));
    }

    // A person whose fields can be made what the constraints forbid.
    Long addToLooseTable() {
        directory_.dropConstraints();
        addCategory(directory_.people(), QStringLiteral("Friends"));
        return addPerson(directory_.people(), {.name = QStringLiteral("Smith")});
    }

    void set(const char* assignment) {
        runSql(directory_.people(), QStringLiteral("UPDATE Data SET ") + QLatin1String(assignment));
    }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
};

}  // namespace

TEST_F(ReportPersonTest, HasItsValuesInWords) {
    addCategory(directory_.people(), QStringLiteral("Friends"));
    const Long family = addCategory(directory_.people(), QStringLiteral(" Family "));
    const ReportPerson person = readAdded({.name = QStringLiteral("Smith "),
                                           .firstName = QStringLiteral("Anna"),
                                           .birthdate = Value(DateSerial(1972, 10, 2)),
                                           .isFemale = true,
                                           .catId = family,
                                           .notes = QStringLiteral(" a\r\n{b\\c ")});
    EXPECT_EQ(person.fullName, u"Anna Smith");
    EXPECT_EQ(person.birthText, u"Monday, 2 October 1972");
    EXPECT_EQ(person.starSign, u"Libra");
    EXPECT_EQ(person.gender, u"Female");
    EXPECT_EQ(person.category, u"Family");
    EXPECT_EQ(person.notes, u" a\r\n{b\\c ");
}

TEST_F(ReportPersonTest, HasItsCategoryWhicheverIsTheCurrentOne) {
    addCategory(directory_.people(), QStringLiteral("Friends"));
    addCategory(directory_.people(), QStringLiteral("Family"));
    const Long nameId = addPerson(directory_.people(), {.name = QStringLiteral("Smith")});
    Connection connection = openPersonDatabase();
    Recordset categories(connection, statements::categories());
    categories.MoveLast();
    const Recordset person(connection, statements::person(nameId));
    EXPECT_EQ(reportPerson(person, categories).category, u"Friends");
}

TEST_F(ReportPersonTest, IsHeadedByTheLastNameAloneWithoutAFirstName) {
    addCategory(directory_.people(), QStringLiteral("Friends"));
    EXPECT_EQ(readAdded({.name = QStringLiteral("Smith")}).fullName, u"Smith");
    EXPECT_EQ(readAdded({.name = QStringLiteral("Smith"), .firstName = QString()}).fullName,
              u"Smith");
}

TEST_F(ReportPersonTest, HasNoNotesWhereThereAreNone) {
    addCategory(directory_.people(), QStringLiteral("Friends"));
    EXPECT_EQ(readAdded({.name = QStringLiteral("Smith")}).notes, QString());
}

TEST_F(ReportPersonTest, IsMaleWhereTheGenderIsFalseAndFemaleElse) {
    const Long nameId = addToLooseTable();
    EXPECT_EQ(read(nameId).gender, u"Male");
    set("Gender = -1");
    EXPECT_EQ(read(nameId).gender, u"Female");
    set("Gender = 1");
    EXPECT_EQ(read(nameId).gender, u"Female");
    set("Gender = NULL");
    EXPECT_EQ(read(nameId).gender, u"Female");
}

TEST_F(ReportPersonTest, CannotBeReadWithoutABirthDate) {
    const Long nameId = addToLooseTable();
    set("Birthdate = NULL");
    EXPECT_EQ(errorOf([&] { read(nameId); }), 94);
}

TEST_F(ReportPersonTest, CannotBeReadWhereThePersonOrTheCategoryIsGone) {
    const Long nameId = addToLooseTable();
    EXPECT_EQ(errorOf([&] { read(nameId + 1); }), 3021);
    set("CatID = 99");
    EXPECT_EQ(errorOf([&] { read(nameId); }), 3021);
    runSql(directory_.people(), QStringLiteral("DELETE FROM Category"));
    EXPECT_EQ(errorOf([&] { read(nameId); }), 3021);
}
