// The comparison of a group in a grid, member by member.
#pragma once

#include "cycles/date.h"
#include "store/connection.h"
#include "store/person_records.h"

class Grid;

// Compares the members of a group on one date. At its beginning the grid is emptied and frozen;
// only Finish gives the rows their colours and lets the grid be painted again. The constructor
// raises what openPersonDatabase raises, once the grid is frozen.
class GroupComparison {
  public:
    GroupComparison(Grid& grid, Date date);

    // Adds a member's row below the others. The number tells who it is, the text is shown. Raises
    // 3021 for somebody who is not in the database, 94 for a birth date that is Null.
    void Add(const PersonRecord& member);

    void Finish();

  private:
    Grid& grid_;
    Date date_;
    Connection connection_;
    int rows_ = 0;
};
