// The operations of grid_cells.h. Cells stay where they were put; rows and columns are moved by
// changing the order in which they are looked up.
#include "controls/grid_cells.h"

#include <QStringTokenizer>
#include <algorithm>
#include <numeric>
#include <span>
#include <utility>

#include "controls/grid_order.h"
#include "runtime/errors.h"

namespace {

std::size_t checked(int index, std::size_t count) {
    if (index < 0 || static_cast<std::size_t>(index) >= count)
        throw RuntimeError(ErrorNumber::InvalidPropertyArrayIndex);
    return static_cast<std::size_t>(index);
}

std::size_t checkedCount(int count, int least = 0) {
    if (count < least)
        throw RuntimeError(ErrorNumber::InvalidPropertyArrayIndex);
    return static_cast<std::size_t>(count);
}

}  // namespace

std::size_t GridCells::checkedRow(int row) const {
    return checked(row, rows_.size());
}

std::size_t GridCells::checkedColumn(int column) const {
    return checked(column, columns_.size());
}

std::size_t GridCells::indexOf(int row, int column) const {
    return static_cast<std::size_t>(rows_[checkedRow(row)]) * columns_.size() +
           columns_[checkedColumn(column)].stored;
}

void GridCells::bind(int columns, std::vector<QString> texts) {
    columns_.clear();
    for (int column = 0; column < columns; ++column)
        columns_.push_back({.stored = static_cast<std::size_t>(column)});
    cells_.clear();
    cells_.reserve(texts.size());
    for (QString& text : texts)
        cells_.push_back({std::move(text), {}});
    numberRows(columns == 0 ? 0 : cells_.size() / columns_.size());
    row_ = rowSel_ = std::max(std::min(fixedRows_, Rows() - 1), 0);
    col_ = colSel_ = 0;
}

// The rows stand in the order in which their cells lie.
void GridCells::numberRows(std::size_t rows) {
    rows_.resize(rows);
    std::iota(rows_.begin(), rows_.end(), 0);
    freeRows_.clear();
}

void GridCells::Clear() {
    std::fill(cells_.begin(), cells_.end(), Cell());
}

void GridCells::setCols(int columns) {
    const std::size_t count = checkedCount(columns);
    if (columns == Cols())
        return;
    std::vector<Cell> cells;
    cells.reserve(rows_.size() * count);
    for (int row = 0; row < Rows(); ++row) {
        for (int column = 0; column < columns; ++column)
            cells.push_back(column < Cols() ? std::move(cells_[indexOf(row, column)]) : Cell());
    }
    cells_ = std::move(cells);
    columns_.resize(count);
    for (std::size_t column = 0; column < columns_.size(); ++column)
        columns_[column].stored = column;
    numberRows(rows_.size());
    keepSelectionInside();
}

void GridCells::setRows(int rows) {
    checkedCount(rows);
    while (Rows() > rows)
        RemoveItem(Rows() - 1);
    while (Rows() < rows)
        rows_.push_back(emptyRow());
}

void GridCells::AddItem(QStringView texts, int place) {
    const std::size_t rowsBefore = checked(place, rows_.size() + 1);
    rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(rowsBefore), emptyRow());
    int column = 0;
    for (const QStringView text : qTokenize(texts, u'\t')) {
        if (column == Cols())
            return;
        setTextMatrix(place, column++, text.toString());
    }
}

void GridCells::AddItem(std::span<const QString> texts) {
    rows_.push_back(emptyRow());
    const std::size_t taken = std::min(texts.size(), columns_.size());
    for (std::size_t column = 0; column < taken; ++column)
        setTextMatrix(Rows() - 1, static_cast<int>(column), texts[column]);
}

void GridCells::RemoveItem(int row) {
    const auto gone = rows_.begin() + static_cast<std::ptrdiff_t>(checkedRow(row));
    freeRows_.push_back(*gone);
    rows_.erase(gone);
    keepSelectionInside();
}

// Where a row of empty cells lies now: in the place of one that was taken away, or behind all.
int GridCells::emptyRow() {
    const std::size_t columns = columns_.size();
    if (freeRows_.empty()) {
        cells_.resize(cells_.size() + columns);
        return static_cast<int>(rows_.size());
    }
    const int row = freeRows_.back();
    freeRows_.pop_back();
    std::fill_n(
        cells_.begin() + static_cast<std::ptrdiff_t>(static_cast<std::size_t>(row) * columns),
        columns, Cell());
    return row;
}

void GridCells::keepSelectionInside() {
    for (int* row : {&row_, &rowSel_})
        *row = std::clamp(*row, 0, std::max(Rows() - 1, 0));
    for (int* column : {&col_, &colSel_})
        *column = std::clamp(*column, 0, std::max(Cols() - 1, 0));
}

void GridCells::setFixedRows(int rows) {
    checkedCount(rows, 1);
    fixedRows_ = rows;
}

void GridCells::setTextMatrix(int row, int column, const QString& text) {
    cells_[indexOf(row, column)].text = text;
}

void GridCells::setColPosition(int column, int place) {
    const auto from = columns_.begin() + static_cast<std::ptrdiff_t>(checkedColumn(column));
    const auto to = columns_.begin() + static_cast<std::ptrdiff_t>(checkedColumn(place));
    if (from < to)
        std::rotate(from, from + 1, to + 1);
    else
        std::rotate(to, from, from + 1);
}

void GridCells::setRow(int row) {
    checkedRow(row);
    row_ = rowSel_ = row;
}

void GridCells::setCol(int column) {
    checkedColumn(column);
    col_ = colSel_ = column;
}

void GridCells::setRowSel(int row) {
    checkedRow(row);
    rowSel_ = row;
}

void GridCells::setColSel(int column) {
    checkedColumn(column);
    colSel_ = column;
}

template <class Change>
void GridCells::changeLooks(Change change) {
    const bool isRepeated = fillStyle_ == FillStyle::Repeat;
    const auto [top, bottom] = std::minmax({row_, isRepeated ? rowSel_ : row_});
    const auto [left, right] = std::minmax({col_, isRepeated ? colSel_ : col_});
    for (int row = top; row <= bottom; ++row) {
        for (int column = left; column <= right; ++column)
            change(cells_[indexOf(row, column)].look);
    }
}

void GridCells::setCellBackColor(Long colour) {
    changeLooks([colour](CellLook& look) { look.backColor = colour; });
}

void GridCells::setCellForeColor(Long colour) {
    changeLooks([colour](CellLook& look) { look.foreColor = colour; });
}

void GridCells::setCellFontBold(bool bold) {
    changeLooks([bold](CellLook& look) { look.isBold = bold; });
}

void GridCells::Sort(RowOrder order) {
    if (Rows() <= fixedRows_)
        return;
    const auto [left, right] = std::minmax({col_, colSel_});
    const auto textOf = [&, first = static_cast<std::size_t>(left)](int row,
                                                                    int place) -> QStringView {
        const Column& column = columns_[first + static_cast<std::size_t>(place)];
        return cells_[static_cast<std::size_t>(row) * columns_.size() + column.stored].text;
    };
    const auto sort = order == RowOrder::GenericAscending ? sortGenerically : sortNumerically;
    sort(std::span(rows_).subspan(static_cast<std::size_t>(fixedRows_)), right - left + 1, textOf);
}
