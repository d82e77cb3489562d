// The grid in which a group is compared: below a header of two lines a row for each person
// (group_row.h), and an empty one at the end.
#pragma once

#include <QString>

#include "controls/grid_cells.h"

// Leaves the header and the empty row, without any text.
void clearGroup(GridCells& cells);

// Puts a row in its place, 0 for the first; the empty row moves down.
void addGroupRow(GridCells& cells, const QString& row, int place);

// Sets columns, widths and headers, and gives each percentage its colour.
void setGroupGrid(GridCells& cells);
