// The operations of grid_cells.h. Cells stay where they were put; rows and columns are moved by
// changing the order in which they are looked up.
#include "controls/grid_cells.h"

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
        columns_.push_back({static_cast<std::size_t>(column), kDefaultColWidth});
    texts_ = std::move(texts);
    looks_.assign(texts_.size(), CellLook());
    rows_.resize(columns == 0 ? 0 : texts_.size() / columns_.size());
    std::iota(rows_.begin(), rows_.end(), 0);
    row_ = rowSel_ = std::max(std::min(fixedRows_, Rows() - 1), 0);
    col_ = colSel_ = 0;
}

void GridCells::setTextMatrix(int row, int column, const QString& text) {
    texts_[indexOf(row, column)] = text;
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
            change(looks_[indexOf(row, column)]);
    }
}

void GridCells::setCellBackColor(Long colour) {
    changeLooks([colour](CellLook& look) { look.backColor = colour; });
}

void GridCells::setCellFontBold(bool bold) {
    changeLooks([bold](CellLook& look) { look.isBold = bold; });
}

void GridCells::Sort() {
    const auto [left, right] = std::minmax({col_, colSel_});
    const auto textOf = [&, first = static_cast<std::size_t>(left)](int row,
                                                                    int place) -> QStringView {
        const Column& column = columns_[first + static_cast<std::size_t>(place)];
        return texts_[static_cast<std::size_t>(row) * columns_.size() + column.stored];
    };
    if (Rows() > fixedRows_)
        sortGenerically(std::span(rows_).subspan(static_cast<std::size_t>(fixedRows_)),
                        right - left + 1, textOf);
}
