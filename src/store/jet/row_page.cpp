// The slots of a page of rows.
#include "store/jet/row_page.h"

namespace {

constexpr int kHidden = 0x8000;
constexpr int kMoved = 0x4000;
constexpr int kOffset = 0x1FFF;
constexpr int kSlotSize = 2;

}  // namespace

RowPage::RowPage(JetPages& pages, std::uint32_t number)
    : bytes_(pages.page(number, JetPageType::Rows)),
      slots_(pages.format().slots),
      rows_(ByteView(bytes_).numberAt<std::uint16_t>(pages.format().rowCount)) {}

std::uint32_t RowPage::owner() const {
    return ByteView(bytes_).numberAt<std::uint32_t>(4);
}

bool RowPage::isHidden(int row) const {
    return (slotOf(row) & kHidden) != 0;
}

bool RowPage::hasMoved(int row) const {
    return (slotOf(row) & kMoved) != 0;
}

// Rows are laid from the end of the page towards its slots.
ByteView RowPage::rowAt(int row) const {
    const int begin = slotOf(row) & kOffset;
    const int end = row == 0 ? static_cast<int>(bytes_.size()) : slotOf(row - 1) & kOffset;
    if (begin < slots_ + kSlotSize * rows_)
        throw JetDamage(QStringLiteral("a row lies over the places of others"));
    return ByteView(bytes_).part(begin, end - begin);
}

int RowPage::slotOf(int row) const {
    if (row >= rows_)
        throw JetDamage(QStringLiteral("a page lacks a row"));
    return ByteView(bytes_).numberAt<std::uint16_t>(slots_ + kSlotSize * row);
}
