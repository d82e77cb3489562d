// What the explorer writes into its grid: everybody in rows, and the codes of the table in words.
//
// The columns are Name, FName, Birthdate, Gender, CatID and NameID, in this order until one is
// moved.
#pragma once

#include <QString>
#include <unordered_map>
#include <vector>

#include "controls/grid_cells.h"
#include "cycles/date.h"
#include "store/item_list.h"

class Recordset;

// The names of categories by number, found as a walk down a list would find them: of several
// entries with a number the first.
class CategoryLookup {
  public:
    explicit CategoryLookup(std::vector<ListEntry> entries);

    // The name; the number itself as text where there is no such entry.
    QString nameOf(Long catId);

    // The entry on which the last walk ended: the one that it found or, in vain, the last of all.
    // -1 if there are no entries or was no walk.
    int lastEntry() const { return lastEntry_; }

  private:
    std::vector<ListEntry> entries_;
    std::unordered_map<Long, int> firstEntries_;
    int lastEntry_ = -1;
};

// "Apr 1, 2000"
QString birthdateText(Date birthdate);

// "Female" for the text "True" and "Male" for "False"; any other stays.
QString genderWord(const QString& gender);

// Everybody, a row each in the order of the set, below the names of the fields. Raises 3021 if
// there is nobody, 94 (Invalid use of Null) for somebody without a birth date, a gender or a
// category, and 13 (Type mismatch) where one of these is no number.
void bindPeople(GridCells& cells, Recordset& people, CategoryLookup& categories);

// The widths of the columns, and those headers that are not the names of their fields.
void setUpColumns(GridCells& cells);

// Makes the header bold.
void makeHeaderBold(GridCells& cells);

// Every second column, from the first on, stands on grey.
void paintBands(GridCells& cells);

// The same again when columns have been moved: all cells white before.
void repaintBands(GridCells& cells);
