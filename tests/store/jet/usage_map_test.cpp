// Maps of both kinds, walked through.
#include "store/jet/usage_map.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QtEndian>

#include "support/jet_builder.h"

namespace {

// A file with a page that holds the map, and some for large maps.
class UsageMapOf : public testing::TestWithParam<int> {
  protected:
    bool is4() const { return GetParam() == 4; }

    // A page of a large map, with these bits.
    void addMapPage(const std::vector<int>& bits) {
        QByteArray page(jet_.pageSize, '\0');
        page[0] = 5;
        for (const int bit : bits)
            page[4 + bit / 8] = static_cast<char>(page[4 + bit / 8] | 1 << bit % 8);
        jet_.bytes += page;
    }

    std::uint32_t nextPage() const {
        return static_cast<std::uint32_t>(jet_.bytes.size() / jet_.pageSize);
    }

    // All pages of the map, from that one on.
    std::vector<std::uint32_t> pagesOf(const QByteArray& map, std::uint32_t from = 0) {
        const std::uint32_t mapPage = nextPage();
        QByteArray page(jet_.pageSize, '\0');
        page[0] = 1;
        page[is4() ? 12 : 8] = 1;
        qToLittleEndian(static_cast<std::uint16_t>(jet_.pageSize - map.size()),
                        page.data() + (is4() ? 14 : 10));
        page.replace(jet_.pageSize - map.size(), map.size(), map);
        auto buffer = std::make_unique<QBuffer>();
        buffer->setData(jet_.bytes + page);
        buffer->open(QIODevice::ReadOnly);
        JetPages pages(std::move(buffer), {});
        const UsageMap usage(pages, JetPointer(mapPage << 8));
        std::vector<std::uint32_t> found;
        while (const auto next = usage.firstFrom(pages, from)) {
            found.push_back(*next);
            from = *next + 1;
        }
        return found;
    }

    BuiltJet jet_ = builtJet(GetParam(), {});
};

QByteArray listOf(std::initializer_list<std::uint32_t> pages) {
    QByteArray map("\1");
    for (const std::uint32_t page : pages) {
        map.resize(map.size() + 4);
        qToLittleEndian(page, map.data() + map.size() - 4);
    }
    return map;
}

using Pages = std::vector<std::uint32_t>;

INSTANTIATE_TEST_SUITE_P(Jet, UsageMapOf, testing::Values(3, 4));

}  // namespace

TEST_P(UsageMapOf, BitsTellsPagesFromABaseOn) {
    EXPECT_EQ(pagesOf(QByteArray::fromHex("00e803000081000080")), (Pages{1000, 1007, 1031}));
    EXPECT_EQ(pagesOf(QByteArray::fromHex("00e803000081000080"), 1001), (Pages{1007, 1031}));
    EXPECT_EQ(pagesOf(QByteArray::fromHex("00e803000081000080"), 1008), (Pages{1031}));
    EXPECT_EQ(pagesOf(QByteArray::fromHex("00e803000081000080"), 1032), Pages());
    EXPECT_EQ(pagesOf(QByteArray::fromHex("0000000000ff")), (Pages{0, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(pagesOf(QByteArray::fromHex("0000000000")), Pages());
}

TEST_P(UsageMapOf, BeyondEveryNumberIsDamaged) {
    EXPECT_EQ(pagesOf(QByteArray::fromHex("00feffffff01")), (Pages{0xFFFFFFFE}));
    EXPECT_THROW(pagesOf(QByteArray::fromHex("00feffffff04")), JetDamage);
}

TEST_P(UsageMapOf, PagesTellsPagesOneAfterAnother) {
    const auto each = static_cast<std::uint32_t>(8 * (jet_.pageSize - 4));
    const std::uint32_t first = nextPage();
    addMapPage({3, 70, static_cast<int>(each) - 1});
    addMapPage({});
    addMapPage({0, 9});
    EXPECT_EQ(pagesOf(listOf({first})), (Pages{3, 70, each - 1}));
    EXPECT_EQ(pagesOf(listOf({first, first + 2})), (Pages{3, 70, each - 1, each, each + 9}));
    EXPECT_EQ(pagesOf(listOf({first, 0, first + 1, first + 2, 0})),
              (Pages{3, 70, each - 1, 3 * each, 3 * each + 9}));
    EXPECT_EQ(pagesOf(listOf({first, first + 2}), each + 1), (Pages{each + 9}));
    EXPECT_EQ(pagesOf(listOf({})), Pages());
}

TEST_P(UsageMapOf, PagesMustHaveSuchPages) {
    EXPECT_THROW(pagesOf(listOf({1})), JetDamage);
    EXPECT_THROW(pagesOf(listOf({1'000'000})), JetDamage);
}

TEST_P(UsageMapOf, NoKnownKindIsDamaged) {
    EXPECT_THROW(pagesOf(QByteArray::fromHex("0200000000ff")), JetDamage);
    EXPECT_THROW(pagesOf({}), JetDamage);
    EXPECT_THROW(pagesOf(QByteArray::fromHex("000000")), JetDamage);
}
