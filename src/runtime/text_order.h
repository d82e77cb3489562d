// The one order of texts: sorted lists, the store's ORDER BY, searches and grids all follow it.
//
// Texts are compared folded first (case folded, decomposed, accents dropped, ß spelled as ss), code
// point by code point, then with their accents. So abe < Émile < Zed, Strasse < Straße < Straub,
// "Smith" < "Smith, Anna" < "Smithers", "A" < "a*" < "Aa". Texts that differ in case alone are
// equal, and so are the same characters composed and decomposed. No locale has a say in it, so the
// order is the same on every machine.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <array>
#include <compare>
#include <cstdint>

// What a text is sorted by; made once where a text is compared often.
class TextKey {
  public:
    TextKey() = default;
    explicit TextKey(const QString& text);

    // The beginning of the key as two numbers: where those of two keys differ, they are in the
    // order of the keys. A sort decides most comparisons by them.
    using Beginning = std::array<std::uint64_t, 2>;
    Beginning beginning() const;

    friend std::weak_ordering operator<=>(const TextKey& a, const TextKey& b);
    friend bool operator==(const TextKey& a, const TextKey& b) { return (a <=> b) == 0; }

  private:
    QByteArray folded_;    // without accents, in UTF-8, whose byte order is that of code points
    QByteArray accented_;  // with accents, where it differs from folded_; empty otherwise
};

// Compares two texts.
std::weak_ordering compareTexts(const QString& a, const QString& b);

// The same for texts in UTF-8.
std::weak_ordering compareUtf8(QByteArrayView a, QByteArrayView b);
