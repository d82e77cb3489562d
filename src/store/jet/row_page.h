// A page that holds rows: those of a table, pieces of long values, or usage maps.
#pragma once

#include <QByteArray>
#include <cstdint>

#include "store/jet/byte_view.h"
#include "store/jet/jet_pages.h"

// Where a row lies, as one 32-bit number tells it.
struct JetPointer {
    explicit JetPointer(std::uint32_t number)
        : page(number >> 8), row(static_cast<int>(number & 0xFF)) {}

    std::uint32_t page;
    int row;
};

// Keeps the page that the rows are views of. A row that the page does not have, or whose bounds
// make no sense, raises JetDamage.
class RowPage {
  public:
    RowPage() = default;  // without rows
    RowPage(JetPages& pages, std::uint32_t number);

    int rows() const { return rows_; }

    // The page of the definition that the rows follow; kLongValues for pieces of long values.
    std::uint32_t owner() const;
    static constexpr std::uint32_t kLongValues = 0x4C41564C;

    // Whether the row is no row at its place: deleted, or one that has moved there.
    bool isHidden(int row) const;

    // Whether the row has moved, and the pointer to it alone is left.
    bool hasMoved(int row) const;

    ByteView rowAt(int row) const;

  private:
    int slotOf(int row) const;

    QByteArray bytes_;
    int slots_ = 0;
    int rows_ = 0;
};
