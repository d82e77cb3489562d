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

QVariant EntryModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole || !index.isValid())
        return {};
    return entries_.text(index.row());
}
