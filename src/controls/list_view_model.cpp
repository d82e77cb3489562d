// The rows and their order.
#include "controls/list_view_model.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

#include "controls/pictures.h"
#include "runtime/text_order.h"

namespace {

QStringView shownText(const ListRow& row, int column) {
    return column < row.texts.size() ? QStringView(row.texts[column]) : QStringView();
}

// The comparison that a sorting asks for.
class RowOrder {
  public:
    explicit RowOrder(const ListSorting& sorting) : sorting_(sorting) {}

    bool operator()(const std::optional<ListRow>& a, const std::optional<ListRow>& b) const {
        const auto order = compareTexts(shownText(*a, sorting_.key), shownText(*b, sorting_.key));
        return sorting_.order == ListSortOrder::Ascending ? order < 0 : order > 0;
    }

  private:
    ListSorting sorting_;
};

// The index of every row, in the order that they are to stand in.
std::vector<std::size_t> indexesInOrder(const std::vector<std::optional<ListRow>>& rows,
                                        const RowOrder& order) {
    std::vector<std::size_t> indexes(rows.size());
    std::iota(indexes.begin(), indexes.end(), std::size_t{0});
    std::stable_sort(indexes.begin(), indexes.end(),
                     [&](std::size_t a, std::size_t b) { return order(rows[a], rows[b]); });
    return indexes;
}

}  // namespace

void ListViewModel::setColumns(std::vector<ListColumn> columns) {
    beginResetModel();
    columns_ = std::move(columns);
    endResetModel();
}

void ListViewModel::setSorting(const ListSorting& sorting) {
    if (sorting == sorting_)
        return;
    sorting_ = sorting;
    if (sorting_.isOn)
        sortRows();
}

std::vector<int> ListViewModel::putInOrder() {
    makeAllRows();
    Rows rows;
    rows.reserve(rows_.size());
    std::vector<int> newIndexes(rows_.size());
    for (const std::size_t old : indexesInOrder(rows_, RowOrder(sorting_))) {
        newIndexes[old] = static_cast<int>(rows.size());
        rows.push_back(std::move(rows_[old]));
    }
    rows_ = std::move(rows);
    return newIndexes;
}

// What a view remembers of a row, its selection among it, stays with the row.
void ListViewModel::sortRows() {
    Q_EMIT layoutAboutToBeChanged();
    const std::vector<int> newIndexes = putInOrder();
    for (const QModelIndex& kept : persistentIndexList()) {
        const int row = newIndexes[static_cast<std::size_t>(kept.row())];
        changePersistentIndex(kept, index(row, kept.column()));
    }
    Q_EMIT layoutChanged();
}

void ListViewModel::fill(std::vector<ListRow> rows) {
    replaceRows({std::make_move_iterator(rows.begin()), std::make_move_iterator(rows.end())}, {});
}

void ListViewModel::fill(int count, RowMaker makeRow) {
    replaceRows(Rows(static_cast<std::size_t>(count)), std::move(makeRow));
}

void ListViewModel::replaceRows(Rows rows, RowMaker makeRow) {
    beginResetModel();
    rows_ = std::move(rows);
    makeRow_ = std::move(makeRow);
    if (sorting_.isOn)
        putInOrder();
    endResetModel();
}

void ListViewModel::add(ListRow row) {
    const std::optional<ListRow> added = std::move(row);
    const auto place = sorting_.isOn
                           ? std::upper_bound(rows_.begin(), rows_.end(), added, RowOrder(sorting_))
                           : rows_.end();
    const int newIndex = static_cast<int>(place - rows_.begin());
    beginInsertRows({}, newIndex, newIndex);
    rows_.insert(place, added);
    endInsertRows();
}

void ListViewModel::change(int index, ListRow row) {
    rows_[static_cast<std::size_t>(index)] = std::move(row);
    Q_EMIT dataChanged(this->index(index, 0), this->index(index, columnCount() - 1));
    if (sorting_.isOn)
        sortRows();
}

// Rows are made by the index that they had when they came.
void ListViewModel::remove(int index) {
    makeAllRows();
    beginRemoveRows({}, index, index);
    rows_.erase(rows_.begin() + index);
    endRemoveRows();
}

const ListRow& ListViewModel::rowAt(std::size_t index) const {
    std::optional<ListRow>& row = rows_[index];
    if (!row)
        row = makeRow_(static_cast<int>(index));
    return *row;
}

void ListViewModel::makeAllRows() {
    if (!makeRow_)
        return;
    for (std::size_t index = 0; index < rows_.size(); ++index)
        rowAt(index);
    makeRow_ = nullptr;
}

int ListViewModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ListViewModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant ListViewModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole)
        return headerData(index.column(), Qt::Horizontal, role);
    if (role != Qt::DisplayRole && role != Qt::DecorationRole && role != Qt::CheckStateRole)
        return {};
    const ListRow& row = rowAt(static_cast<std::size_t>(index.row()));
    if (role == Qt::CheckStateRole)
        return isCheckBox(index) ? QVariant(row.checked ? Qt::Checked : Qt::Unchecked) : QVariant();
    if (role == Qt::DisplayRole)
        return shownText(row, index.column()).toString();
    if (index.column() == 0 && !row.smallIcon.isEmpty())
        return smallPicture(row.smallIcon);
    return {};
}

bool ListViewModel::isCheckBox(const QModelIndex& index) const {
    return hasCheckBoxes_ && index.isValid() && index.column() == 0;
}

Qt::ItemFlags ListViewModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return isCheckBox(index) ? flags | Qt::ItemIsUserCheckable : flags;
}

bool ListViewModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !isCheckBox(index))
        return false;
    ListRow changed = row(index.row());
    changed.checked = value.toInt() == Qt::Checked;
    change(index.row(), std::move(changed));
    return true;
}

QVariant ListViewModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    const ListColumn& column = columns_[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole)
        return column.header;
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(column.alignment | Qt::AlignVCenter);
    return {};
}
