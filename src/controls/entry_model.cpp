// The model over the entries.
#include "controls/entry_model.h"

#include <utility>

void EntryModel::setSorted(bool sorted) {
    beginResetModel();
    entries_.setSorted(sorted);
    endResetModel();
}

void EntryModel::fill(std::vector<ListEntry> entries) {
    beginResetModel();
    entries_.fill(std::move(entries));
    endResetModel();
}

int EntryModel::add(std::vector<ListEntry> entries, int index) {
    beginResetModel();
    const int place = entries_.add(std::move(entries), index);
    endResetModel();
    return place;
}

void EntryModel::insert(int place, const QString& text) {
    beginInsertRows({}, place, place);
    entries_.insert(place, text);
    endInsertRows();
}

void EntryModel::remove(int index) {
    beginRemoveRows({}, index, index);
    entries_.remove(index);
    endRemoveRows();
}

int EntryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : entries_.count();
}

void EntryModel::setSelected(int index, bool selected) {
    entries_.setSelected(index, selected);
    Q_EMIT dataChanged(this->index(index), this->index(index), {Qt::CheckStateRole});
}

void EntryModel::setAllSelected(bool selected) {
    const int count = entries_.count();
    if (count == 0)
        return;
    for (int entry = 0; entry < count; ++entry)
        entries_.setSelected(entry, selected);
    Q_EMIT dataChanged(index(0), index(count - 1), {Qt::CheckStateRole});
}

Qt::ItemFlags EntryModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractListModel::flags(index);
    return hasCheckBoxes_ && index.isValid() ? flags | Qt::ItemIsUserCheckable : flags;
}

QVariant EntryModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole)
        return entries_.text(index.row());
    if (role == Qt::CheckStateRole && hasCheckBoxes_)
        return entries_.isSelected(index.row()) ? Qt::Checked : Qt::Unchecked;
    return {};
}

// The user's click on a check box, and the space bar.
bool EntryModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !hasCheckBoxes_ || !index.isValid())
        return false;
    setSelected(index.row(), value.toInt() == Qt::Checked);
    return true;
}
