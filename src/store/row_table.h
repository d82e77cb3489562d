// The rows of a record set in memory.
#pragma once

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Statement.h>

#include <cstdint>
#include <memory_resource>
#include <vector>

#include "cycles/integers.h"
#include "store/value.h"

// A field's value as it lies in a row: 16 bytes, with the letters of a text (UTF-8) elsewhere.
struct Cell {
    enum class Kind : std::uint32_t { Null, Whole, Real, Text };

    union {
        std::int64_t whole = 0;
        double real;
        const char* text;
    };
    std::uint32_t length = 0;  // of a text, in bytes
    Kind kind = Kind::Null;

    Value value() const;
};
static_assert(sizeof(Cell) == 16);

// The number of a row in its set, from 1 on. It is never given to another row.
using RowId = Long;

// Rows of equally many cells. They and their texts lie in a few large blocks, which go all at once
// with the table; a row that is replaced stays in its block until then.
class RowTable {
  public:
    explicit RowTable(int fieldCount) : fieldCount_(fieldCount) {}

    // Adds every row that a statement returns.
    void appendAll(SQLite::Statement& rows);

    // Adds a row whose values are all Null.
    RowId appendNulls();

    // Copies the row on which a statement stands, which is in no place of the table as yet.
    const Cell* keep(const SQLite::Statement& row);

    // Puts a kept row in the place of another.
    void replace(RowId id, const Cell* row) { rows_[indexOf(id)] = row; }

    // The cells of a row, one for each field.
    const Cell* row(RowId id) const { return rows_[indexOf(id)]; }

    RowId rowCount() const { return static_cast<RowId>(rows_.size()); }

  private:
    static std::size_t indexOf(RowId id) { return static_cast<std::size_t>(id - 1); }
    RowId append(const Cell* row);
    const Cell* keep(const std::vector<SQLite::Column>& fields);
    Cell* newRow();
    Cell cellOf(const SQLite::Column& field);

    int fieldCount_;
    std::pmr::monotonic_buffer_resource blocks_;
    std::vector<const Cell*> rows_;
};
