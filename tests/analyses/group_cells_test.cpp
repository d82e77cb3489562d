// The grid of a group, without a window.
#include "analyses/group_cells.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace {

constexpr Long kBlue = 0xFF0000;
constexpr Long kRed = 0x0000FF;
constexpr Long kMagenta = 0xFF00FF;

class GroupCells : public testing::Test {
  protected:
    GroupCells() {
        clearGroup(cells_);
        setGroupGrid(cells_);
    }

    QString row(int row) const {
        QStringList texts;
        for (int column = 0; column < cells_.Cols(); ++column)
            texts += cells_.TextMatrix(row, column);
        return texts.join(u'|');
    }

    void addTwo() {
        cells_.AddItem(u"Ben\t^\t-12%\tv\tv\t0%\tv\t^\t7%\t^", kGroupHeaderRows);
        cells_.AddItem(u"Anna\tv\t5%\tv\t^\t-1%\t^\tv\t0%\tv", kGroupHeaderRows + 1);
    }

    Long colour(int row, int column) const { return cells_.look(row, column).foreColor; }

    GridCells cells_;
};

TEST_F(GroupCells, HaveTwoLinesOfHeaderAndAnEmptyRow) {
    EXPECT_EQ(cells_.FixedRows(), 2);
    EXPECT_EQ(cells_.Rows(), 3);
    EXPECT_EQ(row(0), QStringLiteral("|| Emot.|||  Phys.|||Intel.|"));
    EXPECT_EQ(row(1), QStringLiteral("|-||+|-||+|-||+"));
    EXPECT_EQ(row(2), QStringLiteral("|||||||||"));
}

TEST_F(GroupCells, HaveTheirWidthsAndAreCentredBehindTheName) {
    const std::vector<int> widths{1650, 200, 600, 200, 200, 600, 200, 200, 600, 200};
    for (int column = 0; column < 10; ++column) {
        EXPECT_EQ(cells_.ColWidth(column), widths[static_cast<std::size_t>(column)]);
        EXPECT_EQ(cells_.ColAlignment(column),
                  column == 0 ? ColumnAlignment::Left : ColumnAlignment::Centre);
    }
}

TEST_F(GroupCells, TakeRowsInOrderAboveTheEmptyOne) {
    addTwo();
    EXPECT_EQ(cells_.Rows(), 5);
    EXPECT_TRUE(row(2).startsWith(QStringLiteral("Ben|^|-12%|")));
    EXPECT_TRUE(row(3).startsWith(QStringLiteral("Anna|v|5%|")));
    EXPECT_EQ(row(4), QStringLiteral("|||||||||"));
}

TEST_F(GroupCells, ColourThePercentagesAlone) {
    addTwo();
    setGroupGrid(cells_);
    EXPECT_EQ(colour(2, 2), kBlue);
    EXPECT_EQ(colour(2, 5), kRed);
    EXPECT_EQ(colour(2, 8), kMagenta);
    EXPECT_EQ(colour(3, 2), kMagenta);
    EXPECT_EQ(colour(3, 5), kBlue);
    EXPECT_EQ(colour(3, 8), kRed);
    for (const int column : {0, 1, 3, 4, 6, 7, 9}) {
        for (int row = 0; row < 5; ++row)
            EXPECT_EQ(colour(row, column), 0);
    }
    for (const int column : {2, 5, 8}) {
        EXPECT_EQ(colour(0, column), 0);
        EXPECT_EQ(colour(1, column), 0);
    }
}

TEST_F(GroupCells, StandOnTheFirstPerson) {
    addTwo();
    setGroupGrid(cells_);
    EXPECT_EQ(cells_.Row(), 2);
    EXPECT_EQ(cells_.Col(), 0);
}

TEST_F(GroupCells, TakeTheEmptyRowForZero) {
    for (const int column : {2, 5, 8})
        EXPECT_EQ(colour(2, column), kRed);
}

TEST_F(GroupCells, LoseEveryTextAndColourWhenTheyAreCleared) {
    addTwo();
    setGroupGrid(cells_);
    clearGroup(cells_);
    EXPECT_EQ(cells_.Rows(), 3);
    for (int each = 0; each < 3; ++each)
        EXPECT_EQ(row(each), QStringLiteral("|||||||||"));
    EXPECT_EQ(colour(2, 2), 0);
    EXPECT_EQ(cells_.ColWidth(0), 1650);
}

}  // namespace
