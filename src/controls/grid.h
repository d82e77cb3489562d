// A grid on the screen: rows of cells below a header that stays.
#pragma once

#include <QPixmap>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QTableView>
#include <optional>

#include "controls/grid_model.h"

// Shows its cells (grid_cells.h) and changes none by itself. Only what is on the screen is
// measured, so the number of rows costs next to nothing. A column is as wide as ColWidth says, or
// wider where the columns would leave room.
//
// Clicks and keys move the current cell, whatever modifiers are held. Its row is shown as selected
// if it is the only one; as long as there are rows, one of them is current for screen readers.
//
// Positions of the mouse are in twips from the top left corner. They are told while a button is
// held, wherever the mouse is then.
class Grid final : public QTableView {
    Q_OBJECT

  public:
    explicit Grid(QWidget* parent = nullptr);

    const GridCells& cells() const { return model_.cells(); }

    // Changes the cells by steps that take them. What they did before an error is shown as well.
    template <class Steps>
    void change(Steps steps) {
        const QScopedValueRollback changing(changing_, true);
        const auto show = qScopeGuard([this] { showCells(); });
        model_.change(steps);
    }

    // Adds a row, as GridCells::AddItem. Header and widths are not measured anew, so that to add
    // rows one by one costs less than to change the cells as often.
    void AddItem(QStringView texts, int place);

    // While it is off, the grid shows the picture of the moment when it was put off.
    bool Redraw() const { return redraw_; }
    void setRedraw(bool redraw);

    // Paints the grid before what comes next, unless Redraw is off.
    void Refresh();

    // The cell under the mouse at its last event; beyond the outermost cells the nearest of them,
    // be it hidden.
    int MouseRow() const { return cellAt(mouse_).row; }
    int MouseCol() const { return cellAt(mouse_).column; }

    // Begins a drag of a column, which lasts until the button that is held is let go; over this
    // grid it ends with DragDrop. A mark shows where the column would go. What the drop does is up
    // to whoever began it.
    void Drag(int column);

  Q_SIGNALS:
    void MouseDown(Qt::MouseButtons button, double x, double y);
    void MouseMove(Qt::MouseButtons buttons, double x, double y);
    void MouseUp(Qt::MouseButtons button, double x, double y);
    void DblClick();
    void DragDrop();

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

  private:
    struct Place {
        int row;
        int column;
    };

    void setUpRows();
    void setUpHeader();
    void showCells();
    void showWidths();
    void showCurrentRow();

    Place cellAt(QPoint place) const;
    int rowAt(int y) const;
    int columnAt(int x) const;

    void followMouse(const QMouseEvent& event);
    void tellPress(const QMouseEvent& event);
    void tellMove(const QMouseEvent& event);
    void tellRelease(const QMouseEvent& event);
    void tellDoubleClick(const QMouseEvent& event);

    std::optional<int> dropColumn() const;
    void showDrag();
    void endDrag();

    GridModel model_;
    bool redraw_ = true;
    QPixmap frozenCells_;  // what is shown while redraw_ is off
    QPixmap frozenHeader_;
    bool changing_ = false;  // by code; what the view says meanwhile is no act of the user
    QPoint mouse_;           // in pixels
    std::optional<int> dragged_;
    QWidget dropMark_{this};
};
