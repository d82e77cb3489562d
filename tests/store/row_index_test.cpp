// The rows of a table by the numbers of a field.
#include "store/row_index.h"

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

namespace {

// Rows 1 to 6, whose second fields are 7, Null, 5, 7.0, a text and 5.5.
class RowIndexTest : public testing::Test {
  protected:
    RowIndexTest() {
        SQLite::Statement rows(database_,
                               "VALUES (1, 7), (1, NULL), (1, 5), (1, 7.0), (1, '5'), (1, 5.5)");
        table_.appendAll(rows);
    }

    SQLite::Database database_{":memory:"};
    RowTable table_{2};
};

TEST_F(RowIndexTest, FindsTheFirstRowWithANumber) {
    const RowIndex index(table_, 1);
    EXPECT_EQ(index.field(), 1);
    EXPECT_EQ(index.find(5, 1), 3);
    EXPECT_EQ(index.find(5.5, 1), 6);
    EXPECT_EQ(index.find(7, 1), 1);
}

TEST_F(RowIndexTest, FindsNoEarlierRowThanTheOneItStartsFrom) {
    const RowIndex index(table_, 1);
    EXPECT_EQ(index.find(7, 2), 4);
    EXPECT_EQ(index.find(7, 4), 4);
    EXPECT_EQ(index.find(7, 5), std::nullopt);
}

TEST_F(RowIndexTest, FindsNoNumberThatIsNotThere) {
    const RowIndex index(table_, 1);
    for (const double number : {-1.0, 0.0, 6.0, 1e300})
        EXPECT_EQ(index.find(number, 1), std::nullopt) << number;
    EXPECT_EQ(RowIndex(RowTable(1), 0).find(1, 1), std::nullopt);
}

}  // namespace
