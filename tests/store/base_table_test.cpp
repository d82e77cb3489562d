// The table behind a statement's rows.
#include "store/base_table.h"

#include <gtest/gtest.h>

namespace {

class BaseTableTest : public testing::Test {
  protected:
    BaseTableTest() {
        database_.exec(R"(
            CREATE TABLE Data (NameID INTEGER PRIMARY KEY AUTOINCREMENT, Name TEXT, "odd ""x" TEXT);
            CREATE TABLE Category (CatID INTEGER PRIMARY KEY, Category TEXT);
            CREATE TABLE HLC (Emot INTEGER, Phys INTEGER, interp TEXT, PRIMARY KEY (Emot, Phys));
            CREATE TABLE Named (Name TEXT PRIMARY KEY))");
    }

    std::optional<BaseTable> find(const char* statement) {
        return findBaseTable(database_, statement);
    }

    SQLite::Database database_{":memory:", SQLite::OPEN_READWRITE};
};

}  // namespace

TEST_F(BaseTableTest, IsFoundBehindAllColumnsOrSome) {
    const auto whole = find("select * from Data");
    ASSERT_TRUE(whole);
    EXPECT_EQ(whole->name, "\"Data\"");
    EXPECT_EQ(whole->columns,
              (std::vector<std::string>{"\"NameID\"", "\"Name\"", "\"odd \"\"x\""}));
    EXPECT_EQ(whole->keyField, 0);

    const auto some = find("SELECT Name AS n, NameID FROM Data WHERE NameID = 5 ORDER BY Name");
    ASSERT_TRUE(some);
    EXPECT_EQ(some->columns, (std::vector<std::string>{"\"Name\"", "\"NameID\""}));
    EXPECT_EQ(some->keyField, 1);
}

TEST_F(BaseTableTest, IsNoneWithoutItsGeneratedKey) {
    EXPECT_FALSE(find("select Name from Data"));
    EXPECT_FALSE(find("select * from HLC"));
    EXPECT_FALSE(find("select Emot, interp from HLC"));
    EXPECT_FALSE(find("select * from Named"));
}

TEST_F(BaseTableTest, IsNoneBehindSeveralTablesOrComputedColumns) {
    EXPECT_FALSE(find("select * from Data, Category"));
    EXPECT_FALSE(find("select NameID, Name || '!' from Data"));
    EXPECT_FALSE(find("select count(*) from Data"));
    EXPECT_FALSE(find("select 1"));
}
