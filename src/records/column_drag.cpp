// The rules of column_drag.h.
#include "records/column_drag.h"

#include <cmath>

#include "runtime/numbers.h"

void ColumnDrag::press(const GridPoint& place) {
    if (place.row != kHeaderRow)
        return;
    DownX = RoundToInteger(place.x);
    DownY = RoundToInteger(place.y);
    DragCol = -1;
    DragOK = true;
}

bool ColumnDrag::takeUp(const GridPoint& place, bool isLeftButtonAlone) {
    if (!DragOK || !isLeftButtonAlone || DragCol != -1)
        return false;
    if (std::abs(DownX - place.x) + std::abs(DownY - place.y) < kDragDistance)
        return false;
    if (place.row != kHeaderRow || place.column >= kHiddenColumn)
        return false;
    DragCol = static_cast<Integer>(place.column);
    return true;
}

void ColumnDrag::release() {
    DragOK = false;
}

ColumnDrop ColumnDrag::dropAt(int row, int column) const {
    if (DragCol == -1 || row != kHeaderRow)
        return ColumnDrop::Nothing;
    return column >= kHiddenColumn ? ColumnDrop::OnHidden : ColumnDrop::Moves;
}
