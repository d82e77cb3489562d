// The rows of a list view as Qt's views read them.
#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

struct ListColumn {
    QString header;
    std::optional<int> width = {};  // twips; none: what the other columns leave; 0: hidden
    Qt::Alignment alignment = Qt::AlignLeft;
};

struct ListRow {
    QString smallIcon = {};  // the key of the picture before the first text; none if empty
    QStringList texts = {};  // from the first column on; those that are missing are empty
    bool checked = false;    // its check box, where the rows have such boxes
};

// Makes the row of an index.
using RowMaker = std::function<ListRow(int)>;

enum class ListSortOrder { Ascending = 0, Descending = 1 };

// By what a list view sorts its rows.
struct ListSorting {
    int key = 0;  // the index of a column
    ListSortOrder order = ListSortOrder::Ascending;
    bool isOn = false;

    friend bool operator==(const ListSorting&, const ListSorting&) = default;
};

// Holds columns and rows. While sorting is on, the rows stand in the one order of texts
// (text_order.h) of a column, numbers too: "10" before "9". Rows of equal texts keep the order that
// they had. Switching it off leaves the rows as they stand.
class ListViewModel final : public QAbstractTableModel {
    Q_OBJECT

  public:
    const std::vector<ListColumn>& columns() const { return columns_; }
    void setColumns(std::vector<ListColumn> columns);

    const ListSorting& sorting() const { return sorting_; }
    void setSorting(const ListSorting& sorting);

    // Replaces all rows, in one reset.
    void fill(std::vector<ListRow> rows);

    // The same with `count` rows, each made by its index when it is first looked at. Sorting looks
    // at all of them.
    void fill(int count, RowMaker makeRow);

    // Adds a row: in its place while sorting is on, at the end otherwise.
    void add(ListRow row);

    // A row that is there, and another in its stead; sorting may take that one elsewhere.
    const ListRow& row(int index) const { return rowAt(static_cast<std::size_t>(index)); }
    void change(int index, ListRow row);

    // Removes a row that is there.
    void remove(int index);

    // Whether the view shows a check box before each row.
    bool hasCheckBoxes() const { return hasCheckBoxes_; }
    void setCheckBoxes(bool shown) { hasCheckBoxes_ = shown; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    using Rows = std::vector<std::optional<ListRow>>;  // none: not looked at yet

    void replaceRows(Rows rows, RowMaker makeRow);

    // Puts the rows in order, and answers the new index of each old one.
    std::vector<int> putInOrder();

    void sortRows();
    const ListRow& rowAt(std::size_t index) const;
    void makeAllRows();
    bool isCheckBox(const QModelIndex& index) const;

    std::vector<ListColumn> columns_;
    mutable Rows rows_;
    RowMaker makeRow_;
    ListSorting sorting_;
    bool hasCheckBoxes_ = false;
};
