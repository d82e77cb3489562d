// The cells of a grid: their texts and looks, the order of rows and columns, and what is selected.
#pragma once

#include <QString>
#include <span>
#include <vector>

#include "cycles/integers.h"

// How a cell looks. A colour is 0xBBGGRR; 0 stands for the grid's own.
struct CellLook {
    Long backColor = 0;
    Long foreColor = 0;
    bool isBold = false;
};

// Where a column has its texts; in height they are in the middle.
enum class ColumnAlignment { Left = 1, Centre = 4 };

// The orders of rows; both are in grid_order.h.
enum class RowOrder { GenericAscending = 1, NumericDescending = 4 };

// Which cells a look is given to: the current one, or all that are selected.
enum class FillStyle { Single = 0, Repeat = 1 };

// Rows and columns count from 0; the first FixedRows rows are the header. Every operation that is
// given a row or a column raises 381 if there is no such one, and one that is given how many there
// are to be if that is less than none.
//
// The selection reaches from the current cell, Row and Col, to RowSel and ColSel. Naming a row
// makes it the only one that is selected, and so does naming a column; RowSel and ColSel widen it
// from there. It stays where it is when rows are sorted or columns are moved.
class GridCells {
  public:
    static constexpr int kDefaultColWidth = 1440;

    // Replaces everything: the texts of `columns` columns, row by row, those of the header first.
    // Looks, widths, alignments and the order of columns are as at the beginning. The first cell
    // below the header is current.
    void bind(int columns, std::vector<QString> texts);

    // Empties every cell, and gives it the look that it had at the beginning.
    void Clear();

    // Takes columns away from the right, or adds empty ones there. The cells that remain keep their
    // texts and looks, the columns their widths and alignments.
    int Cols() const { return static_cast<int>(columns_.size()); }
    void setCols(int columns);

    // Takes rows away from the end, or adds empty ones there.
    int Rows() const { return static_cast<int>(rows_.size()); }
    void setRows(int rows);

    // Adds a row, with a text divided by tabs, at the end or in a place of its own; the rows from
    // there on move down. Cells beyond the last column are dropped.
    void AddItem(QStringView texts) { AddItem(texts, Rows()); }
    void AddItem(QStringView texts, int place);

    // The same at the end with texts that are divided already.
    void AddItem(std::span<const QString> texts);

    // Takes a row away. Where it was the last and current, the one before it is current then.
    void RemoveItem(int row);

    // How many rows the header has: 1 at the beginning. Raises 381 for less.
    int FixedRows() const { return fixedRows_; }
    void setFixedRows(int rows);

    // None: every column scrolls.
    static constexpr int FixedCols() { return 0; }

    const QString& TextMatrix(int row, int column) const {
        return cells_[indexOf(row, column)].text;
    }
    void setTextMatrix(int row, int column, const QString& text);

    const CellLook& look(int row, int column) const { return cells_[indexOf(row, column)].look; }

    // In twips; 0 hides the column.
    int ColWidth(int column) const { return columns_[checkedColumn(column)].width; }
    void setColWidth(int column, int width) { columns_[checkedColumn(column)].width = width; }

    ColumnAlignment ColAlignment(int column) const {
        return columns_[checkedColumn(column)].alignment;
    }
    void setColAlignment(int column, ColumnAlignment alignment) {
        columns_[checkedColumn(column)].alignment = alignment;
    }

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
    void setCellForeColor(Long colour);
    void setCellFontBold(bool bold);

    // Sorts all rows below the header by the selected columns from left to right. Looks go with
    // their rows; rows that are equal keep their order.
    void Sort(RowOrder order);

  private:
    struct Cell {
        QString text;
        CellLook look;
    };

    struct Column {
        std::size_t stored;  // where its cells are in each row
        int width = kDefaultColWidth;
        ColumnAlignment alignment = ColumnAlignment::Left;
    };

    void numberRows(std::size_t rows);
    int emptyRow();
    void keepSelectionInside();
    std::size_t checkedRow(int row) const;
    std::size_t checkedColumn(int column) const;
    std::size_t indexOf(int row, int column) const;

    template <class Change>
    void changeLooks(Change change);

    std::vector<Cell> cells_;
    std::vector<int> rows_;      // where each row is among the cells
    std::vector<int> freeRows_;  // where rows were that have been taken away
    std::vector<Column> columns_;
    int fixedRows_ = 1;
    int row_ = 0;
    int col_ = 0;
    int rowSel_ = 0;
    int colSel_ = 0;
    FillStyle fillStyle_ = FillStyle::Single;
};
