// What a record set sends to the store to change a row.
#pragma once

#include <map>

#include "store/base_table.h"
#include "store/row_table.h"

// The values to write, by the index of their field.
using Changes = std::map<int, Value>;

// Writes single rows of a base table, and begins no transaction. A row is found by its key and by
// all its values as they were read, letter for letter; one that has changed or gone raises "Row
// cannot be located for updating". What is returned is the row as the store then holds it,
// generated values included, kept in the table but not put into a place.
class RowWriter {
  public:
    RowWriter(SQLite::Database& database, BaseTable base, RowTable& table);

    const Cell* insert(const Changes& values);
    const Cell* update(const Cell* asRead, const Changes& changes);
    void remove(const Cell* asRead);

  private:
    std::int64_t run(const std::string& sql, const Changes& values, const Cell* asRead);
    const Cell* stored(std::int64_t key);

    SQLite::Database& database_;
    RowTable& table_;
    BaseTable base_;
    std::string asReadClause_;
};
