// The document of the database overview.
#include "reports/database_overview.h"

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

class DatabaseOverview : public testing::Test {
  protected:
    DatabaseOverview() { addCategory(directory_.people(), QStringLiteral("Friends")); }

    void add(const PersonRow& person) { addPerson(directory_.people(), person); }

    QString document() {
        Connection connection = openPersonDatabase();
        Recordset people(connection, statements::allPeopleWithNotes());
        return databaseOverview(people);
    }

    // The names, in their order.
    QStringList names() {
        QStringList names;
        const QString text = document();
        const QString before = QStringLiteral(R"(\pard\b\i\fs20 )");
        for (qsizetype at = text.indexOf(before); at >= 0; at = text.indexOf(before, at + 1)) {
            const qsizetype from = at + before.size();
            names += text.mid(from, text.indexOf(u'\\', from) - from);
        }
        return names;
    }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
};

}  // namespace

TEST_F(DatabaseOverview, TellsOfEverybodyInOrderOfTheName) {
    add({.name = QStringLiteral("Smith"),
         .firstName = QStringLiteral("Anna"),
         .birthdate = Value(DateSerial(1972, 10, 2)),
         .isFemale = true,
         .notes = QStringLiteral("Likes {tea}\r\nand \\b")});
    add({.name = QStringLiteral("Adler"), .birthdate = Value(DateSerial(1990, 5, 5))});
    EXPECT_EQ(
        document(),
        QStringLiteral(
            R"({\rtf1\ansi\ansicpg1252\deff0\deflang2057{\fonttbl{\f0\fswiss\fprq2\fcharset0 Arial;})"
            R"({\f1\fnil\fcharset0 Times New Roman;}})"
            R"({\colortbl ;\red0\green0\blue255;\red255\green0\blue0;\red0\green128\blue0;)"
            R"(\red128\green0\blue128;})"
            R"(\viewkind4\uc1\pard\qc\b\f0\fs28 Database Overview)"
            R"({\par}\pard\b\i\fs20 Adler\b0{\par}\i Date of birth: \i0\tab 5 May 1990{\par})"
            R"(\i Star sign: \i0\tab Taurus{\par}\i Notes: {\par})"
            R"({\par}\pard\b\i\fs20 Anna Smith\b0{\par})"
            R"(\i Date of birth: \i0\tab 2 October 1972{\par})"
            R"(\i Star sign: \i0\tab Libra{\par}\i Notes: {\par}Likes {tea})"
            "\r\n"
            R"(and \b\qc})"));
}

TEST_F(DatabaseOverview, ListsNamesakesAsTheStoreHasThem) {
    for (const char* firstName : {"Zoe", "Anna", "Mary"})
        add({.name = QStringLiteral("Smith"), .firstName = QString::fromLatin1(firstName)});
    EXPECT_EQ(names(), QStringList({QStringLiteral("Zoe Smith"), QStringLiteral("Anna Smith"),
                                    QStringLiteral("Mary Smith")}));
}

TEST_F(DatabaseOverview, HasNobodyToListInAnEmptyDatabase) {
    EXPECT_EQ(errorOf([this] { document(); }), 3021);
}

TEST_F(DatabaseOverview, CannotTellOfSomebodyWithoutABirthDate) {
    directory_.dropConstraints();
    add({.name = QStringLiteral("Smith"), .birthdate = Value()});
    EXPECT_EQ(errorOf([this] { document(); }), 94);
}
