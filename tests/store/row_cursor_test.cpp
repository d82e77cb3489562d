// Where a record set stands.
#include "store/row_cursor.h"

#include <gtest/gtest.h>

#include "runtime/errors.h"

namespace {

TEST(RowCursor, StandsOnTheFirstRow) {
    const RowCursor cursor(3);
    EXPECT_EQ(cursor.current(), 1);
    EXPECT_EQ(cursor.absolutePosition(), 1);
    EXPECT_EQ(cursor.count(), 3);
}

TEST(RowCursor, IsAtBothEndsWithoutRows) {
    RowCursor cursor(0);
    EXPECT_TRUE(cursor.isBeforeFirst());
    EXPECT_TRUE(cursor.isBehindLast());
    EXPECT_EQ(cursor.current(), std::nullopt);
    EXPECT_EQ(cursor.absolutePosition(), -1);
    EXPECT_THROW(cursor.moveFirst(), RuntimeError);
    EXPECT_THROW(cursor.moveLast(), RuntimeError);
}

TEST(RowCursor, MovesOneBeyondEitherEndAndNoFurther) {
    RowCursor cursor(3);
    cursor.moveBy(10);
    EXPECT_TRUE(cursor.isBehindLast());
    EXPECT_EQ(cursor.absolutePosition(), -3);
    EXPECT_THROW(cursor.moveBy(1), RuntimeError);
    cursor.moveBy(-1);
    EXPECT_EQ(cursor.current(), 3);
    cursor.moveBy(-10);
    EXPECT_TRUE(cursor.isBeforeFirst());
    EXPECT_EQ(cursor.absolutePosition(), -2);
    EXPECT_THROW(cursor.moveBy(-1), RuntimeError);
}

TEST(RowCursor, StandsInTheGapOfARemovedRowUntilItMoves) {
    RowCursor cursor(3);
    cursor.moveBy(1);
    cursor.removeCurrent();
    EXPECT_EQ(cursor.current(), std::nullopt);
    EXPECT_FALSE(cursor.isBeforeFirst());
    EXPECT_FALSE(cursor.isBehindLast());
    cursor.moveBy(1);
    EXPECT_EQ(cursor.current(), 3);
}

TEST(RowCursor, GoesBackFromAGapToTheRowBeforeIt) {
    RowCursor cursor(3);
    cursor.moveBy(1);
    cursor.removeCurrent();
    cursor.moveBy(-1);
    EXPECT_EQ(cursor.current(), 1);
}

TEST(RowCursor, FindsARowByItsNumberUntilItIsRemoved) {
    RowCursor cursor(3);
    EXPECT_TRUE(cursor.moveTo(3));
    EXPECT_EQ(cursor.absolutePosition(), 3);
    cursor.removeCurrent();
    EXPECT_FALSE(cursor.moveTo(3));
    EXPECT_FALSE(cursor.moveTo(4));
}

TEST(RowCursor, StandsOnARowThatIsAppended) {
    RowCursor cursor(2);
    cursor.append(7);
    EXPECT_EQ(cursor.current(), 7);
    EXPECT_EQ(cursor.absolutePosition(), 3);
}

}  // namespace
