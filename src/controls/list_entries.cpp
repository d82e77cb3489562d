// The order of the entries.
#include "controls/list_entries.h"

#include <algorithm>
#include <compare>
#include <iterator>
#include <utility>

#include "runtime/errors.h"
#include "runtime/text_order.h"

namespace {

bool leads(const ListEntry& entry) {
    return entry.leads;
}

// An entry in a sort. Most comparisons are decided by the beginning, without a look at the key.
struct SortItem {
    TextKey::Beginning beginning;
    std::size_t place;
};

// The places of the entries from `first` on, in the order in which these entries belong.
std::vector<SortItem> inOrder(const std::vector<ListEntry>& entries, std::size_t first) {
    std::vector<TextKey> keys;
    std::vector<SortItem> items;
    keys.reserve(entries.size());
    items.reserve(entries.size());
    for (std::size_t place = first; place < entries.size(); ++place) {
        keys.emplace_back(entries[place].text);
        items.push_back({keys.back().beginning(), place});
    }
    std::sort(items.begin(), items.end(), [&](const SortItem& a, const SortItem& b) {
        if (a.beginning != b.beginning)
            return a.beginning < b.beginning;
        const auto order = keys[a.place - first] <=> keys[b.place - first];
        return std::is_neq(order) ? std::is_lt(order) : a.place < b.place;
    });
    return items;
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
    const auto followers = std::stable_partition(entries_.begin(), entries_.end(), leads);
    std::vector<ListEntry> sorted(std::make_move_iterator(entries_.begin()),
                                  std::make_move_iterator(followers));
    const std::vector<SortItem> items = inOrder(entries_, sorted.size());
    sorted.reserve(entries_.size());
    for (const SortItem& item : items)
        sorted.push_back(std::move(entries_[item.place]));
    entries_ = std::move(sorted);
}

int ListEntries::placeOf(const QString& text) const {
    if (!sorted_)
        return count();
    const auto followers = std::find_if_not(entries_.begin(), entries_.end(), leads);
    const auto place = std::upper_bound(
        followers, entries_.end(), TextKey(text),
        [](const TextKey& key, const ListEntry& entry) { return key < TextKey(entry.text); });
    return static_cast<int>(place - entries_.begin());
}

void ListEntries::insert(int place, const QString& text) {
    entries_.insert(entries_.begin() + place, {.text = text});
    newIndex_ = place;
}

void ListEntries::remove(int index) {
    Q_ASSERT(contains(index));
    entries_.erase(entries_.begin() + index);
    newIndex_ = -1;
}

const ListEntry& ListEntries::entry(int index) const {
    if (!contains(index))
        throw RuntimeError(ErrorNumber::InvalidPropertyArrayIndex);
    return entries_[static_cast<std::size_t>(index)];
}

const QString& ListEntries::text(int index) const {
    return entry(index).text;
}

Long ListEntries::itemData(int index) const {
    return entry(index).itemData;
}

void ListEntries::setItemData(int index, Long value) {
    if (!contains(index))
        throw RuntimeError(ErrorNumber::InvalidPropertyArrayIndex);
    entries_[static_cast<std::size_t>(index)].itemData = value;
}

int ListEntries::find(const QString& text) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const ListEntry& entry) { return entry.text == text; });
    return found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin());
}
