// The comparison of a group in a grid.
#include "analyses/group_comparison.h"

#include <QTest>

#include "analyses/group_cells.h"
#include "analyses/group_row.h"
#include "controls/grid.h"
#include "support/errors.h"
#include "support/main_window.h"
#include "support/paint_counter.h"

using modCycles::DateSerial;

namespace {

// Number 1 is born on 20 October 1972, number 2 on 5 May 1990.
class ComparedGroup : public MainWindowTest {
  protected:
    ComparedGroup() {
        grid_.change([](GridCells& cells) {
            clearGroup(cells);
            setGroupGrid(cells);
            cells.AddItem(u"Of the last time", kGroupHeaderRows);
        });
        grid_.show();
    }

    // The row of the grid as it was put together.
    QString row(int row) {
        QStringList texts;
        for (int column = 0; column < grid_.cells().Cols(); ++column)
            texts += grid_.cells().TextMatrix(row, column);
        return texts.join(u'\t');
    }

    Long colour(int row, int column) { return grid_.cells().look(row, column).foreColor; }

    Grid grid_;
    const Date kDay = DateSerial(2000, 3, 14);
    const PersonRecord kAnna{1, QStringLiteral("Once, Anna")};
    const PersonRecord kBen{2, QStringLiteral("Adler, Ben")};
    const PersonRecord kNobody{99, QStringLiteral("Gone, Gil")};
};

TEST_F(ComparedGroup, FindsItsMembersByTheirNumbersAndShowsTheirTexts) {
    GroupComparison comparison(grid_, kDay);
    comparison.Add(kBen);
    comparison.Add(kAnna);
    comparison.Finish();
    EXPECT_EQ(grid_.cells().Rows(), 5);
    EXPECT_EQ(row(2), groupRow(kBen.displayText, DateSerial(1990, 5, 5), kDay));
    EXPECT_EQ(row(3), groupRow(kAnna.displayText, DateSerial(1972, 10, 20), kDay));
}

TEST_F(ComparedGroup, GivesItsRowsTheirColoursAtItsEnd) {
    GroupComparison comparison(grid_, kDay);
    comparison.Add(kAnna);
    EXPECT_EQ(colour(2, 2), 0);
    EXPECT_FALSE(grid_.Redraw());
    comparison.Finish();
    EXPECT_EQ(colour(2, 2), SetColour(grid_.cells().TextMatrix(2, 2)));
    EXPECT_TRUE(grid_.Redraw());
}

// The second time is for the picture that the grid keeps.
TEST_F(ComparedGroup, ShowsAnEmptyGridFirst) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&grid_));
    const PaintCounter cells(*grid_.viewport());
    const GroupComparison comparison(grid_, kDay);
    EXPECT_EQ(cells.painted(), 2);
    EXPECT_EQ(grid_.cells().Rows(), 3);
    EXPECT_EQ(row(2).trimmed(), QString());
}

TEST_F(ComparedGroup, LeavesTheGridFrozenWhereAMemberIsGone) {
    {
        GroupComparison comparison(grid_, kDay);
        comparison.Add(kAnna);
        EXPECT_EQ(errorOf([&] { comparison.Add(kNobody); }), 3021);
    }
    EXPECT_EQ(grid_.cells().Rows(), 4);
    EXPECT_FALSE(grid_.Redraw());
    EXPECT_EQ(colour(2, 2), 0);
}

}  // namespace
