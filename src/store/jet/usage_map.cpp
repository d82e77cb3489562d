// The two kinds of usage maps.
#include "store/jet/usage_map.h"

#include <bit>
#include <limits>

namespace {

constexpr int kBits = 8;
constexpr int kInRow = 0;  // the kinds
constexpr int kOnPages = 1;
constexpr qsizetype kBaseOfRow = 1;  // the places in a map
constexpr qsizetype kBitsOfRow = 5;
constexpr qsizetype kListOfPages = 1;
constexpr qsizetype kBitsOfPage = 4;
constexpr qsizetype kPointerSize = 4;

// The number of the first bit that is set, from that one on.
std::optional<std::uint32_t> firstBitFrom(ByteView bits, std::uint64_t bit) {
    for (auto place = static_cast<qsizetype>(bit / kBits); place < bits.length(); ++place) {
        unsigned byte = bits.numberAt<std::uint8_t>(place);
        if (place == static_cast<qsizetype>(bit / kBits))
            byte &= 0xFFU << (bit % kBits);
        if (byte != 0)
            return static_cast<std::uint32_t>(place * kBits + std::countr_zero(byte));
    }
    return std::nullopt;
}

// The page with that number, counted from a base.
std::uint32_t pageFrom(std::uint64_t base, std::uint32_t bit) {
    if (base + bit > std::numeric_limits<std::uint32_t>::max())
        throw JetDamage(QStringLiteral("a table has a page beyond every file"));
    return static_cast<std::uint32_t>(base + bit);
}

}  // namespace

UsageMap::UsageMap(JetPages& pages, JetPointer place)
    : map_(RowPage(pages, place.page).rowAt(place.row).copy()) {
    const int kind = ByteView(map_).numberAt<std::uint8_t>(0);
    if (kind != kInRow && kind != kOnPages)
        throw JetDamage(QStringLiteral("the map of a table is of no known kind"));
}

std::optional<std::uint32_t> UsageMap::firstFrom(JetPages& pages, std::uint32_t page) const {
    const ByteView map(map_);
    if (map.numberAt<std::uint8_t>(0) == kOnPages)
        return firstInList(pages, page);
    const auto base = map.numberAt<std::uint32_t>(kBaseOfRow);
    const auto bit = firstBitFrom(map.from(kBitsOfRow), page > base ? page - base : 0);
    return bit ? std::optional(pageFrom(base, *bit)) : std::nullopt;
}

std::optional<std::uint32_t> UsageMap::firstInList(JetPages& pages, std::uint32_t page) const {
    const ByteView list = ByteView(map_).from(kListOfPages);
    const auto pagesEach =
        static_cast<std::uint64_t>((pages.format().pageSize - kBitsOfPage) * kBits);
    std::uint64_t bit = page % pagesEach;
    for (auto i = page / pagesEach; (static_cast<qsizetype>(i) + 1) * kPointerSize <= list.length();
         ++i, bit = 0) {
        const auto mapPage = list.numberAt<std::uint32_t>(static_cast<qsizetype>(i) * kPointerSize);
        if (mapPage == 0)
            continue;
        const QByteArray bytes = pages.page(mapPage, JetPageType::UsageMap);
        if (const auto found = firstBitFrom(ByteView(bytes).from(kBitsOfPage), bit))
            return pageFrom(i * pagesEach, *found);
    }
    return std::nullopt;
}
