// The operations that list boxes and drop-down lists share.
#include "controls/list_control.h"

#include <QScopedValueRollback>
#include <utility>

#include "runtime/errors.h"

// Changes the entries; `listIndex` is the selection after it.
template <class Change>
void ListControl::change(int listIndex, Change change) {
    const QScopedValueRollback changing(changing_, true);
    change();
    listIndex_ = listIndex;
    showListIndex(listIndex);
}

void ListControl::setListIndex(int index) {
    if (index != -1 && !entries().contains(index))
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    change(index, [] {});
    if (index >= 0)
        fireClick();
}

QString ListControl::Text() const {
    return listIndex_ < 0 ? QString() : entries().text(listIndex_);
}

void ListControl::setText(const QString& text) {
    setListIndex(entries().find(text));
}

int ListControl::indexOf(Long itemData) const {
    for (int entry = 0; entry < ListCount(); ++entry) {
        if (ItemData(entry) == itemData)
            return entry;
    }
    return -1;
}

void ListControl::AddItem(const QString& text) {
    const int place = entries().placeOf(text);
    change(listIndex_ >= place ? listIndex_ + 1 : listIndex_, [&] { model_.insert(place, text); });
}

void ListControl::add(std::vector<ListEntry> entries) {
    const QScopedValueRollback changing(changing_, true);
    listIndex_ = model_.add(std::move(entries), listIndex_);
    showListIndex(listIndex_);
}

void ListControl::RemoveItem(int index) {
    if (!entries().contains(index))
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    int selection = listIndex_;
    if (selection == index)
        selection = -1;
    else if (selection > index)
        --selection;
    change(selection, [&] { model_.remove(index); });
}

void ListControl::setSorted(bool sorted) {
    change(-1, [&] { model_.setSorted(sorted); });
}

void ListControl::fill(std::vector<ListEntry> entries) {
    change(-1, [&] { model_.fill(std::move(entries)); });
}
