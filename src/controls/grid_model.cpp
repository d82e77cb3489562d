// The model over the cells.
#include "controls/grid_model.h"

#include <QFont>
#include <algorithm>

namespace {

Qt::Alignment alignmentOf(ColumnAlignment alignment) {
    return Qt::AlignVCenter |
           (alignment == ColumnAlignment::Centre ? Qt::AlignHCenter : Qt::AlignLeft);
}

}  // namespace

void GridModel::AddItem(QStringView texts, int place) {
    if (place < cells_.FixedRows() || place > cells_.Rows()) {
        change([&](GridCells& cells) { cells.AddItem(texts, place); });
        return;
    }
    const int row = place - cells_.FixedRows();
    beginInsertRows({}, row, row);
    cells_.AddItem(texts, place);
    endInsertRows();
}

void GridModel::select(const QModelIndex& cell) {
    cells_.setRow(gridRow(cell));
    cells_.setCol(cell.column());
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : std::max(cells_.Rows() - cells_.FixedRows(), 0);
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : cells_.Cols();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole)
        return cells_.TextMatrix(gridRow(index), index.column());
    return cellData(gridRow(index), index.column(), role);
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || cells_.Rows() == 0)
        return {};
    if (role == Qt::DisplayRole)
        return headerText(section);
    return cellData(0, section, role);
}

QVariant GridModel::cellData(int row, int column, int role) const {
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(alignmentOf(cells_.ColAlignment(column)));
    if (role != Qt::FontRole || !cells_.look(row, column).isBold)
        return {};
    QFont bold;
    bold.setBold(true);
    return bold;
}

QString GridModel::headerText(int column) const {
    QStringList lines;
    for (int row = 0; row < std::min(cells_.FixedRows(), cells_.Rows()); ++row)
        lines += cells_.TextMatrix(row, column);
    return lines.join(u'\n');
}
