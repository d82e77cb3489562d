// The grid in which a group is compared: below a header of two lines a row for each person
// (group_row.h), and an empty one at the end.
#pragma once

#include "controls/grid_cells.h"

// The rows of the header; those of the people follow in their order.
inline constexpr int kGroupHeaderRows = 2;

// Leaves the header and the empty row, without any text.
void clearGroup(GridCells& cells);

// Sets columns, widths and headers, and gives each percentage its colour.
void setGroupGrid(GridCells& cells);
