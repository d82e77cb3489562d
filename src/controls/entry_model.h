// The entries of a list as Qt's views read them.
#pragma once

#include <QAbstractListModel>

#include "controls/list_entries.h"

// Holds the entries and tells the view of every change; one reset for a whole fill.
class EntryModel final : public QAbstractListModel {
    Q_OBJECT

  public:
    const ListEntries& entries() const { return entries_; }

    void setSorted(bool sorted);
    void fill(std::vector<ListEntry> entries);

    int add(std::vector<ListEntry> entries, int index);
    void insert(int place, const QString& text);
    void remove(int index);
    void changeItemData(int index, Long value) { entries_.setItemData(index, value); }

    // Whether the view shows a check box before each entry.
    void setCheckBoxes(bool shown) { hasCheckBoxes_ = shown; }
    void setSelected(int index, bool selected);
    void setAllSelected(bool selected);

    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    ListEntries entries_;
    bool hasCheckBoxes_ = false;
};
