// The storage of row_table.h.
#include "store/row_table.h"

#include <SQLiteCpp/Column.h>
#include <sqlite3.h>

#include <cstring>
#include <memory>

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

const Cell* RowTable::keep(const SQLite::Statement& row) {
    Cell* cells = newRow();
    for (int field = 0; field < fieldCount_; ++field)
        cells[field] = cellOf(row, field);
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

Cell RowTable::cellOf(const SQLite::Statement& row, int field) {
    const SQLite::Column column = row.getColumn(field);
    Cell cell;
    switch (column.getType()) {
        case SQLITE_NULL:
            break;
        case SQLITE_INTEGER:
            cell.kind = Cell::Kind::Whole;
            cell.whole = column.getInt64();
            break;
        case SQLITE_FLOAT:
            cell.kind = Cell::Kind::Real;
            cell.real = column.getDouble();
            break;
        default: {
            const char* text = column.getText();
            cell.kind = Cell::Kind::Text;
            cell.length = static_cast<std::uint32_t>(column.getBytes());
            auto* letters = static_cast<char*>(blocks_.allocate(cell.length, alignof(char)));
            std::memcpy(letters, text, cell.length);
            cell.text = letters;
        }
    }
    return cell;
}
