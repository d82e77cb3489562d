// What the explorer writes into its grid: everybody in rows, and the codes of the table in words.
//
// The columns are Name, FName, Birthdate, Gender, CatID and NameID, in this order as long as none
// has been moved. Each function that shows a column expects them so.
#pragma once

#include <QString>
#include <vector>

#include "controls/grid_cells.h"
#include "cycles/date.h"
#include "store/item_list.h"

class Recordset;

// The cells of all people, as the store has them, below the names of the fields. A birth date is
// left out, as showBirthdates writes it.
void bindPeople(GridCells& cells, Recordset& people);

// The widths of the columns, and those headers that are not the names of their fields.
void setUpColumns(GridCells& cells);

// Writes the birth dates; rows and people are in step. Raises 3021 if there is nobody.
void showBirthdates(GridCells& cells, Recordset& people);

// "Apr 1, 2000"
QString birthdateText(Date birthdate);

// "Female" for the text "True" and "Male" for "False"; any other stays.
void showGenders(GridCells& cells);
QString genderWord(const QString& gender);

// Puts the name of a category in place of its number, where there is such an entry; of several the
// first counts. Returns the entry that was looked at last, as if each row walked from the first
// entry to its own, or to the last one in vain; -1 if there is no entry.
int showCategories(GridCells& cells, const std::vector<ListEntry>& categories);

// Makes the header bold.
void makeHeaderBold(GridCells& cells);

// Every second column, from the first on, stands on grey.
void paintBands(GridCells& cells);

// The same again when columns have been moved: all cells white before.
void repaintBands(GridCells& cells);

// The number that a cell's text is. Raises 13 if it is none.
Long numberOfCell(const QString& text);
