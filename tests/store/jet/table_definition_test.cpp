// Definitions of tables, small and large.
#include "store/jet/table_definition.h"

#include <gtest/gtest.h>

#include "store/jet/jet_reading.h"
#include "support/errors.h"
#include "support/printing.h"

namespace {

class Definitions : public testing::TestWithParam<int> {
  protected:
    bool is4() const { return GetParam() == 4; }

    // The place of a column's number, counted from the beginning of the definition.
    qsizetype column(int index, int place3, int place4) const {
        return is4() ? 63 + 25 * index + place4 : 43 + 18 * index + place3;
    }

    QString errorWith(qsizetype place, int byte) const {
        BuiltJet jet = builtJet(GetParam(), {builtPeople()});
        jet.bytes[jet.place(jet.tables.front().definition, place)] = static_cast<char>(byte);
        return descriptionOf([&] { JetFile(jet.bytes, text("name")).table(text("Data")); })
            .section(text("damaged, "), 1);
    }
};

INSTANTIATE_TEST_SUITE_P(Jet, Definitions, testing::Values(3, 4));

}  // namespace

TEST_P(Definitions, TellNamesAndTypes) {
    using T = JetType;
    const std::vector<T> types{T::Int32, T::Text, T::Date, T::Boolean, T::Memo};
    BuiltTable table = builtPeople();
    table.columns[1].name = text("Naïve Größe");
    const JetFile file(builtJet(GetParam(), {table}).bytes, text("name"));
    const JetTable data = file.table(text("Data"));
    EXPECT_EQ(columnNames(data), list({"NameID", "Naïve Größe", "Birthdate", "Gender", "Notes"}));
    for (std::size_t i = 0; i < types.size(); ++i)
        EXPECT_EQ(data.columns()[i].type, types[i]);
}

TEST_P(Definitions, MayHaveIndexesBeforeTheColumns) {
    BuiltTable table = builtPeople();
    table.indexes = 3;
    const JetFile file(builtJet(GetParam(), {table}).bytes, text("name"));
    EXPECT_EQ(rowsOf(file, "Data", peopleColumns()), liveRows(table));
}

TEST_P(Definitions, GoOnOverManyPages) {
    BuiltTable table{text("T"), {}, {{{1}}}};
    QStringList names;
    for (int i = 0; i < 255; ++i) {
        names += QStringLiteral("%1").arg(i, 64, 10, QLatin1Char('x'));
        table.columns.push_back({names.back(), JetType::Int32});
    }
    const JetFile file(builtJet(GetParam(), {table}).bytes, text("name"));
    EXPECT_EQ(columnNames(file.table(text("T"))), names);
    EXPECT_EQ(rowsOf(file, "T", {names.front()}), (Rows{{1}}));
}

TEST_P(Definitions, ListColumnsAsTheyWereMade) {
    BuiltJet jet =
        builtJet(GetParam(), {{text("T"),
                               {{text("A"), JetType::Boolean}, {text("B"), JetType::Boolean}},
                               {{{Value(true), Value(false)}}}}});
    const qsizetype definition = jet.place(jet.tables.front().definition);
    jet.bytes[definition + column(0, 1, 5)] = 1;
    jet.bytes[definition + column(1, 1, 5)] = 0;
    const JetFile file(jet.bytes, text("name"));
    EXPECT_EQ(columnNames(file.table(text("T"))), list({"B", "A"}));
    EXPECT_EQ(rowsOf(file, "T", list({"A", "B"})), (Rows{{Value(false), Value(true)}}));
}

TEST_P(Definitions, ThatContradictThemselvesAreErrors) {
    const QString contradiction = text("the columns of a table contradict each other, name");
    EXPECT_EQ(errorWith(column(2, 1, 5), 1), contradiction);    // two with one number
    EXPECT_EQ(errorWith(column(4, 1, 5), 5), contradiction);    // a number beyond the last
    EXPECT_EQ(errorWith(column(4, 3, 7), 0), contradiction);    // two texts in one place
    EXPECT_EQ(errorWith(column(2, 14, 21), 3), contradiction);  // a date over a number
    EXPECT_EQ(errorWith(column(2, 14, 21), 5), QString());
    EXPECT_EQ(errorWith(is4() ? 45 : 25, 200), text("something in it breaks off, name"));
    EXPECT_EQ(errorWith(is4() ? 46 : 26, 1), text("a table has 261 columns, name"));
    EXPECT_EQ(errorWith(0, 1), text("page 3 is not of the kind that it should be, name"));
}

TEST_P(Definitions, NeedNotTellTheSizesOfNumbers) {
    BuiltTable table{text("T"), {}, {}};
    BuiltRow numbers;
    QStringList names;
    for (const JetType type :
         {JetType::Boolean, JetType::Byte, JetType::Int16, JetType::Int32, JetType::Single,
          JetType::Currency, JetType::Double, JetType::Date}) {
        names += QString::number(static_cast<int>(type));
        table.columns.push_back({names.back(), type});
        const bool isWhole = type >= JetType::Byte && type <= JetType::Int32;
        numbers.values.push_back(type == JetType::Boolean ? Value(true)
                                 : isWhole                ? Value(7)
                                                          : Value(1.5));
    }
    table.rows.push_back(numbers);
    BuiltJet jet = builtJet(GetParam(), {table});
    const qsizetype definition = jet.place(jet.tables.front().definition);
    for (int i = 0; i < names.size(); ++i)
        jet.bytes[definition + column(i, 16, 23)] = 0;
    EXPECT_EQ(rowsOf(JetFile(jet.bytes, text("name")), "T", names), liveRows(table));
}

TEST_P(Definitions, TellTheLastNumberThatARowGotByItself) {
    BuiltTable table = builtPeople();
    table.lastNumber = 8;
    BuiltJet jet = builtJet(GetParam(), {table});
    EXPECT_EQ(JetFile(jet.bytes, text("name")).table(text("Data")).lastNumber(), 8);

    const qsizetype flags = jet.place(jet.tables.front().definition, column(0, 13, 15));
    jet.bytes[flags] = static_cast<char>(jet.bytes[flags] & ~4);
    EXPECT_EQ(JetFile(jet.bytes, text("name")).table(text("Data")).lastNumber(), 0);
}
