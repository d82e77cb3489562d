// The sorting of grid_order.h. What it costs is nearly all in comparing texts, so rows that are in
// order already are left alone, and a second text is looked at only where the first ones are equal.
#include "controls/grid_order.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

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

// A text with what it takes to compare it with many others.
class SortKey {
  public:
    explicit SortKey(QStringView text)
        : number_(numberIn(text)), text_(number_ ? kAnyNumber : text) {}

    std::weak_ordering operator<=>(const SortKey& other) const {
        if (number_ && other.number_)
            return std::weak_order(*number_, *other.number_);
        return compareTexts(text_, other.text_);
    }

  private:
    std::optional<double> number_;
    QStringView text_;
};

struct KeyedRow {
    SortKey key;
    int row;
};

bool comesBefore(const KeyedRow& a, const KeyedRow& b) {
    return a.key < b.key;
}

std::vector<KeyedRow> keyedRows(std::span<const int> rows, int place, const SortText& textOf) {
    std::vector<KeyedRow> keyed;
    keyed.reserve(rows.size());
    for (const int row : rows)
        keyed.push_back({SortKey(textOf(row, place)), row});
    return keyed;
}

void sortFrom(int place, std::span<int> rows, int texts, const SortText& textOf) {
    if (place == texts || rows.size() < 2)
        return;
    std::vector<KeyedRow> keyed = keyedRows(rows, place, textOf);
    if (!std::is_sorted(keyed.begin(), keyed.end(), comesBefore))
        std::stable_sort(keyed.begin(), keyed.end(), comesBefore);
    std::transform(keyed.begin(), keyed.end(), rows.begin(),
                   [](const KeyedRow& row) { return row.row; });
    for (std::size_t first = 0, end = 1; first < rows.size(); first = end++) {
        while (end < rows.size() && !comesBefore(keyed[first], keyed[end]))
            ++end;
        sortFrom(place + 1, rows.subspan(first, end - first), texts, textOf);
    }
}

}  // namespace

std::weak_ordering compareGenerically(QStringView a, QStringView b) {
    return SortKey(a) <=> SortKey(b);
}

void sortGenerically(std::span<int> rows, int texts, const SortText& textOf) {
    sortFrom(0, rows, texts, textOf);
}
