// An old database, as far as Ondara's own tables are in it.
#include "store/old_database.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/errors.h"
#include "support/old_tables.h"
#include "support/printing.h"

namespace {

class OldDatabaseTest : public testing::Test {
  protected:
    void make(const std::vector<BuiltTable>& tables) { makeFile(path_, builtJet(4, tables).bytes); }

    QString errorOfRows(const OldField& field) {
        return descriptionOf(
            [&] { OldDatabase(path_).rows(QStringLiteral("Data"), {field}).next(); });
    }

    QString ofAnotherType(const char* field) {
        return QStringLiteral(
                   "Type mismatch: field %1 of table Data is of another type than in "
                   "Ondara, %2")
            .arg(QLatin1String(field), QDir::toNativeSeparators(path_));
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(QStringLiteral("Ondara2.mdb"));
};

}  // namespace

TEST_F(OldDatabaseTest, HasTheFieldsThatAreAskedForWhateverTheirCase) {
    make({oldPeople({oldPerson(7, "Adler", 3)})});
    const OldDatabase old(path_);
    JetRows rows =
        old.rows(QStringLiteral("data"), {{QStringLiteral("name"), OldField::Text},
                                          {QStringLiteral("nameid"), OldField::Number},
                                          {QStringLiteral("gender"), OldField::Truth},
                                          {QStringLiteral("birthdate"), OldField::Date}});
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(rows.values(),
              (std::vector<Value>{QStringLiteral("Adler"), 7, Value(true), 20514.0}));
    EXPECT_FALSE(rows.next());
}

TEST_F(OldDatabaseTest, TakesNumbersAndTextsOfAnySize) {
    make({{.name = QStringLiteral("Data"),
           .columns = {{QStringLiteral("Small"), JetType::Byte},
                       {QStringLiteral("Middle"), JetType::Int16},
                       {QStringLiteral("Short"), JetType::Text, 10},
                       {QStringLiteral("Long"), JetType::Memo}},
           .rows = {{{200, -1, QStringLiteral("a"), QStringLiteral("b")}}}}});
    const OldDatabase old(path_);
    JetRows rows = old.rows(QStringLiteral("Data"), {{QStringLiteral("Small"), OldField::Number},
                                                     {QStringLiteral("Middle"), OldField::Number},
                                                     {QStringLiteral("Short"), OldField::Text},
                                                     {QStringLiteral("Long"), OldField::Text}});
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(rows.values(),
              (std::vector<Value>{200, -1, QStringLiteral("a"), QStringLiteral("b")}));
}

TEST_F(OldDatabaseTest, RefusesAFieldOfAnotherKind) {
    make({oldPeople({})});
    EXPECT_EQ(errorOfRows({QStringLiteral("Name"), OldField::Number}), ofAnotherType("Name"));
    EXPECT_EQ(errorOfRows({QStringLiteral("NameID"), OldField::Text}), ofAnotherType("NameID"));
    EXPECT_EQ(errorOfRows({QStringLiteral("NameID"), OldField::Date}), ofAnotherType("NameID"));
    EXPECT_EQ(errorOfRows({QStringLiteral("NameID"), OldField::Truth}), ofAnotherType("NameID"));
    EXPECT_EQ(errorOfRows({QStringLiteral("Birthdate"), OldField::Number}),
              ofAnotherType("Birthdate"));
    EXPECT_EQ(errorOfRows({QStringLiteral("NAME"), OldField::Date}), ofAnotherType("NAME"));
}

TEST_F(OldDatabaseTest, RefusesAFieldOrATableThatIsMissing) {
    make({oldPeople({})});
    EXPECT_EQ(errorOfRows({QStringLiteral("Born"), OldField::Date}),
              QStringLiteral("Automation error: there is no field Born in table Data, ") +
                  QDir::toNativeSeparators(path_));
    EXPECT_EQ(descriptionOf([&] { OldDatabase(path_).rows(QStringLiteral("HLC"), {}); }),
              QStringLiteral("Automation error: there is no table HLC, ") +
                  QDir::toNativeSeparators(path_));
}

TEST_F(OldDatabaseTest, TellsTheLastNumberOfATable) {
    BuiltTable people = oldPeople({});
    people.lastNumber = 12;
    make({people});
    EXPECT_EQ(OldDatabase(path_).lastNumber(QStringLiteral("Data")), 12);
}
