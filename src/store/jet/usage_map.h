// The map of the pages that belong to a table.
#pragma once

#include <QByteArray>
#include <cstdint>
#include <optional>

#include "store/jet/row_page.h"

// Gives the pages in rising order, so each of them once. A small map is the row itself; a large one
// lies on pages of its own, which are read as they are needed.
class UsageMap {
  public:
    UsageMap(JetPages& pages, JetPointer place);

    // The first page from this one on; none behind the last. The page may lie beyond the file.
    std::optional<std::uint32_t> firstFrom(JetPages& pages, std::uint32_t page) const;

  private:
    std::optional<std::uint32_t> firstInList(JetPages& pages, std::uint32_t page) const;

    QByteArray map_;
};
