// The table behind a statement's rows.
#pragma once

#include <SQLiteCpp/Database.h>

#include <optional>
#include <string>
#include <vector>

// A table to which the rows that a statement read can be written back. The names are quoted as
// SQL needs them.
struct BaseTable {
    std::string name;
    std::vector<std::string> columns;  // the column of each field
    int keyField;                      // the field that holds the table's generated key

    const std::string& column(int field) const { return columns[static_cast<std::size_t>(field)]; }
};

// The one table whose columns, the key among them, a statement returns; nothing if the statement
// returns anything else.
std::optional<BaseTable> findBaseTable(SQLite::Database& database, const std::string& statement);
