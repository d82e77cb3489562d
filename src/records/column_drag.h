// The drag of a column in the explorer: when it begins, and what its drop does.
//
// Positions are in twips from the grid's top left corner; cells are those under the mouse.
#pragma once

#include "cycles/integers.h"

// A move is a drag from so many twips on, those to the side and those up or down added.
inline constexpr int kDragDistance = 50;

// The last column, of the keys; it is never shown and never moves.
inline constexpr int kHiddenColumn = 5;

inline constexpr int kHeaderRow = 0;

// A place of the mouse.
struct GridPoint {
    double x;
    double y;
    int row;
    int column;
};

enum class ColumnDrop {
    Nothing,   // no column was taken up, or the mouse is not over the header
    OnHidden,  // nothing moves, but the grid has stopped painting by then
    Moves      // the column goes to where the mouse is
};

struct ColumnDrag {
    bool DragOK = false;   // a press on the header is in progress
    Integer DragCol = -1;  // the column that was taken up; -1 for none
    Integer DownX = 0;     // where the press was
    Integer DownY = 0;

    // The button goes down. Only on the header does this change anything. Raises 6 (Overflow) for a
    // position beyond 16 bits.
    void press(const GridPoint& place);

    // The mouse moves. Returns whether this takes a column up: the one in DragCol then.
    bool takeUp(const GridPoint& place, bool isLeftButtonAlone);

    // The button is let go.
    void release();

    // What a drop on this cell does.
    ColumnDrop dropAt(int row, int column) const;
};
