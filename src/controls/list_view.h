// A list on the screen in columns, with a header above each and a small picture before each row.
#pragma once

#include <QTreeView>

#include "controls/list_view_model.h"

// Only the rows that are on the screen are measured, so their number costs next to nothing. Sorting
// is by the text as it is shown, and stays on for the rows that come later; a click on a header
// sorts nothing by itself.
class ListView final : public QTreeView {
    Q_OBJECT

  public:
    explicit ListView(QWidget* parent = nullptr);

    // Replaces all columns. The rows stay, and no row is selected then.
    void setColumns(std::vector<ListColumn> columns);

    void Clear() { fill({}); }

    // Replaces all rows and takes the selection away; rows that are made are made as they come into
    // view.
    void fill(std::vector<ListRow> rows);
    void fill(int count, RowMaker makeRow);

    void AddRow(ListRow row) { model_.add(std::move(row)); }

    // The rows one by one, counted from 1. All but the count raise 35600 if there is no such row.
    int ListCount() const { return model_.rowCount(); }
    const ListRow& ListItem(int index) const;
    void setListItem(int index, ListRow row);
    void Remove(int index);

    // Whether there is a check box before each row. A click on it, and the space bar on the row of
    // the focus, check the row or uncheck it.
    void setCheckBoxes(bool shown) { model_.setCheckBoxes(shown); }

    // The index of the column to sort by, from 0 on; the order; and whether the rows are sorted. A
    // change sorts the rows that are there, as long as Sorted is set. setSortKey raises 380 below
    // 0.
    int SortKey() const { return model_.sorting().key; }
    void setSortKey(int column);
    ListSortOrder SortOrder() const { return model_.sorting().order; }
    void setSortOrder(ListSortOrder order);
    bool Sorted() const { return model_.sorting().isOn; }
    void setSorted(bool sorted);

  Q_SIGNALS:
    // The header of a column was clicked; columns count from 1.
    void ColumnClick(int column);

    // A row was clicked, or chosen by Enter; rows count from 0.
    void ItemClick(int row);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void beginAtFirstRow();
    int placeOf(int index) const;
    void choose(const QModelIndex& row);
    void toggle(const QModelIndex& box);
    void setSorting(const ListSorting& sorting);
    void showSorting();

    ListViewModel model_;
};
