// The search of base_table.h, in the metadata that SQLite keeps of a statement's columns.
#include "store/base_table.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

#include <algorithm>
#include <memory>

#include "store/sql_pieces.h"

namespace {

struct Finalizer {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using StatementHandle = std::unique_ptr<sqlite3_stmt, Finalizer>;

// SQLiteCpp does not tell a column's table, so the statement is prepared beside it.
StatementHandle prepare(SQLite::Database& database, const std::string& statement) {
    sqlite3_stmt* handle = nullptr;
    const int result =
        sqlite3_prepare_v2(database.getHandle(), statement.c_str(), -1, &handle, nullptr);
    if (result != SQLITE_OK)
        throw SQLite::Exception(database.getHandle(), result);
    return StatementHandle(handle);
}

std::string textOrNone(const char* text) {
    return text ? text : std::string();
}

// The column that is the table's whole primary key and numbered by SQLite; "" if there is none.
std::string generatedKeyOf(SQLite::Database& database, const std::string& table) {
    SQLite::Statement keys(database, "SELECT name, type FROM pragma_table_info(?) WHERE pk > 0");
    keys.bind(1, table);
    if (!keys.executeStep() || keys.getColumn(1).getString() != "INTEGER")
        return {};
    std::string name = keys.getColumn(0).getString();
    return keys.executeStep() ? std::string() : name;
}

}  // namespace

std::optional<BaseTable> findBaseTable(SQLite::Database& database, const std::string& statement) {
    const StatementHandle handle = prepare(database, statement);
    const std::string table = textOrNone(sqlite3_column_table_name(handle.get(), 0));
    std::vector<std::string> columns;
    for (int field = 0; field < sqlite3_column_count(handle.get()); ++field) {
        if (textOrNone(sqlite3_column_table_name(handle.get(), field)) != table)
            return std::nullopt;
        columns.push_back(textOrNone(sqlite3_column_origin_name(handle.get(), field)));
    }
    const std::string keyName = generatedKeyOf(database, table);
    const auto key = std::find(columns.begin(), columns.end(), keyName);
    if (table.empty() || keyName.empty() || key == columns.end())
        return std::nullopt;
    const auto keyField = static_cast<int>(key - columns.begin());
    std::transform(columns.begin(), columns.end(), columns.begin(), quoted);
    return BaseTable{quoted(table), std::move(columns), keyField};
}
