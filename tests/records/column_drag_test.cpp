// The drag of a column, without a grid.
#include "records/column_drag.h"

#include <gtest/gtest.h>

#include "support/errors.h"

namespace {

constexpr GridPoint kPress{.x = 1000, .y = 100, .row = 0, .column = 2};

ColumnDrag pressed() {
    ColumnDrag drag;
    drag.press(kPress);
    return drag;
}

// Whether a move by so much takes the column up.
bool isTakenUp(double dx, double dy) {
    ColumnDrag drag = pressed();
    return drag.takeUp({kPress.x + dx, kPress.y + dy, 0, 2}, true);
}

}  // namespace

TEST(ColumnDrag, BeginsWithNothingTakenUp) {
    const ColumnDrag drag;
    EXPECT_FALSE(drag.DragOK);
    EXPECT_EQ(drag.DragCol, -1);
}

TEST(ColumnDrag, KeepsWhereTheHeaderWasPressed) {
    ColumnDrag drag{.DragCol = 3};
    drag.press({.x = 1000.5, .y = 99.4, .row = 0, .column = 2});
    EXPECT_TRUE(drag.DragOK);
    EXPECT_EQ(drag.DragCol, -1);
    EXPECT_EQ(drag.DownX, 1000);
    EXPECT_EQ(drag.DownY, 99);
}

TEST(ColumnDrag, TakesNoNoticeOfAPressOnARowOfData) {
    ColumnDrag drag{.DragCol = 3};
    drag.press({.x = 1000, .y = 500, .row = 1, .column = 2});
    EXPECT_FALSE(drag.DragOK);
    EXPECT_EQ(drag.DragCol, 3);
    EXPECT_EQ(drag.DownX, 0);
    EXPECT_FALSE(drag.takeUp({5000, 100, 0, 2}, true));
}

TEST(ColumnDrag, RaisesAnOverflowForAPressBeyondSixteenBits) {
    ColumnDrag drag;
    EXPECT_EQ(errorOf([&] { drag.press({.x = 32768, .y = 0, .row = 0, .column = 4}); }), 6);
    EXPECT_FALSE(drag.DragOK);
}

TEST(ColumnDrag, TakesAColumnUpFromFiftyTwipsOnThatAreAdded) {
    EXPECT_TRUE(isTakenUp(25, 25));
    EXPECT_FALSE(isTakenUp(25, 24.9));
    EXPECT_TRUE(isTakenUp(50, 0));
    EXPECT_FALSE(isTakenUp(49, 0));
    EXPECT_TRUE(isTakenUp(0, -50));
    EXPECT_TRUE(isTakenUp(-25, 25));
    EXPECT_FALSE(isTakenUp(-24, 25));
    EXPECT_FALSE(isTakenUp(0, 0));
}

TEST(ColumnDrag, TakesUpTheColumnThatIsUnderTheMouseByThen) {
    ColumnDrag drag = pressed();
    EXPECT_TRUE(drag.takeUp({1200, 100, 0, 3}, true));
    EXPECT_EQ(drag.DragCol, 3);
}

TEST(ColumnDrag, TakesNoSecondColumnUp) {
    ColumnDrag drag = pressed();
    EXPECT_TRUE(drag.takeUp({1200, 100, 0, 3}, true));
    EXPECT_FALSE(drag.takeUp({2000, 100, 0, 4}, true));
    EXPECT_EQ(drag.DragCol, 3);
}

TEST(ColumnDrag, TakesNothingUpWithoutTheLeftButtonAlone) {
    ColumnDrag drag = pressed();
    EXPECT_FALSE(drag.takeUp({1200, 100, 0, 3}, false));
    EXPECT_EQ(drag.DragCol, -1);
}

TEST(ColumnDrag, TakesNothingUpAwayFromTheHeader) {
    ColumnDrag drag = pressed();
    EXPECT_FALSE(drag.takeUp({1200, 500, 1, 3}, true));
    EXPECT_TRUE(drag.takeUp({1200, 100, 0, 3}, true));
}

// Beside the last column that is shown, the mouse is over the hidden one.
TEST(ColumnDrag, NeverTakesTheHiddenColumnUp) {
    ColumnDrag drag = pressed();
    EXPECT_FALSE(drag.takeUp({kPress.x + 100, kPress.y, 0, kHiddenColumn}, true));
    EXPECT_EQ(drag.DragCol, -1);
}

TEST(ColumnDrag, TakesNothingUpOnceTheButtonIsLetGo) {
    ColumnDrag drag = pressed();
    drag.release();
    EXPECT_FALSE(drag.DragOK);
    EXPECT_FALSE(drag.takeUp({1200, 100, 0, 3}, true));
}

TEST(ColumnDrag, MovesAColumnToWhereTheMouseIsOverTheHeader) {
    for (const int column : {0, 2, 4})
        EXPECT_EQ(ColumnDrag{.DragCol = 2}.dropAt(0, column), ColumnDrop::Moves) << column;
}

TEST(ColumnDrag, DropsNothingAwayFromTheHeader) {
    EXPECT_EQ(ColumnDrag{.DragCol = 2}.dropAt(1, 0), ColumnDrop::Nothing);
    EXPECT_EQ(ColumnDrag{.DragCol = 2}.dropAt(1, kHiddenColumn), ColumnDrop::Nothing);
}

TEST(ColumnDrag, DropsNothingWhereNoColumnWasTakenUp) {
    EXPECT_EQ(ColumnDrag{}.dropAt(0, 0), ColumnDrop::Nothing);
    EXPECT_EQ(ColumnDrag{}.dropAt(0, kHiddenColumn), ColumnDrop::Nothing);
}

TEST(ColumnDrag, TellsTheHiddenColumnFromTheOthers) {
    EXPECT_EQ(ColumnDrag{.DragCol = 2}.dropAt(0, kHiddenColumn), ColumnDrop::OnHidden);
}
