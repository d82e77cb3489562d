// The entries of a list: their order, their item data, and how they are found.
#pragma once

#include <QString>
#include <vector>

#include "cycles/integers.h"
#include "store/item_list.h"

// The data behind a list box and a drop-down list. A sorted list keeps its entries in the one order
// of texts (text_order.h), equal texts in the order in which they came, and entries that lead
// before all others.
//
// It knows nothing of a selection.
class ListEntries {
  public:
    // Whether the entries stand in the order of their text. Entries that are there get into it.
    void setSorted(bool sorted);

    // Replaces all entries.
    void fill(std::vector<ListEntry> entries);

    // Where an entry with this text would go.
    int placeOf(const QString& text) const;

    // Adds an entry with item data 0 at the place that placeOf gives.
    void insert(int place, const QString& text);

    // Adds entries as if one came after the other. Returns where the entry of this index, or none
    // of index -1, stands then.
    int add(std::vector<ListEntry> entries, int index);

    // Removes an entry that is there.
    void remove(int index);

    int count() const { return static_cast<int>(entries_.size()); }

    // The place of the entry that was added last; -1 if none was, or the list has changed since in
    // another way.
    int newIndex() const { return newIndex_; }

    // These raise 381 if there is no such entry.
    const QString& text(int index) const;
    Long itemData(int index) const;
    void setItemData(int index, Long value);
    bool isSelected(int index) const;
    void setSelected(int index, bool selected);

    const std::vector<ListEntry>& all() const { return entries_; }

    // The first entry with exactly this text, -1 if there is none.
    int find(const QString& text) const;

    bool contains(int index) const { return index >= 0 && index < count(); }

  private:
    void sort();
    std::size_t placeAt(int index) const;
    const ListEntry& entry(int index) const { return entries_[placeAt(index)]; }
    ListEntry& entry(int index) { return entries_[placeAt(index)]; }

    std::vector<ListEntry> entries_;
    bool sorted_ = false;
    int newIndex_ = -1;
};
