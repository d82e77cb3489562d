// The ordered match: who of a selection of people goes with a person, and how well, in the rows of
// a grid.
//
// The columns are the full name, the average and the three cycles. Below the header there is an
// empty row, which counts as 0 wherever the rows are sorted; the people follow it.
#pragma once

#include <QString>
#include <optional>

#include "controls/grid_cells.h"
#include "cycles/integers.h"

class Recordset;
struct ComparedPerson;

enum class MatchFilter { All, Males, Females };

// Whom to look among: those of a gender, and of a category where one is named.
struct MatchSelection {
    MatchFilter filter = MatchFilter::All;
    std::optional<Long> catId;
};

// The columns by which the rows can be sorted.
inline constexpr int kAverageColumn = 1;
inline constexpr int kLastNumberColumn = 4;

// The statement for a selection; nothing for everybody.
std::optional<QString> matchStatement(const MatchSelection& selection);

// What the user is asked for where no category is selected.
QString requestForCategory();

// What the user is told where nobody is in the selection.
QString nobodyToMatch(const MatchSelection& selection);

// Takes the rows of the last search away, but for the header and the empty row.
void clearMatches(GridCells& cells);

// A row for each of the people but the person, in the order of the set, which stands at its end
// then. Raises 94 (Invalid use of Null) at a birth date that is missing.
void addMatches(GridCells& cells, Recordset& people, const ComparedPerson& person);

// The largest number first. Raises 381 for no column of the grid.
void sortMatches(GridCells& cells, int column);

// Sets widths and headers, gives each percentage its colour, and goes to the first row.
void SetGrid(GridCells& cells);

// The colour, 0xBBGGRR, of a cell of this text, by the number at its beginning: high, middling or
// low; 0, the grid's own, between these bands and outside of them.
Long SetCol(QStringView txt);
