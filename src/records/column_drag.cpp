// The rules of column_drag.h.
#include "records/column_drag.h"

#include <cmath>

#include "runtime/numbers.h"

void press(ColumnDrag& drag, const GridPoint& place) {
    if (place.row != kHeaderRow)
        return;
    drag.DownX = RoundToInteger(place.x);
    drag.DownY = RoundToInteger(place.y);
    drag.DragCol = -1;
    drag.DragOK = true;
}

bool takesColumnUp(ColumnDrag& drag, const GridPoint& place, bool isLeftButtonAlone) {
    if (!drag.DragOK || !isLeftButtonAlone || drag.DragCol != -1)
        return false;
    if (std::abs(drag.DownX - place.x) + std::abs(drag.DownY - place.y) < kDragDistance)
        return false;
    if (place.row != kHeaderRow || place.column >= kHiddenColumn)
        return false;
    drag.DragCol = static_cast<Integer>(place.column);
    return true;
}

void release(ColumnDrag& drag) {
    drag.DragOK = false;
}

ColumnDrop dropOf(const ColumnDrag& drag, int row, int column) {
    if (drag.DragCol == -1 || row != kHeaderRow)
        return ColumnDrop::Nothing;
    return column >= kHiddenColumn ? ColumnDrop::OnHidden : ColumnDrop::Moves;
}
