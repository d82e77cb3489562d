// A key for each of many texts that are to be put in order.
#pragma once

#include <QStringView>
#include <compare>
#include <cstdint>

// The first letters that a text is compared by, folded as text_fold.h says. It orders most pairs of
// texts as compareTexts does, in next to no time and without the texts; those that it leaves open
// are for compareTexts to tell. A key takes 16 bytes and does not hold the text.
class TextKey {
  public:
    explicit TextKey(QStringView text);

    // Unordered: the texts must be compared. That goes for longer texts that begin alike, and for
    // those with letters or accents beyond ASCII.
    friend std::partial_ordering operator<=>(const TextKey& a, const TextKey& b);

  private:
    std::uint64_t first_;
    std::uint64_t second_;
};
