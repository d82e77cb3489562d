// The order of the entries.
#include "controls/list_entries.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "runtime/errors.h"
#include "runtime/text_order.h"

namespace {

bool comesBefore(const ListEntry& a, const ListEntry& b) {
    if (a.leads != b.leads)
        return a.leads;
    return compareTexts(a.text, b.text) < 0;
}

}  // namespace

void ListEntries::setSorted(bool sorted) {
    sorted_ = sorted;
    newIndex_ = -1;
    if (sorted_)
        sort();
}

void ListEntries::fill(std::vector<ListEntry> entries) {
    entries_ = std::move(entries);
    newIndex_ = -1;
    if (sorted_)
        sort();
}

void ListEntries::sort() {
    std::stable_sort(entries_.begin(), entries_.end(), comesBefore);
}

int ListEntries::placeOf(const QString& text) const {
    if (!sorted_)
        return count();
    const auto place =
        std::upper_bound(entries_.begin(), entries_.end(), ListEntry{.text = text}, comesBefore);
    return static_cast<int>(place - entries_.begin());
}

void ListEntries::insert(int place, const QString& text) {
    entries_.insert(entries_.begin() + place, {.text = text});
    newIndex_ = place;
}

int ListEntries::add(std::vector<ListEntry> entries, int index) {
    const auto goesBefore = [&](const ListEntry& added) {
        return comesBefore(added, entry(index));
    };
    const auto before =
        sorted_ && index >= 0 ? std::count_if(entries.begin(), entries.end(), goesBefore) : 0;
    const int present = count();
    std::move(entries.begin(), entries.end(), std::back_inserter(entries_));
    newIndex_ = -1;
    if (sorted_) {
        const auto added = entries_.begin() + present;
        std::stable_sort(added, entries_.end(), comesBefore);
        std::inplace_merge(entries_.begin(), added, entries_.end(), comesBefore);
    }
    return index + static_cast<int>(before);
}

void ListEntries::remove(int index) {
    Q_ASSERT(contains(index));
    entries_.erase(entries_.begin() + index);
    newIndex_ = -1;
}

std::size_t ListEntries::placeAt(int index) const {
    if (!contains(index))
        throw RuntimeError(ErrorNumber::InvalidPropertyArrayIndex);
    return static_cast<std::size_t>(index);
}

const QString& ListEntries::text(int index) const {
    return entry(index).text;
}

Long ListEntries::itemData(int index) const {
    return entry(index).itemData;
}

void ListEntries::setItemData(int index, Long value) {
    entry(index).itemData = value;
}

bool ListEntries::isSelected(int index) const {
    return entry(index).selected;
}

void ListEntries::setSelected(int index, bool selected) {
    entry(index).selected = selected;
}

int ListEntries::find(const QString& text) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const ListEntry& entry) { return entry.text == text; });
    return found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin());
}
