// The sample files, which another program has written: everything that is said of them holds.
#include <gtest/gtest.h>

#include "store/jet/jet_file.h"
#include "store/jet/jet_reading.h"
#include "store/jet/samples.h"
#include "support/errors.h"
#include "support/printing.h"

namespace {

class JetSamples : public testing::Test {
  protected:
    void SetUp() override { SKIP_WITHOUT_SAMPLES(); }
};

QString shown(const std::vector<Value>& row) {
    QStringList texts;
    for (const Value& value : row) {
        if (const auto* text = std::get_if<QString>(&value.content()))
            texts += u'"' + text->left(60) + u'"';
        else
            texts += value.isNull() ? QStringLiteral("NULL")
                                    : QString::number(value.toDouble(), 'g', 17);
    }
    return texts.join(u'|');
}

void expectRows(const Rows& rows, const Rows& expected) {
    ASSERT_EQ(rows.size(), expected.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        EXPECT_TRUE(rows[i] == expected[i]) << "row " << i << ": " << shown(rows[i]).toStdString()
                                            << " in place of " << shown(expected[i]).toStdString();
}

// That the file has the table that is described.
void expectTable(const char* name, const char* table, const DescribedTable& described) {
    expectRows(rowsOf(JetFile(samplePath(name)), table, described.fields), described.rows);
}

// A type as the description calls it.
QString typeName(const JetColumn& column, int bytesOfCharacter) {
    switch (column.type) {
        case JetType::Boolean:
            return QStringLiteral("Yes/No");
        case JetType::Int32:
            return column.isAuto ? QStringLiteral("AutoNumber") : QStringLiteral("Long");
        case JetType::Date:
            return QStringLiteral("Date/Time");
        case JetType::Memo:
            return QStringLiteral("Memo");
        default:
            EXPECT_EQ(column.type, JetType::Text);
            return QStringLiteral("Text(%1)").arg(column.fixedSize / bytesOfCharacter);
    }
}

// The tables of a file, each with its fields, in the order of their names.
QStringList tablesOf(const char* sample) {
    const int bytesOfCharacter = QByteArray(sample).contains("jet3") ? 1 : 2;
    const JetFile file(samplePath(sample));
    QStringList tables;
    for (const QString& name : file.tables()) {
        const JetTable table = file.table(name);
        QStringList fields;
        for (const JetColumn& column : table.columns())
            fields += column.name + u' ' + typeName(column, bytesOfCharacter);
        tables += name + QStringLiteral(": ") + fields.join(QStringLiteral(", "));
    }
    tables.sort();
    return tables;
}

// The name of person i in the large file.
QString largeName(int i) {
    static const QStringList kFamilies =
        QString::fromUtf8(
            "Adler, Baker, Castro, Dietz, Ek, Fuchs, Grün, Horák, Ibsen, Jansen, Kowalski, "
            "Lindqvist, Moreau, Nagy, Olsen, Peña, Quist, Rossi, Søndergaard, Tóth, Urban, Vidal, "
            "Weiß, Xu, Zimmermann")
            .split(QStringLiteral(", "));
    static const QStringList kGiven =
        QString::fromUtf8(
            "Anna, Béla, Chloé, David, Eva, Félix, Greta, Henrik, Inés, Jörg, Karin, Luís, Maja, "
            "Nils, Olga, Paul")
            .split(QStringLiteral(", "));
    const QString& family = kFamilies[i % 25];
    const QString& given = kGiven[i % 16];
    const QString names[] = {family + QStringLiteral(", ") + given, given + u' ' + family,
                             family + u',' + given, given + QStringLiteral(" van ") + family};
    return (i % 50 == 7 ? QStringLiteral(" ") : QString()) + names[i / 25 % 4];
}

}  // namespace

TEST_F(JetSamples, HaveTheirTablesAndFields) {
    const char* const people = "Data: ID AutoNumber, Name Text(100), birthdate Date/Time";
    EXPECT_EQ(tablesOf("Names-jet4.mdb"), list({people}));
    EXPECT_EQ(tablesOf("Names-jet3.mdb"), list({people}));
    EXPECT_EQ(tablesOf("Names-empty.mdb"), list({people}));
    EXPECT_EQ(tablesOf("Names-large.mdb"), list({"Data: Name Text(80), birthdate Date/Time"}));
    EXPECT_EQ(tablesOf("Names-edge.mdb"),
              list({"Data: BirthDate Date/Time, Remark Text(20), NAME Text(200)"}));
    EXPECT_EQ(tablesOf("Names-wrong.mdb"), list({"People: Name Text(50), birthdate Date/Time"}));
    EXPECT_EQ(tablesOf("Names-nofield.mdb"),
              list({"Data: ID AutoNumber, Name Text(50), born Text(20)"}));
    for (const char* name : {"Ondara2-jet4.mdb", "Ondara2-jet3.mdb"})
        EXPECT_EQ(tablesOf(name),
                  list({"Category: CatID AutoNumber, Category Text(50)",
                        "Data: NameID AutoNumber, Name Text(50), FName Text(50), Birthdate "
                        "Date/Time, Gender Yes/No, CatID Long, Notes Memo"}));
}

TEST_F(JetSamples, HoldTheOrdinaryPeople) {
    const std::vector<DescribedTable> described = describedTables("Names-jet4.mdb");
    ASSERT_EQ(described.front().rows.size(), 18U);
    expectTable("Names-jet4.mdb", "Data", described.front());
}

TEST_F(JetSamples, HoldThePeopleOfTheOlderFormat) {
    const std::vector<DescribedTable> described = describedTables("Names-jet3.mdb");
    ASSERT_EQ(described.front().rows.size(), 18U);
    expectTable("Names-jet3.mdb", "Data", described.front());
}

TEST_F(JetSamples, HoldTheExtremePeople) {
    const std::vector<DescribedTable> described = describedTables("Names-edge.mdb");
    ASSERT_EQ(described.front().rows.size(), 27U);
    expectTable("Names-edge.mdb", "Data", described.front());
}

TEST_F(JetSamples, HoldManyPeople) {
    const Rows rows =
        rowsOf(JetFile(samplePath("Names-large.mdb")), "Data", list({"Name", "birthdate"}));
    constexpr int kPeople = 5000;
    ASSERT_EQ(rows.size(), std::size_t{kPeople});
    for (int i = 1; i <= kPeople; ++i) {
        const Value birthdate = i % 100 == 0 ? Value() : Value(2.0 + 17 * i % 45'000);
        const std::vector<Value> expected{largeName(i), birthdate};
        ASSERT_TRUE(rows[static_cast<std::size_t>(i) - 1] == expected) << i;
    }
    const DescribedTable described = describedTables("Names-large.mdb").front();
    for (const std::vector<Value>& row : described.rows) {
        const auto& found = rows[static_cast<std::size_t>(row[0].toLong()) - 1];
        EXPECT_TRUE(found == std::vector<Value>(row.begin() + 1, row.end()))
            << shown(found).toStdString();
    }
}

TEST_F(JetSamples, HoldATableWithoutRows) {
    const JetFile file(samplePath("Names-empty.mdb"));
    EXPECT_EQ(rowsOf(file, "Data", list({"ID", "Name", "birthdate"})), Rows());
}

TEST_F(JetSamples, LackATable) {
    const QString path = samplePath("Names-wrong.mdb");
    const JetFile file(path);
    EXPECT_EQ(descriptionOf([&] { file.table(QStringLiteral("Data")); }),
              QStringLiteral("Automation error: there is no table Data, ") +
                  QDir::toNativeSeparators(path));
    expectRows(rowsOf(file, "People", list({"Name", "birthdate"})),
               {{QStringLiteral("Doe, John"), 20514.0}, {QStringLiteral("Doe, Jane"), 25568.0}});
}

TEST_F(JetSamples, LackAField) {
    const QString path = samplePath("Names-nofield.mdb");
    const JetFile file(path);
    EXPECT_EQ(descriptionOf([&] {
                  rowsOf(file, "Data", list({"Name", "birthdate"}));
              }),
              QStringLiteral("Automation error: there is no field birthdate in table Data, ") +
                  QDir::toNativeSeparators(path));
    expectRows(rowsOf(file, "Data", list({"ID", "Name", "born"})),
               {{1, QStringLiteral("Doe, John"), QStringLiteral("29.02.1956")},
                {2, QStringLiteral("Doe, Jane"), QStringLiteral("31.12.1969")}});
}

TEST_F(JetSamples, HoldAWholeDatabase) {
    const std::vector<DescribedTable> described = describedTables("Ondara2-jet4.mdb");
    ASSERT_EQ(described.size(), 2U);
    ASSERT_EQ(described[0].rows.size(), 5U);
    ASSERT_EQ(described[1].rows.size(), 40U);
    expectTable("Ondara2-jet4.mdb", "Category", described[0]);
    expectTable("Ondara2-jet4.mdb", "Data", described[1]);
}

TEST_F(JetSamples, TellTheLastNumbersThatRowsGotByThemselves) {
    const auto lastNumber = [](const char* file, const char* table) {
        return JetFile(samplePath(file)).table(QLatin1String(table)).lastNumber();
    };
    EXPECT_EQ(lastNumber("Ondara2-jet4.mdb", "Data"), 252);
    EXPECT_EQ(lastNumber("Ondara2-jet4.mdb", "Category"), 6);
    EXPECT_EQ(lastNumber("Names-jet4.mdb", "Data"), 18);
    EXPECT_EQ(lastNumber("Names-large.mdb", "Data"), 0);
    EXPECT_EQ(lastNumber("Ondara2-jet3.mdb", "Data"), 0);
}

TEST_F(JetSamples, HoldAWholeDatabaseOfTheOlderFormat) {
    std::vector<DescribedTable> described = describedTables("Ondara2-jet4.mdb");
    std::erase_if(described[1].rows, [](const std::vector<Value>& row) {
        const auto id = row.front().toLong();
        return id == 14 || id == 15 || id == 26;
    });
    ASSERT_EQ(described[1].rows.size(), 37U);
    // What the code page does not have is no part of this file.
    expectTable("Ondara2-jet3.mdb", "Data", described[1]);
    expectTable("Ondara2-jet3.mdb", "Category", described[0]);
}

TEST_F(JetSamples, AreKnownForJetFiles) {
    EXPECT_TRUE(isJetFile(samplePath("Names-jet3.mdb")));
    EXPECT_TRUE(isJetFile(samplePath("Names-jet4.mdb")));
    EXPECT_FALSE(isJetFile(samplePath("README.md")));
}
