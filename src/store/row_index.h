// Where the numbers of a field stand.
#pragma once

#include <optional>
#include <vector>

#include "store/row_table.h"

// The rows of a table in order of the numbers in one field, as they were when it was made. Texts
// and Null are not among them.
class RowIndex {
  public:
    RowIndex(const RowTable& table, int field);

    int field() const { return field_; }

    // The first row from `from` on, and including it, that has this number.
    std::optional<RowId> find(double number, RowId from) const;

  private:
    struct Entry {
        double number;
        RowId row;

        friend auto operator<=>(const Entry&, const Entry&) = default;
    };

    int field_;
    std::vector<Entry> entries_;
};
