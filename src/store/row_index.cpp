// The sorted numbers of row_index.h.
#include "store/row_index.h"

#include <algorithm>

RowIndex::RowIndex(const RowTable& table, int field) : field_(field) {
    entries_.reserve(static_cast<std::size_t>(table.rowCount()));
    for (RowId row = 1; row <= table.rowCount(); ++row) {
        const Cell& cell = table.row(row)[field];
        if (cell.kind == Cell::Kind::Whole || cell.kind == Cell::Kind::Real)
            entries_.push_back({cell.value().toDouble(), row});
    }
    std::sort(entries_.begin(), entries_.end());
}

std::optional<RowId> RowIndex::find(double number, RowId from) const {
    const auto found = std::lower_bound(entries_.begin(), entries_.end(), Entry{number, from});
    if (found == entries_.end() || found->number != number)
        return std::nullopt;
    return found->row;
}
