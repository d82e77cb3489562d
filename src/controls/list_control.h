// What a list box and a drop-down list have in common: the operations and their events.
#pragma once

#include <QString>
#include <vector>

#include "controls/entry_model.h"
#include "store/item_list.h"

// A list of entries, each a text with a number as item data, of which one may be selected.
//
// The selection is ListIndex: -1 for none. Selecting an entry, by code or by the user, fires Click
// at once, before what follows; also where the entry was selected already. Taking the selection
// away (-1, Clear, fill) fires nothing.
class ListControl : public ItemList {
  public:
    int ListIndex() const { return listIndex_; }

    // Raises 380 if there is no such entry.
    void setListIndex(int index);

    // The text of the selected entry; empty if there is none.
    QString Text() const;

    // Selects the first entry with exactly this text, or none if there is no such entry.
    void setText(const QString& text);

    int ListCount() const { return entries().count(); }

    // The text of an entry. Raises 381 if there is no such entry, as ItemData does.
    QString List(int index) const { return entries().text(index); }
    Long ItemData(int index) const { return entries().itemData(index); }

    // All entries, in their order.
    const std::vector<ListEntry>& all() const { return entries().all(); }

    // The first entry with this number as item data; -1 if there is none.
    int indexOf(Long itemData) const;

    void setItemData(int index, Long value) { model_.changeItemData(index, value); }

    void Clear() { fill({}); }

    // Adds an entry with item data 0: in its place if the list is sorted, at the end otherwise.
    // NewIndex tells where it stands.
    void AddItem(const QString& text);
    int NewIndex() const { return entries().newIndex(); }

    // Adds entries, as AddItem one after the other, each with its item data.
    void add(std::vector<ListEntry> entries);

    // Raises 5 if there is no such entry. A selection stays with its entry, and goes with it.
    void RemoveItem(int index);

    // Whether the list keeps its entries in the order of their text. Takes the selection away.
    void setSorted(bool sorted);

    void fill(std::vector<ListEntry> entries) final;

  protected:
    ListControl() = default;
    ~ListControl() override = default;
    Q_DISABLE_COPY_MOVE(ListControl)

    EntryModel& entryModel() { return model_; }
    const ListEntries& entries() const { return model_.entries(); }

    // Whether the entries or the selection are being changed by code; what the view says meanwhile
    // is no choice of the user.
    bool isChanging() const { return changing_; }

    // Takes over what the user selected in the view, and fires nothing yet.
    void follow(int index) { listIndex_ = index; }

    // Makes the view show this entry as the selected one; none for -1.
    virtual void showListIndex(int index) = 0;

    virtual void fireClick() = 0;

  private:
    template <class Change>
    void change(int listIndex, Change change);

    EntryModel model_;
    int listIndex_ = -1;
    bool changing_ = false;
};
