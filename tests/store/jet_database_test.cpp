// Jet files by record sets.
#include "store/jet_database.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "store/recordset.h"
#include "support/errors.h"
#include "support/files.h"
#include "support/jet_builder.h"
#include "support/printing.h"

namespace {

const BuiltTable kPeople{
    .name = QStringLiteral("Data"),
    .columns = {{QStringLiteral("birthdate"), JetType::Date},
                {QStringLiteral("Name"), JetType::Text, 50},
                {QStringLiteral("Picture"), JetType::Ole},
                {QStringLiteral("IsKnown"), JetType::Boolean},
                {QStringLiteral("Notes \"by\" others"), JetType::Memo}},
    .rows = {{{20514.25, QStringLiteral("Doe, John"), Value(), Value(true), Value()}},
             {{Value(), QString(), Value(), Value(false), QStringLiteral("two")}},
             {{-1.25, Value(), Value(), Value(true), QString()}}}};

class JetDatabase : public testing::TestWithParam<int> {
  protected:
    JetDatabase() { makeFile(path_, builtJet(GetParam(), {kPeople}).bytes); }

    Connection connection() const {
        return Connection(QStringLiteral("PROVIDER=Microsoft.Jet.OLEDB.4.0;Data Source=") + path_ +
                          u';');
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(QStringLiteral("Names.mdb"));
};

INSTANTIATE_TEST_SUITE_P(Jet, JetDatabase, testing::Values(3, 4));

const QString kAll = QStringLiteral("select * from Data");

}  // namespace

TEST_P(JetDatabase, GivesItsRowsInTheirOrder) {
    Connection jet = connection();
    EXPECT_EQ(jet.path(), path_);
    Recordset people(jet, kAll);
    ASSERT_EQ(people.RecordCount(), 3);
    EXPECT_EQ(people.Fields(u"BirthDate"), Value(20514.25));
    EXPECT_EQ(people.Fields(u"name"), Value(QStringLiteral("Doe, John")));
    EXPECT_TRUE(people.Fields(u"IsKnown").toBoolean());
    EXPECT_TRUE(people.Fields(u"Notes \"by\" others").isNull());
    EXPECT_EQ(errorOf([&] { people.Fields(u"Picture"); }), 3265);
    people.Move(2);
    EXPECT_EQ(people.Fields(u"birthdate"), Value(-1.25));
    EXPECT_TRUE(people.Fields(u"Name").isNull());
    const Long bookmark = people.Bookmark();
    people.MoveFirst();
    people.MoveNext();
    EXPECT_TRUE(people.Fields(u"birthdate").isNull());
    EXPECT_EQ(people.Fields(u"Name"), Value(QString()));
    EXPECT_FALSE(people.Fields(u"IsKnown").toBoolean());
    people.setBookmark(bookmark);
    EXPECT_EQ(people.Fields(u"Notes \"by\" others"), Value(QString()));
}

TEST_P(JetDatabase, KeepsWholeNumbersWhole) {
    const std::vector<Value> numbers{Value(200), Value(-300), Value(70'000), Value(true)};
    makeFile(path_, builtJet(GetParam(), {{.name = QStringLiteral("Numbers"),
                                           .columns = {{QStringLiteral("Small"), JetType::Byte},
                                                       {QStringLiteral("Middle"), JetType::Int16},
                                                       {QStringLiteral("Large"), JetType::Int32},
                                                       {QStringLiteral("Truth"), JetType::Boolean}},
                                           .rows = {{numbers}}}})
                        .bytes);
    Connection jet = connection();
    const Recordset read(jet, QStringLiteral("select * from Numbers"));
    EXPECT_EQ((std::vector{read.Fields(u"Small"), read.Fields(u"Middle"), read.Fields(u"Large"),
                           read.Fields(u"Truth")}),
              numbers);
}

TEST_P(JetDatabase, ComparesTextsWithoutRegardToCase) {
    Connection jet = connection();
    const Recordset people(jet, QStringLiteral("select * from Data where Name = 'dOE, jOHN'"));
    EXPECT_EQ(people.RecordCount(), 1);
}

TEST_P(JetDatabase, CannotBeChanged) {
    const QByteArray before = fileBytes(path_);
    Connection jet = connection();
    Recordset people(jet, kAll);
    EXPECT_EQ(errorOf([&] { people.AddNew(); }), 3251);
    EXPECT_EQ(errorOf([&] { people.Delete(adAffectCurrent); }), 3251);
    EXPECT_THROW(jet.database().exec("DELETE FROM Data"), SQLite::Exception);
    EXPECT_EQ(fileBytes(path_), before);
}

TEST_P(JetDatabase, LacksWhatTheFileLacks) {
    Connection jet = connection();
    EXPECT_TRUE(descriptionOf([&] {
                    Recordset(jet, QStringLiteral("select * from People"));
                }).contains(u"no such table: People"));
}

TEST_P(JetDatabase, RefusesADamagedFile) {
    const QByteArray whole = fileBytes(path_);
    makeFile(path_, whole.first(whole.size() - 100));
    EXPECT_EQ(errorOf([&] { connection(); }), 321);
    EXPECT_TRUE(descriptionOf([&] { connection(); }).endsWith(QDir::toNativeSeparators(path_)));
}

TEST_P(JetDatabase, CallsItsTablesAsTheFileDoes) {
    const QString name = QStringLiteral("People \"we\" know");
    makeFile(path_, builtJet(GetParam(), {{.name = name,
                                           .columns = {{QStringLiteral("Name"), JetType::Text, 50}},
                                           .rows = {}}})
                        .bytes);
    Connection jet = connection();
    EXPECT_TRUE(jet.database().tableExists(name.toStdString()));
}

TEST(JetDatabaseOfPictures, HasNoTableOfThem) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Pictures.mdb"));
    makeFile(path, builtJet(4, {{.name = QStringLiteral("Pictures"),
                                 .columns = {{QStringLiteral("Picture"), JetType::Ole}},
                                 .rows = {}},
                                kPeople})
                       .bytes);
    const auto database = readJetDatabase(path);
    EXPECT_FALSE(database->tableExists("Pictures"));
    EXPECT_TRUE(database->tableExists("Data"));
}
