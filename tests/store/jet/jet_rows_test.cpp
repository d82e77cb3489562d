// The rows of tables, in their order and with their values.
#include "store/jet/jet_rows.h"

#include <gtest/gtest.h>

#include "store/jet/jet_reading.h"
#include "support/errors.h"
#include "support/printing.h"

namespace {

class RowsOfJet : public testing::TestWithParam<int> {
  protected:
    static JetFile fileOf(const BuiltTable& table) {
        return JetFile(builtJet(GetParam(), {table}).bytes, text("name"));
    }

    // Numbered rows with these fates.
    static BuiltTable numbered(const std::vector<BuiltRow::Fate>& fates) {
        BuiltTable table{
            text("T"), {{text("Number"), JetType::Int32}, {text("Text"), JetType::Text, 99}}, {}};
        for (const BuiltRow::Fate fate : fates)
            table.rows.push_back({{static_cast<Long>(table.rows.size()), longText(90)}, fate});
        return table;
    }
};

INSTANTIATE_TEST_SUITE_P(Jet, RowsOfJet, testing::Values(3, 4));

}  // namespace

TEST_P(RowsOfJet, ComeInTheOrderOfTheirPlaces) {
    std::vector<BuiltRow::Fate> fates;
    for (int i = 0; i < 300; ++i)
        fates.push_back(static_cast<BuiltRow::Fate>(i % 5));
    const BuiltTable table = numbered(fates);
    EXPECT_EQ(rowsOf(fileOf(table), "T", list({"Number", "Text"})), liveRows(table));
}

TEST_P(RowsOfJet, AreAllDeletedOrNone) {
    const BuiltTable deleted = numbered({BuiltRow::Deleted, BuiltRow::MovedAndDeleted});
    EXPECT_EQ(rowsOf(fileOf(deleted), "T", list({"Number"})), Rows());
    EXPECT_EQ(rowsOf(fileOf(numbered({})), "T", list({"Number"})), Rows());
}

TEST_P(RowsOfJet, StayAtTheEnd) {
    JetRows rows = fileOf(numbered({BuiltRow::Stays})).table(text("T")).rows(list({"Number"}));
    EXPECT_TRUE(rows.next());
    EXPECT_FALSE(rows.next());
    EXPECT_FALSE(rows.next());
}

TEST_P(RowsOfJet, HaveValuesOfEveryType) {
    using T = JetType;
    BuiltTable table{text("T"), {}, {}};
    for (const T type : {T::Boolean, T::Byte, T::Int16, T::Int32, T::Currency, T::Single, T::Double,
                         T::Date, T::Text, T::Memo})
        table.columns.push_back({QString::number(static_cast<int>(type)), type, 20});
    table.rows = {{{Value(true), 200, -30'000, -2'000'000'000, -1.25, 0.5, -1e300, -2.75,
                    text("text"), text("memo")}},
                  {{Value(false), 0, 0, 0, 0.0, 0.0, 0.0, 0.0, text(""), text("")}},
                  {{Value(false), Value(), Value(), Value(), Value(), Value(), Value(), Value(),
                    Value(), Value()}}};
    QStringList names;
    for (const BuiltColumn& column : table.columns)
        names += column.name;
    EXPECT_EQ(rowsOf(fileOf(table), "T", names), liveRows(table));
}

TEST_P(RowsOfJet, HaveTextsOfEveryKind) {
    BuiltTable table{text("T"), {{text("Text"), JetType::Text, 99}}, {}};
    QStringList texts =
        list({"", " ", "Doe", "  Müller, Jürgen ", "Šimek “Žižka” – €", "a\tb\r\nc"});
    if (GetParam() == 4)
        texts += list({"Čapková", "Παπαδόπουλος, Νίκος", "αβ γδ, ε", "Ā", "AĀB", "日本 中", "😀"});
    for (const QString& one : texts)
        table.rows.push_back({{one}});
    for (const bool isCompressed : {false, true}) {
        table.hasCompressedTexts = isCompressed;
        EXPECT_EQ(rowsOf(fileOf(table), "T", list({"Text"})), liveRows(table));
    }
}

TEST_P(RowsOfJet, AreFoundByALargeMap) {
    BuiltTable table = numbered(std::vector<BuiltRow::Fate>(500, BuiltRow::Stays));
    table.hasLargeMap = true;
    EXPECT_EQ(rowsOf(fileOf(table), "T", list({"Number", "Text"})), liveRows(table));
}

TEST_P(RowsOfJet, DoNotReadWhatNobodyAsksFor) {
    BuiltTable table = builtPeople();
    BuiltJet jet = builtJet(GetParam(), {table});
    const qsizetype longValues = jet.place(jet.tables.front().longValues.front());
    jet.bytes.replace(longValues, jet.pageSize, QByteArray(jet.pageSize, '\0'));
    const JetFile file(jet.bytes, text("name"));
    EXPECT_EQ(rowsOf(file, "Data", list({"NameID"})).size(), 6U);
    EXPECT_EQ(errorOf([&] { rowsOf(file, "Data", list({"NameID", "Notes"})); }), 321);
}

TEST_P(RowsOfJet, KnowTheTypesThatCanBeRead) {
    EXPECT_TRUE(isReadable(JetType::Memo));
    for (const JetType type :
         {JetType::Binary, JetType::Ole, JetType::Guid, JetType::Numeric, static_cast<JetType>(17)})
        EXPECT_FALSE(isReadable(type));
}
