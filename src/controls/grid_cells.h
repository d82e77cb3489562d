// The cells of a grid: their texts and looks, the order of rows and columns, and what is selected.
#pragma once

#include <QString>
#include <vector>

#include "cycles/integers.h"

// How a cell looks. A colour is 0xBBGGRR; 0 stands for the grid's own.
struct CellLook {
    Long backColor = 0;
    bool isBold = false;
};

// Which cells a look is given to: the current one, or all that are selected.
enum class FillStyle { Single = 0, Repeat = 1 };

// Rows and columns count from 0; the first FixedRows rows are the header. Every operation that is
// given a row or a column raises 381 if there is no such one.
//
// The selection reaches from the current cell, Row and Col, to RowSel and ColSel. Naming a row
// makes it the only one that is selected, and so does naming a column; RowSel and ColSel widen it
// from there. It stays where it is when rows are sorted or columns are moved.
class GridCells {
  public:
    static constexpr int kDefaultColWidth = 1440;

    // Replaces everything: the texts of `columns` columns, row by row, those of the header first.
    // Looks, widths and the order of columns are as at the beginning. The first cell below the
    // header is current.
    void bind(int columns, std::vector<QString> texts);

    int Rows() const { return static_cast<int>(rows_.size()); }
    int Cols() const { return static_cast<int>(columns_.size()); }

    // How many rows the header has, 1 at the beginning.
    int FixedRows() const { return fixedRows_; }
    void setFixedRows(int rows) { fixedRows_ = rows; }

    // None: every column scrolls.
    static constexpr int FixedCols() { return 0; }

    const QString& TextMatrix(int row, int column) const { return texts_[indexOf(row, column)]; }
    void setTextMatrix(int row, int column, const QString& text);

    const CellLook& look(int row, int column) const { return looks_[indexOf(row, column)]; }

    // In twips; 0 hides the column.
    int ColWidth(int column) const { return columns_[checkedColumn(column)].width; }
    void setColWidth(int column, int width) { columns_[checkedColumn(column)].width = width; }

    // Takes a column with its cells and its width to another place. Those between make room.
    void setColPosition(int column, int place);

    int Row() const { return row_; }
    void setRow(int row);
    int Col() const { return col_; }
    void setCol(int column);
    int RowSel() const { return rowSel_; }
    void setRowSel(int row);
    int ColSel() const { return colSel_; }
    void setColSel(int column);

    // The text of the current cell.
    const QString& Text() const { return TextMatrix(row_, col_); }

    void setFillStyle(FillStyle style) { fillStyle_ = style; }
    void setCellBackColor(Long colour);
    void setCellFontBold(bool bold);

    // Sorts all rows below the header by the selected columns from left to right, in ascending
    // generic order (grid_order.h). Looks go with their rows; rows with equal texts keep their
    // order.
    void Sort();

  private:
    struct Column {
        std::size_t stored;  // where its cells are in each row
        int width;
    };

    std::size_t checkedRow(int row) const;
    std::size_t checkedColumn(int column) const;
    std::size_t indexOf(int row, int column) const;

    template <class Change>
    void changeLooks(Change change);

    std::vector<QString> texts_;
    std::vector<CellLook> looks_;
    std::vector<int> rows_;  // where each row is among the texts
    std::vector<Column> columns_;
    int fixedRows_ = 1;
    int row_ = 0;
    int col_ = 0;
    int rowSel_ = 0;
    int colSel_ = 0;
    FillStyle fillStyle_ = FillStyle::Single;
};
