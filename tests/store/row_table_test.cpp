// The rows of a record set in memory.
#include "store/row_table.h"

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include "support/printing.h"

namespace {

class RowTableTest : public testing::Test {
  protected:
    // A table of the one row that a query returns.
    void read(const char* query, int fields) {
        table_.emplace(fields);
        SQLite::Statement row(database_, query);
        table_->appendAll(row);
        ASSERT_EQ(table_->rowCount(), 1);
    }

    Value value(int field) { return table_->row(1)[field].value(); }

    SQLite::Database database_{":memory:"};
    std::optional<RowTable> table_;
};

TEST_F(RowTableTest, KeepsEveryKindOfValue) {
    read("SELECT NULL, -7, 0.1, 'Zoë', ''", 5);
    EXPECT_TRUE(value(0).isNull());
    EXPECT_EQ(value(1).toLong(), -7);
    EXPECT_EQ(value(2).toDouble(), 0.1);
    EXPECT_EQ(value(3).toText(), QStringLiteral("Zoë"));
    EXPECT_FALSE(value(4).isNull());
    EXPECT_EQ(value(4).toText(), QString());
}

TEST_F(RowTableTest, NumbersItsRowsFromOne) {
    read("SELECT 1", 1);
    EXPECT_EQ(table_->appendNulls(), 2);
    EXPECT_EQ(table_->rowCount(), 2);
    EXPECT_TRUE(table_->row(2)[0].value().isNull());
}

TEST_F(RowTableTest, PutsAKeptRowInThePlaceOfAnother) {
    read("SELECT 'old'", 1);
    SQLite::Statement other(database_, "SELECT 'new'");
    ASSERT_TRUE(other.executeStep());
    table_->replace(1, table_->keep(other));
    EXPECT_EQ(value(0).toText(), QStringLiteral("new"));
    EXPECT_EQ(table_->rowCount(), 1);
}

}  // namespace
