// The grid of group_cells.h.
#include "analyses/group_cells.h"

#include <array>

#include "analyses/group_row.h"

namespace {

constexpr int kEmptyRows = 1;

constexpr int kNameWidth = 1650;  // twips
constexpr int kMarkWidth = 200;
constexpr int kPercentageWidth = 600;

struct GroupColumn {
    const char* upperHeader;
    const char* lowerHeader;
    int width;
};

constexpr std::array<GroupColumn, 10> kColumns{{{"", "", kNameWidth},
                                                {"", "-", kMarkWidth},
                                                {" Emot.", "", kPercentageWidth},
                                                {"", "+", kMarkWidth},
                                                {"", "-", kMarkWidth},
                                                {"  Phys.", "", kPercentageWidth},
                                                {"", "+", kMarkWidth},
                                                {"", "-", kMarkWidth},
                                                {"Intel.", "", kPercentageWidth},
                                                {"", "+", kMarkWidth}}};

constexpr std::array kPercentageColumns{2, 5, 8};

void setUpColumns(GridCells& cells) {
    cells.setCols(static_cast<int>(kColumns.size()));
    for (int column = 0; const auto& [upperHeader, lowerHeader, width] : kColumns) {
        cells.setColWidth(column, width);
        cells.setTextMatrix(0, column, QLatin1String(upperHeader));
        cells.setTextMatrix(1, column, QLatin1String(lowerHeader));
        cells.setColAlignment(column,
                              column == 0 ? ColumnAlignment::Left : ColumnAlignment::Centre);
        ++column;
    }
}

}  // namespace

void clearGroup(GridCells& cells) {
    cells.Clear();
    cells.setFixedRows(kGroupHeaderRows);
    cells.setRows(kGroupHeaderRows + kEmptyRows);
}

void setGroupGrid(GridCells& cells) {
    setUpColumns(cells);
    for (const int column : kPercentageColumns) {
        cells.setCol(column);
        for (int row = kGroupHeaderRows; row < cells.Rows(); ++row) {
            cells.setRow(row);
            cells.setCellForeColor(SetColour(cells.Text()));
        }
    }
    cells.setRow(kGroupHeaderRows);
    cells.setCol(0);
}
