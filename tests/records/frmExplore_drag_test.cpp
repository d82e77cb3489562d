// The explorer's columns under the mouse.
#include "controls/picture_button.h"
#include "records/explorer_driver.h"

namespace {

using ExplorerDrag = ExplorerTest;

const QString kAsRead = QStringLiteral("Name|Firstname|Birthdate|Gender|Category|NameID");

TEST_F(ExplorerDrag, TakesAColumnToTheFrontAndSortsByIt) {
    open();
    dragColumn(2, 0);
    EXPECT_EQ(header(), QStringLiteral("Birthdate|Name|Firstname|Gender|Category|NameID"));
    EXPECT_EQ(column(0), QStringList({QStringLiteral("Jan 31, 1985"), QStringLiteral("May 5, 1990"),
                                      QStringLiteral("Oct 20, 1972")}));
    EXPECT_EQ(cells().ColWidth(0), 1200);
    EXPECT_EQ(cells().ColWidth(1), 1725);
    EXPECT_EQ(greyColumns(), QStringLiteral("x-x-x-"));
    EXPECT_EQ(cells().look(1, 1).backColor, 0xFFFFFF);
    EXPECT_TRUE(grid().Redraw());
}

TEST_F(ExplorerDrag, SortsByTheTwoLeftmostColumnsAsTheyStandThen) {
    open();
    dragColumn(4, 0);
    EXPECT_EQ(column(1), QStringList({QStringLiteral("Smith"), QStringLiteral("Adler"),
                                      QStringLiteral("Zed")}));
    dragColumn(3, 1);
    EXPECT_EQ(header(), QStringLiteral("Category|Birthdate|Name|Firstname|Gender|NameID"));
    EXPECT_EQ(column(2), QStringList({QStringLiteral("Smith"), QStringLiteral("Zed"),
                                      QStringLiteral("Adler")}));
}

TEST_F(ExplorerDrag, TakesTheLeftmostColumnElsewhereToo) {
    open();
    dragColumn(0, 4);
    EXPECT_EQ(header(), QStringLiteral("Firstname|Birthdate|Gender|Category|Name|NameID"));
    EXPECT_EQ(column(0).first(), QString());
}

TEST_F(ExplorerDrag, KeepsWhoIsWhoThroughASort) {
    open();
    dragColumn(2, 0);
    EXPECT_EQ(rows().first(), QStringLiteral("Jan 31, 1985|Zed||Male|Friends|3"));
}

TEST_F(ExplorerDrag, DoesNothingFromARowOfData) {
    open();
    const QPoint from = placeOfCell(1, 2);
    pressMouse(*grid().viewport(), from);
    EXPECT_FALSE(form_->drag().DragOK);
    holdMouse(*grid().viewport(), placeOfCell(1, 0));
    EXPECT_FALSE(form_->drag().DragOK);
    EXPECT_EQ(form_->drag().DragCol, -1);
    releaseMouse(*grid().viewport(), {5, -5});
    EXPECT_EQ(header(), kAsRead);
}

TEST_F(ExplorerDrag, KeepsThePressInTwipsOfTheGrid) {
    open();
    const QPoint place = placeInHeader(1);
    pressMouse(headerView(), place);
    const QPoint inGrid = headerView().mapTo(&grid(), place);
    EXPECT_TRUE(form_->drag().DragOK);
    EXPECT_EQ(form_->drag().DownX, inGrid.x() * 15);
    EXPECT_EQ(form_->drag().DownY, inGrid.y() * 15);
}

TEST_F(ExplorerDrag, BeginsAtTheFourthPixel) {
    open();
    pressMouse(headerView(), placeInHeader(1));
    holdMouse(headerView(), placeInHeader(1) + QPoint(3, 0));
    EXPECT_EQ(form_->drag().DragCol, -1);
    holdMouse(headerView(), placeInHeader(1) + QPoint(2, 2));
    EXPECT_EQ(form_->drag().DragCol, 1);
}

TEST_F(ExplorerDrag, TakesNothingUpWithAnotherButtonThanTheLeftAlone) {
    open();
    pressMouse(headerView(), placeInHeader(1));
    for (const Qt::MouseButtons buttons :
         {Qt::MouseButtons(Qt::RightButton), Qt::LeftButton | Qt::RightButton}) {
        holdMouse(headerView(), placeInHeader(1) + QPoint(40, 0), buttons);
        EXPECT_EQ(form_->drag().DragCol, -1);
    }
}

TEST_F(ExplorerDrag, MovesNothingAtAClick) {
    open();
    click(headerView(), placeInHeader(2));
    EXPECT_EQ(header(), kAsRead);
    EXPECT_FALSE(form_->drag().DragOK);
}

TEST_F(ExplorerDrag, BeginsOnceAndEndsWhenTheButtonIsLetGo) {
    open();
    takeUp(3);
    holdMouse(headerView(), placeInHeader(1));
    EXPECT_EQ(form_->drag().DragCol, 3);
    EXPECT_TRUE(form_->drag().DragOK);
    releaseMouse(headerView(), placeInHeader(1));
    EXPECT_FALSE(form_->drag().DragOK);
    EXPECT_EQ(header(), QStringLiteral("Name|Gender|Firstname|Birthdate|Category|NameID"));
}

TEST_F(ExplorerDrag, KeepsTheColumnThatWasTakenUpUntilTheHeaderIsPressedAgain) {
    open();
    dragColumn(3, 1);
    EXPECT_EQ(form_->drag().DragCol, 3);
    pressMouse(*grid().viewport(), placeOfCell(0, 0));
    EXPECT_EQ(form_->drag().DragCol, 3);
    pressMouse(headerView(), placeInHeader(2));
    EXPECT_EQ(form_->drag().DragCol, -1);
}

TEST_F(ExplorerDrag, HearsAPressOfAnyButton) {
    open();
    Q_EMIT grid().MouseDown(Qt::RightButton, 300, 60);
    EXPECT_TRUE(form_->drag().DragOK);
    EXPECT_EQ(form_->drag().DownX, 300);
}

TEST_F(ExplorerDrag, MovesNothingWhereTheDropIsOnARow) {
    open();
    takeUp(2);
    releaseMouse(headerView(), {5, headerView().height() + 5});
    EXPECT_EQ(header(), kAsRead);
    EXPECT_TRUE(grid().Redraw());
}

TEST_F(ExplorerDrag, MovesNothingWhereTheDropIsOutside) {
    open();
    takeUp(2);
    releaseMouse(headerView(), {5, -100});
    EXPECT_EQ(header(), kAsRead);
    EXPECT_TRUE(grid().Redraw());
}

class ExplorerDropOnTheHiddenColumn : public ExplorerTest {
  protected:
    // Behind the last column there is the frame of the grid.
    void dropOnHidden() {
        open();
        takeUp(2);
        releaseMouse(headerView(), {headerView().width(), headerView().height() / 2});
    }
};

TEST_F(ExplorerDropOnTheHiddenColumn, MovesNothingAndLeavesRedrawOff) {
    dropOnHidden();
    EXPECT_EQ(header(), kAsRead);
    EXPECT_FALSE(grid().Redraw());
}

TEST_F(ExplorerDropOnTheHiddenColumn, IsOverWithTheNextDrop) {
    dropOnHidden();
    dragColumn(2, 0);
    EXPECT_TRUE(grid().Redraw());
    EXPECT_EQ(column(0).first(), QStringLiteral("Jan 31, 1985"));
}

TEST_F(ExplorerDropOnTheHiddenColumn, IsOverWithARefresh) {
    dropOnHidden();
    Q_EMIT of<PictureButton>("cmdRefresh").Click();
    EXPECT_TRUE(grid().Redraw());
}

TEST_F(ExplorerDropOnTheHiddenColumn, IsOverWithASort) {
    dropOnHidden();
    form_->DoSort();
    EXPECT_TRUE(grid().Redraw());
}

}  // namespace
