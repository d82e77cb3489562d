// Names and values in statements.
#include "store/sql_pieces.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include "support/printing.h"

TEST(SqlPieces, QuoteNamesOfAnyLetters) {
    EXPECT_EQ(quoted("Data"), "\"Data\"");
    EXPECT_EQ(quoted("a \"b\""), "\"a \"\"b\"\"\"");
}

TEST(SqlPieces, JoinThingsWithSeparatorsBetweenThem) {
    const auto twice = [](int number) { return std::to_string(2 * number); };
    EXPECT_EQ(joined(std::vector{1, 2, 3}, ", ", twice), "2, 4, 6");
    EXPECT_EQ(joined(std::vector<int>(), ", ", twice), "");
}

TEST(SqlPieces, BindValuesOfEveryKind) {
    SQLite::Database database(":memory:");
    SQLite::Statement statement(database, "SELECT ?, ?, ?, typeof(?)");
    bindValue(statement, 1, Value(7));
    bindValue(statement, 2, Value(-1.25));
    bindValue(statement, 3, Value(QString::fromUtf8("Žofie")));
    bindValue(statement, 4, Value());
    ASSERT_TRUE(statement.executeStep());
    EXPECT_EQ(statement.getColumn(0).getInt(), 7);
    EXPECT_EQ(statement.getColumn(1).getDouble(), -1.25);
    EXPECT_EQ(statement.getColumn(2).getString(), "Žofie");
    EXPECT_EQ(statement.getColumn(3).getString(), "null");
}
