// Where a record set stands.
#pragma once

#include <optional>
#include <vector>

#include "store/row_table.h"

// A place among the rows of a set: on a row, before the first (BOF), behind the last (EOF), or in
// the gap that a deleted row left. It knows the rows' numbers and nothing of their values.
class RowCursor {
  public:
    // Rows 1 to `rowCount`; stands on the first.
    explicit RowCursor(RowId rowCount);

    Long count() const { return static_cast<Long>(rows_.size()); }
    bool isBeforeFirst() const { return !inGap_ && (place_ < 0 || rows_.empty()); }
    bool isBehindLast() const { return !inGap_ && place_ >= count(); }

    // The row that the cursor stands on, if any.
    std::optional<RowId> current() const;

    // As AbsolutePosition of recordset.h; -1 in a gap.
    Long absolutePosition() const;

    // These raise 3021 as recordset.h says.
    void moveFirst();
    void moveLast();
    void moveBy(Long rows);

    void moveBehindLast();

    // Goes to a row; false if it is not in the set.
    bool moveTo(RowId row);

    // Adds a row with a number above all others, and stands on it.
    void append(RowId row);

    // Takes the current row out and stands in its gap.
    void removeCurrent();

  private:
    std::vector<RowId> rows_;  // in their order, which is that of their numbers
    Long place_ = 0;           // the index of the current row, or of the one behind the gap
    bool inGap_ = false;
};
