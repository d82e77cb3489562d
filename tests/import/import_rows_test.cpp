// The people to import as rows, out of an old database and into the new one.
#include "import/import_rows.h"

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
using namespace import_column;

namespace {

class ImportRows : public testing::Test {
  protected:
    // An old database of so many people, the first of whom is "Name 0, First" born on 1 January
    // 1970, the second "Name 1, First" born a day later.
    void makeOld(int people) {
        runSql(old(), QStringLiteral("CREATE TABLE Data (Name, birthdate REAL)"));
        for (int i = 0; i < people; ++i)
            addOld(QStringLiteral("'Name %1, First'").arg(i), QString::number(25569 + i));
    }

    void addOld(const QString& name, const QString& birthdate) {
        runSql(old(), QStringLiteral("INSERT INTO Data VALUES (%1, %2)").arg(name, birthdate));
    }

    QString old() const { return directory_.path(QStringLiteral("Names.mdb")); }

    Recordset openOld() {
        connection_ = openOldPeople(old());
        return Recordset(*connection_, statements::wholeTable());
    }

    // The rows of those at these places.
    std::vector<ListRow> read(const std::vector<int>& places, int names) {
        std::vector<ListEntry> entries(static_cast<std::size_t>(names));
        for (const int place : places)
            entries[static_cast<std::size_t>(place)].selected = true;
        std::vector<ListRow> rows;
        Recordset people = openOld();
        error_ = errorOf([&] {
            readImportRows(people, entries, [&](ListRow row) { rows.push_back(std::move(row)); });
        });
        return rows;
    }

    ListRow onlyRow(const QString& name, const QString& birthdate) {
        makeOld(0);
        addOld(name, birthdate);
        return read({0}, 1).at(0);
    }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
    std::optional<Connection> connection_;
    int error_ = 0;
};

QStringList lastNames(const std::vector<ListRow>& rows) {
    QStringList names;
    for (const ListRow& row : rows)
        names += row.texts[kName];
    return names;
}

ListRow johnDoe() {
    return {
        .texts = {QStringLiteral(" Doe "), QStringLiteral(" John "), QStringLiteral("20 Oct 1972"),
                  QStringLiteral("7"), QStringLiteral("Friends"), QStringLiteral("1")},
        .checked = true};
}

TEST_F(ImportRows, HaveColumnsOfWhichTwoAreHidden) {
    const std::vector<ListColumn> columns = importColumns();
    QStringList headers;
    std::vector<bool> hidden;
    for (const ListColumn& column : columns) {
        headers += column.header;
        hidden.push_back(column.width == 0);
    }
    EXPECT_EQ(headers.join(u'|'), u"Name|First name|Birthdate|CatID|Category|cbidx");
    EXPECT_EQ(hidden, std::vector({false, false, false, true, false, true}));
}

TEST_F(ImportRows, StartWithBothNamesTheDateAndNoCategory) {
    const ListRow row = onlyRow(QStringLiteral("'Doe, John'"), QStringLiteral("26592"));
    EXPECT_EQ(row.texts.join(u'|'), u"Doe|John|20 Oct 1972||?|0");
    EXPECT_FALSE(row.checked);
    EXPECT_TRUE(isUnassigned(row));
}

TEST_F(ImportRows, TakeTheWholeDayOfABirthdateAlone) {
    const ListRow row = onlyRow(QStringLiteral("'Doe'"), QStringLiteral("26592.99"));
    EXPECT_EQ(row.texts[kBirthdate], u"20 Oct 1972");
    EXPECT_EQ(importFields(row).birthdate, DateSerial(1972, 10, 20));
}

TEST_F(ImportRows, TakeTheDayOfABirthdateBeforeDayZero) {
    const ListRow row = onlyRow(QStringLiteral("'Doe'"), QStringLiteral("-1.75"));
    EXPECT_EQ(row.texts[kBirthdate], u"29 Dec 1899");
}

TEST_F(ImportRows, AreThoseOfTheSelectedInTheirOrder) {
    makeOld(12);
    const std::vector<ListRow> rows = read({2, 5, 9}, 12);
    EXPECT_EQ(error_, 0);
    EXPECT_EQ(lastNames(rows).join(u'|'), u"Name 2|Name 5|Name 9");
    EXPECT_EQ(rows[2].texts[kBirthdate], u"10 Jan 1970");
    EXPECT_EQ(lastNames(read({0, 11}, 12)).join(u'|'), u"Name 0|Name 11");
}

TEST_F(ImportRows, BeginAtTheFirstPersonWhereverTheOldPeopleStand) {
    makeOld(3);
    Recordset people = openOld();
    people.MoveLast();
    QStringList names;
    readImportRows(people, {{.text = {}, .selected = true}},
                   [&](const ListRow& row) { names += row.texts[kName]; });
    EXPECT_EQ(names, QStringList{QStringLiteral("Name 0")});
}

TEST_F(ImportRows, EndAtAPersonWithoutABirthdate) {
    makeOld(2);
    addOld(QStringLiteral("'Null, Nina'"), QStringLiteral("NULL"));
    addOld(QStringLiteral("'Zed'"), QStringLiteral("1"));
    EXPECT_EQ(lastNames(read({0, 2, 3}, 4)), QStringList{QStringLiteral("Name 0")});
    EXPECT_EQ(error_, 94);
}

TEST_F(ImportRows, EndAtAPersonWithoutAName) {
    makeOld(1);
    addOld(QStringLiteral("NULL"), QStringLiteral("1"));
    EXPECT_EQ(read({0, 1}, 2).size(), 1U);
    EXPECT_EQ(error_, 94);
}

TEST_F(ImportRows, EndAtABirthdateThatIsNone) {
    makeOld(1);
    addOld(QStringLiteral("'Zed'"), QStringLiteral("'soon'"));
    EXPECT_EQ(read({0, 1}, 2).size(), 1U);
    EXPECT_EQ(error_, 13);
}

TEST_F(ImportRows, EndBehindTheLastOfTheOldPeople) {
    makeOld(3);
    EXPECT_EQ(read({1, 3, 4}, 6).size(), 1U);
    EXPECT_EQ(error_, 3021);
}

TEST_F(ImportRows, AreNoneWhereTheOldPeopleAreNone) {
    makeOld(0);
    EXPECT_EQ(read({0}, 1).size(), 0U);
    EXPECT_EQ(error_, 3021);
}

TEST_F(ImportRows, NameEverybodyOfTheOldDatabaseAsHeStands) {
    makeOld(1);
    addOld(QStringLiteral("' Doe , John '"), QStringLiteral("NULL"));
    Recordset people = openOld();
    people.MoveLast();
    QStringList names;
    readOldNames(people, [&](const QString& name) { names += name; });
    EXPECT_EQ(names,
              QStringList({QStringLiteral("Name 0, First"), QStringLiteral(" Doe , John ")}));
    EXPECT_TRUE(people.EndOfFile());
}

TEST_F(ImportRows, NameNobodyOfAnEmptyOldDatabase) {
    makeOld(0);
    Recordset people = openOld();
    EXPECT_EQ(errorOf([&] { readOldNames(people, [](const QString&) {}); }), 3021);
}

TEST_F(ImportRows, KnowWhetherAnybodyIsSelected) {
    EXPECT_FALSE(isAnySelected({}));
    EXPECT_FALSE(isAnySelected({{}, {}}));
    EXPECT_TRUE(isAnySelected({{}, {.text = {}, .selected = true}}));
}

TEST_F(ImportRows, ShowTheirFields) {
    const ImportFields fields = importFields(johnDoe());
    EXPECT_EQ(fields.name, u" Doe ");
    EXPECT_EQ(fields.firstName, u" John ");
    EXPECT_EQ(fields.birthdate, DateSerial(1972, 10, 20));
    EXPECT_EQ(fields.categoryIndex, 1);
}

TEST_F(ImportRows, AreUpdatedWithEverythingButTheGender) {
    const ListRow row = updatedRow(johnDoe(),
                                   {.name = QStringLiteral(" van Doe "),
                                    .firstName = QStringLiteral(" Jane "),
                                    .birthdate = DateSerial(2000, 3, 1) + 0.5,
                                    .categoryIndex = 3},
                                   {.text = QStringLiteral("Work"), .itemData = 12});
    EXPECT_EQ(row.texts.join(u'|'), u"van Doe|Jane|1 Mar 2000|12|Work|3");
    EXPECT_TRUE(row.checked);
    EXPECT_FALSE(isUnassigned(row));
}

TEST_F(ImportRows, AreAssignedToACategoryAndKeepItsOldIndex) {
    const ListRow row = assignedRow(johnDoe(), {.text = QStringLiteral("Work"), .itemData = 12});
    EXPECT_EQ(row.texts.join(u'|'), u" Doe | John |20 Oct 1972|12|Work|1");
    EXPECT_TRUE(row.checked);
}

TEST_F(ImportRows, OfACategoryOfThatNameCountAsUnassigned) {
    EXPECT_TRUE(isUnassigned(assignedRow(johnDoe(), {.text = QStringLiteral("?")})));
    EXPECT_FALSE(isUnassigned(johnDoe()));
}

TEST_F(ImportRows, TellWhoHasBeenImported) {
    ListRow row = johnDoe();
    EXPECT_EQ(importedLine(row), u"John   Doe\r\n");
    row.texts[kFirstName].clear();
    EXPECT_EQ(importedLine(row), u"Doe\r\n");
}

TEST_F(ImportRows, AreWrittenTrimmedInTheOrderOfTheirFieldsAndWithoutNotes) {
    const auto record = importedRecord(johnDoe());
    QStringList fields;
    for (const auto& [field, value] : record)
        fields += field;
    EXPECT_EQ(fields.join(u' '), u"Name FName Gender Birthdate CatID");
    EXPECT_EQ(record[0].second, Value(QStringLiteral("Doe")));
    EXPECT_EQ(record[1].second, Value(QStringLiteral("John")));
    EXPECT_EQ(record[2].second, Value(-1));
    EXPECT_EQ(record[3].second, Value(DateSerial(1972, 10, 20)));
    EXPECT_EQ(record[4].second, Value(7));
}

TEST_F(ImportRows, AreWrittenWithAnEmptyFirstNameAndNotWithNone) {
    ListRow row = johnDoe();
    row.texts[kFirstName] = QStringLiteral(" ");
    row.checked = false;
    EXPECT_EQ(importedRecord(row)[1].second, Value(QString()));
    EXPECT_FALSE(importedRecord(row)[1].second.isNull());
    EXPECT_EQ(importedRecord(row)[2].second, Value(0));
}

TEST_F(ImportRows, CannotBeWrittenWithoutACategoryOrADate) {
    ListRow row = johnDoe();
    row.texts[kCatId].clear();
    EXPECT_EQ(errorOf([&] { importedRecord(row); }), 13);
    row = johnDoe();
    row.texts[kBirthdate].clear();
    EXPECT_EQ(errorOf([&] { importedRecord(row); }), 13);
}

}  // namespace
