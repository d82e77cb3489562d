// The statements of row_writer.h.
#include "store/row_writer.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Statement.h>

#include <functional>

#include "runtime/errors.h"
#include "store/sql_pieces.h"

RowWriter::RowWriter(SQLite::Database& database, BaseTable base, RowTable& table)
    : database_(database), table_(table), base_(std::move(base)) {
    const auto comparison = [](const std::string& column) {
        return column + " COLLATE BINARY IS ?";
    };
    asReadClause_ = " WHERE " + joined(base_.columns, " AND ", comparison);
}

const Cell* RowWriter::insert(const Changes& values) {
    const auto column = [this](const auto& change) { return base_.column(change.first); };
    const auto mark = [](const auto&) { return std::string("?"); };
    const std::string sql = values.empty() ? " DEFAULT VALUES"
                                           : " (" + joined(values, ", ", column) + ") VALUES (" +
                                                 joined(values, ", ", mark) + ")";
    return stored(run("INSERT INTO " + base_.name + sql, values, nullptr));
}

const Cell* RowWriter::update(const Cell* asRead, const Changes& changes) {
    const auto assignment = [this](const auto& change) {
        return base_.column(change.first) + " = ?";
    };
    return stored(
        run("UPDATE " + base_.name + " SET " + joined(changes, ", ", assignment) + asReadClause_,
            changes, asRead));
}

void RowWriter::remove(const Cell* asRead) {
    run("DELETE FROM " + base_.name + asReadClause_, {}, asRead);
}

// Sends a statement that changes one row, and returns the row's key.
std::int64_t RowWriter::run(const std::string& sql, const Changes& values, const Cell* asRead) {
    SQLite::Statement statement(database_, sql + " RETURNING " + base_.column(base_.keyField));
    int place = 0;
    for (const auto& [field, value] : values)
        bindValue(statement, ++place, value);
    for (std::size_t field = 0; asRead && field < base_.columns.size(); ++field)
        bindValue(statement, ++place, asRead[field].value());
    if (!statement.executeStep())
        throw RuntimeError(ErrorNumber::RowNotLocated);
    const std::int64_t key = statement.getColumn(0).getInt64();
    statement.executeStep();  // outside a transaction the end of the statement commits, or fails
    return key;
}

// Reads the row anew: what RETURNING would tell is not converted to the columns' types.
const Cell* RowWriter::stored(std::int64_t key) {
    SQLite::Statement row(database_, "SELECT " + joined(base_.columns, ", ", std::identity()) +
                                         " FROM " + base_.name + " WHERE " +
                                         base_.column(base_.keyField) + " = ?");
    row.bind(1, key);
    row.executeStep();
    return table_.keep(row);
}
