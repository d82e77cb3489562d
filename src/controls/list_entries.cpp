// The order of the entries.
#include "controls/list_entries.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "runtime/errors.h"
#include "runtime/text_order.h"

namespace {

// The order in which the entries belong, as their present places.
std::vector<int> sortedPlaces(const std::vector<ListEntry>& entries) {
    std::vector<TextKey> keys;
    keys.reserve(entries.size());
    for (const ListEntry& entry : entries)
        keys.emplace_back(entry.text);

    const auto comesBefore = [&](int a, int b) {
        const auto placeA = static_cast<std::size_t>(a);
        const auto placeB = static_cast<std::size_t>(b);
        if (entries[placeA].leads != entries[placeB].leads)
            return entries[placeA].leads;
        return keys[placeA] < keys[placeB];
    };
    std::vector<int> places(entries.size());
    std::iota(places.begin(), places.end(), 0);
    std::stable_sort(places.begin(), places.end(), comesBefore);
    return places;
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
    std::vector<ListEntry> sorted;
    sorted.reserve(entries_.size());
    for (const int place : sortedPlaces(entries_))
        sorted.push_back(std::move(entries_[static_cast<std::size_t>(place)]));
    entries_ = std::move(sorted);
}

int ListEntries::placeOf(const QString& text) const {
    if (!sorted_)
        return count();
    const auto followers = std::find_if_not(entries_.begin(), entries_.end(),
                                            [](const ListEntry& entry) { return entry.leads; });
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
