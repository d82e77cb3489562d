// The sorting of grid_order.h. Most of what it could cost is fetching texts from all over memory.
// So every text is looked at once, in the order in which they lie there, and keys are compared
// after that. Rows that are in order already are left alone.
#include "controls/grid_order.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "runtime/text.h"
#include "runtime/text_key.h"
#include "runtime/text_order.h"

namespace {

constexpr QStringView kAnyNumber = u"0";

bool canBeginNumber(QChar character) {
    return (character >= u'0' && character <= u'9') || character == u'-' || character == u'+' ||
           character == u'.';
}

std::optional<double> numberIn(QStringView text) {
    if (text.isEmpty() || !canBeginNumber(text.front()))
        return std::nullopt;
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

// What a text is compared by in the generic order.
class GenericKey {
  public:
    explicit GenericKey(QStringView text)
        : number_(numberIn(text)), text_(number_ ? kAnyNumber : text), key_(text_) {}

    std::weak_ordering operator<=>(const GenericKey& other) const {
        if (number_ && other.number_)
            return std::weak_order(*number_, *other.number_);
        const auto order = key_ <=> other.key_;
        if (order == std::partial_ordering::unordered)
            return compareTexts(text_, other.text_);
        return order < 0   ? std::weak_ordering::less
               : order > 0 ? std::weak_ordering::greater
                           : std::weak_ordering::equivalent;
    }

  private:
    std::optional<double> number_;
    QStringView text_;
    TextKey key_;
};

// The same in the numeric order.
class NumericKey {
  public:
    explicit NumericKey(QStringView text) : number_(Val(text)) {}

    std::weak_ordering operator<=>(const NumericKey& other) const {
        return std::weak_order(other.number_, number_);
    }

  private:
    double number_;
};

// Sorts rows of a store by the keys of their texts.
template <class Key>
class RowSorter {
  public:
    RowSorter(int storedRows, int texts, const SortText& textOf)
        : storedRows_(storedRows), textOf_(textOf), keys_(static_cast<std::size_t>(texts)) {}

    void sort(std::span<int> rows) { sortFrom(0, rows); }

  private:
    struct KeyedRow {
        Key key;
        int row;
    };

    static bool comesBefore(const KeyedRow& a, const KeyedRow& b) { return a.key < b.key; }

    const std::vector<Key>& keys(std::size_t place);
    std::vector<KeyedRow> keyed(std::span<const int> rows, std::size_t place);
    void sortFrom(std::size_t place, std::span<int> rows);

    int storedRows_;
    const SortText& textOf_;
    std::vector<std::vector<Key>> keys_;  // of each text, one for each stored row
};

// Made when they are first needed.
template <class Key>
const std::vector<Key>& RowSorter<Key>::keys(std::size_t place) {
    std::vector<Key>& keys = keys_[place];
    if (keys.empty()) {
        keys.reserve(static_cast<std::size_t>(storedRows_));
        for (int row = 0; row < storedRows_; ++row)
            keys.emplace_back(textOf_(row, static_cast<int>(place)));
    }
    return keys;
}

template <class Key>
auto RowSorter<Key>::keyed(std::span<const int> rows, std::size_t place) -> std::vector<KeyedRow> {
    const std::vector<Key>& stored = keys(place);
    std::vector<KeyedRow> keyed;
    keyed.reserve(rows.size());
    for (const int row : rows)
        keyed.push_back({stored[static_cast<std::size_t>(row)], row});
    return keyed;
}

// Rows with the same text are sorted by the next one.
template <class Key>
void RowSorter<Key>::sortFrom(std::size_t place, std::span<int> rows) {
    if (place == keys_.size() || rows.size() < 2)
        return;
    std::vector<KeyedRow> sorted = keyed(rows, place);
    if (!std::is_sorted(sorted.begin(), sorted.end(), comesBefore))
        std::stable_sort(sorted.begin(), sorted.end(), comesBefore);
    std::transform(sorted.begin(), sorted.end(), rows.begin(),
                   [](const KeyedRow& row) { return row.row; });
    for (std::size_t first = 0, end = 1; first < rows.size(); first = end++) {
        while (end < rows.size() && !comesBefore(sorted[first], sorted[end]))
            ++end;
        sortFrom(place + 1, rows.subspan(first, end - first));
    }
}

template <class Key>
void sortBy(std::span<int> rows, int texts, const SortText& textOf) {
    if (rows.empty())
        return;
    const int storedRows = *std::max_element(rows.begin(), rows.end()) + 1;
    RowSorter<Key>(storedRows, texts, textOf).sort(rows);
}

}  // namespace

std::weak_ordering compareGenerically(QStringView a, QStringView b) {
    return GenericKey(a) <=> GenericKey(b);
}

void sortGenerically(std::span<int> rows, int texts, const SortText& textOf) {
    sortBy<GenericKey>(rows, texts, textOf);
}

void sortNumerically(std::span<int> rows, int texts, const SortText& textOf) {
    sortBy<NumericKey>(rows, texts, textOf);
}
