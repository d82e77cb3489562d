// The one order of texts: sorted lists, the store's ORDER BY, searches and grids all follow it.
//
// Texts are compared folded first (case folded, decomposed, accents dropped, ß spelled as ss), code
// point by code point, then with their accents. So abe < Émile < Zed, Strasse < Straße < Straub,
// "Smith" < "Smith, Anna" < "Smithers", "A" < "a*" < "Aa". Texts that differ in case alone are
// equal, and so are the same characters composed and decomposed. No locale has a say in it, so the
// order is the same on every machine.
#pragma once

#include <QByteArrayView>
#include <QStringView>
#include <compare>

// Compares two texts.
std::weak_ordering compareTexts(QStringView a, QStringView b);

// The same for texts in UTF-8.
std::weak_ordering compareUtf8(QByteArrayView a, QByteArrayView b);
