// Rows taken apart, of many widths.
#include "store/jet/row_fields.h"

#include <gtest/gtest.h>

#include "store/jet/jet_reading.h"
#include "support/errors.h"
#include "support/printing.h"

namespace {

class RowFieldsOf : public testing::TestWithParam<int> {
  protected:
    static void expectRows(const BuiltTable& table) {
        QStringList columns;
        for (const BuiltColumn& column : table.columns)
            columns += column.name;
        const JetFile file(builtJet(GetParam(), {table}).bytes, text("name"));
        EXPECT_EQ(rowsOf(file, "T", columns), liveRows(table));
    }

    bool is4() const { return GetParam() == 4; }
    int size() const { return is4() ? 2 : 1; }  // of a count and of an offset

    // The error of a table of one row, of a number and a text, after a change to the row.
    template <class Change>
    QString errorAfter(Change&& change) const {
        const BuiltTable table{text("T"),
                               {{text("Number"), JetType::Int32}, {text("Text"), JetType::Text, 9}},
                               {{{7, text("seven")}}}};
        BuiltJet jet = builtJet(GetParam(), {table});
        const qsizetype end = jet.place(jet.tables.front().rows.front() + 1);
        change(jet.bytes, end);
        return descriptionOf([&] {
                   rowsOf(JetFile(jet.bytes, text("name")), "T", list({"Number", "Text"}));
               })
            .section(text("damaged, "), 1);
    }
};

INSTANTIATE_TEST_SUITE_P(Jet, RowFieldsOf, testing::Values(3, 4));

}  // namespace

TEST_P(RowFieldsOf, RowsOfEveryWidthAreThere) {
    BuiltTable table{text("T"),
                     {{text("A"), JetType::Text, 255},
                      {text("Number"), JetType::Int32},
                      {text("B"), JetType::Text, 255},
                      {text("C"), JetType::Text, 255},
                      {text("D"), JetType::Text, 255}},
                     {}};
    table.hasLargeMap = true;
    for (int width = 0; width <= 255; ++width) {
        table.rows.push_back({{longText(width), width, text("b"), text("c"), text("d")}});
        table.rows.push_back({{longText(255), width, longText(width), longText(3), text("d")}});
        table.rows.push_back({{longText(255), width, longText(255), text(""), longText(width)}});
        table.rows.push_back({{Value(), width, longText(255), longText(255), longText(width)}});
    }
    expectRows(table);
}

TEST_P(RowFieldsOf, RowsWithManyColumnsAreThere) {
    BuiltTable table{text("T"), {}, {}};
    BuiltRow row;
    BuiltRow nulls;
    for (int i = 0; i < 200; ++i) {
        const bool isText = i % 3 == 0;
        table.columns.push_back({QStringLiteral("Field number %1").arg(i),
                                 isText ? JetType::Text : JetType::Int16, 20});
        row.values.push_back(isText ? Value(longText(i % 7)) : Value(i));
        nulls.values.push_back(i % 5 == 0 ? Value() : row.values.back());
    }
    table.rows = {row, nulls};
    expectRows(table);
}

TEST_P(RowFieldsOf, RowsWithoutTextsAreThere) {
    expectRows({text("T"),
                {{text("A"), JetType::Int32}, {text("B"), JetType::Boolean}},
                {{{7, Value(true)}}, {{Value(), Value(false)}}}});
}

TEST_P(RowFieldsOf, RowsOlderThanSomeColumnsHaveNullInThem) {
    const BuiltTable table{text("T"),
                           {{text("A"), JetType::Int32},
                            {text("B"), JetType::Text, 9},
                            {text("C"), JetType::Date},
                            {text("D"), JetType::Text, 9},
                            {text("E"), JetType::Boolean}},
                           {{{1, text("one")}}, {{2, text("two"), 2.0, text("b"), Value(true)}}}};
    const JetFile file(builtJet(GetParam(), {table}).bytes, text("name"));
    EXPECT_EQ(rowsOf(file, "T", list({"A", "B", "C", "D", "E"})),
              (Rows{{1, text("one"), Value(), Value(), Value(false)},
                    {2, text("two"), 2.0, text("b"), Value(true)}}));
}

// The end of the row: two offsets and the end of the texts, the count of the texts, the mask.
TEST_P(RowFieldsOf, DamagedRowsAreErrors) {
    EXPECT_EQ(errorAfter([](auto&, qsizetype) {}), QString());
    const qsizetype row = 1 + size() + 4 + (is4() ? 10 : 5) + 3 * size();
    const auto with = [this](qsizetype place, char byte) {
        return errorAfter([&](QByteArray& bytes, qsizetype end) { bytes[end - place] = byte; });
    };
    const qsizetype count = 1 + size();
    EXPECT_EQ(with(row, 3), text("a row has more columns than its table, name"));
    if (is4()) {
        EXPECT_EQ(with(count - 1, 1), text("a row has 257 fields, name"));
    }
    EXPECT_EQ(with(count, 0), text("a row lacks a field, name"));
    EXPECT_EQ(with(count, 20), text("something in it breaks off, name"));
    EXPECT_EQ(with(count + size(), 2), text("a row is shorter than its fields, name"));
    EXPECT_EQ(with(count + size(), 100), text("the fields of a row overlap, name"));
    EXPECT_EQ(with(count + 2 * size(), 1), text("the fields of a row overlap, name"));
    EXPECT_EQ(with(count + 2 * size(), 100), text("the fields of a row overlap, name"));
}

TEST_P(RowFieldsOf, RowsWithoutBytesAreErrors) {
    const qsizetype slots = is4() ? 14 : 10;
    EXPECT_EQ(errorAfter([&](QByteArray& bytes, qsizetype end) {
                  const qsizetype slot = end - (is4() ? 4096 : 2048) + slots;
                  bytes[slot] = 0;
                  bytes[slot + 1] = is4() ? 0x10 : 0x08;
              }),
              text("something in it breaks off, name"));
}
