// The widths of a grid's columns.
#include "controls/column_widths.h"

#include <gtest/gtest.h>

#include <numeric>

TEST(ColumnWidths, AreTheirOwnWhereThereIsNoRoomLeft) {
    EXPECT_EQ(columnWidths({1725, 1200, 0}, 195), std::vector({115, 80, 0}));
    EXPECT_EQ(columnWidths({1725, 1200, 0}, 10), std::vector({115, 80, 0}));
}

TEST(ColumnWidths, ShareTheRoomThatIsLeftInProportion) {
    EXPECT_EQ(columnWidths({1500, 3000}, 450), std::vector({150, 300}));
    EXPECT_EQ(columnWidths({1500, 0, 1500}, 300), std::vector({150, 0, 150}));
}

TEST(ColumnWidths, FillTheRoomToTheLastPixel) {
    for (int available = 50; available < 400; ++available) {
        const std::vector<int> widths = columnWidths({100, 215, 330, 0}, available);
        EXPECT_EQ(std::accumulate(widths.begin(), widths.end(), 0), available);
    }
}

TEST(ColumnWidths, GiveNothingToColumnsOfNoWidth) {
    EXPECT_EQ(columnWidths({0, 0}, 100), std::vector({0, 0}));
    EXPECT_EQ(columnWidths({}, 100), std::vector<int>());
}
