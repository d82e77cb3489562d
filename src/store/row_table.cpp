// The storage of row_table.h.
#include "store/row_table.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace {

// The fields of a statement's rows; they tell the values of the row on which it stands.
std::vector<SQLite::Column> fieldsOf(const SQLite::Statement& rows) {
    std::vector<SQLite::Column> fields;
    fields.reserve(static_cast<std::size_t>(rows.getColumnCount()));
    for (int field = 0; field < rows.getColumnCount(); ++field)
        fields.push_back(rows.getColumn(field));
    return fields;
}

}  // namespace

Value Cell::value() const {
    switch (kind) {
        case Kind::Null:
            return Value();
        case Kind::Whole:
            return Value(whole);
        case Kind::Real:
            return Value(real);
        case Kind::Text:
            return Value(QString::fromUtf8(text, static_cast<qsizetype>(length)));
    }
    Q_UNREACHABLE();
}

void RowTable::appendAll(SQLite::Statement& rows) {
    std::vector<SQLite::Column> fields;
    while (rows.executeStep()) {
        if (fields.empty())
            fields = fieldsOf(rows);
        append(keep(fields));
    }
}

const Cell* RowTable::keep(const SQLite::Statement& row) {
    return keep(fieldsOf(row));
}

const Cell* RowTable::keep(const std::vector<SQLite::Column>& fields) {
    Cell* cells = newRow();
    std::transform(fields.begin(), fields.end(), cells,
                   [this](const SQLite::Column& field) { return cellOf(field); });
    return cells;
}

RowId RowTable::append(const Cell* row) {
    rows_.push_back(row);
    return rowCount();
}

RowId RowTable::appendNulls() {
    return append(newRow());
}

Cell* RowTable::newRow() {
    const auto count = static_cast<std::size_t>(fieldCount_);
    auto* cells = static_cast<Cell*>(blocks_.allocate(count * sizeof(Cell), alignof(Cell)));
    std::uninitialized_default_construct_n(cells, count);
    return cells;
}

Cell RowTable::cellOf(const SQLite::Column& field) {
    Cell cell;
    switch (field.getType()) {
        case SQLITE_NULL:
            break;
        case SQLITE_INTEGER:
            cell.kind = Cell::Kind::Whole;
            cell.whole = field.getInt64();
            break;
        case SQLITE_FLOAT:
            cell.kind = Cell::Kind::Real;
            cell.real = field.getDouble();
            break;
        default: {
            const char* text = field.getText();
            cell.kind = Cell::Kind::Text;
            cell.length = static_cast<std::uint32_t>(field.getBytes());
            auto* letters = static_cast<char*>(blocks_.allocate(cell.length, alignof(char)));
            std::memcpy(letters, text, cell.length);
            cell.text = letters;
        }
    }
    return cell;
}
