// The cells of a grid as Qt's views read them.
#pragma once

#include <QAbstractTableModel>
#include <QScopeGuard>

#include "controls/grid_cells.h"

// The rows of the model are those below the header; the lines of a header are the fixed rows.
class GridModel final : public QAbstractTableModel {
    Q_OBJECT

  public:
    const GridCells& cells() const { return cells_; }

    // Changes the cells by steps that take them; one reset for all that they do.
    template <class Steps>
    void change(Steps steps) {
        beginResetModel();
        const auto end = qScopeGuard([this] { endResetModel(); });
        steps(cells_);
    }

    // Adds a row, as GridCells::AddItem. Below the header nothing else is read anew for it.
    void AddItem(QStringView texts, int place);

    // Follows a view to the cell on which the user is.
    void select(const QModelIndex& cell);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // The row of the grid in which a row of the model stands.
    int gridRow(const QModelIndex& index) const { return index.row() + cells_.FixedRows(); }

  private:
    QVariant cellData(int row, int column, int role) const;
    QString headerText(int column) const;

    GridCells cells_;
};
