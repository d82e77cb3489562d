// The comparison of text_order.h, with a fast road for texts without accents.
#include "runtime/text_order.h"

#include <QChar>
#include <QList>
#include <QtEndian>
#include <algorithm>
#include <cstring>

namespace {

bool isAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

char lowerAscii(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

bool isAscii(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

bool isMark(QChar::Category category) {
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_SpacingCombining ||
           category == QChar::Mark_Enclosing;
}

QString withoutMarks(const QString& decomposed) {
    QString text;
    text.reserve(decomposed.size());
    for (const char32_t codePoint : decomposed.toUcs4()) {
        if (!isMark(QChar::category(codePoint)))
            text += QChar::fromUcs4(codePoint);
    }
    return text;
}

std::weak_ordering orderOf(int comparison) {
    return comparison <=> 0;
}

std::weak_ordering compareBytes(const QByteArray& a, const QByteArray& b) {
    return orderOf(a.compare(b));
}

}  // namespace

TextKey::TextKey(const QString& text) {
    if (isAscii(text)) {
        folded_ = text.toLatin1().toLower();
        return;
    }
    const QString caseFolded =
        text.toCaseFolded().normalized(QString::NormalizationForm_D).toCaseFolded();
    folded_ = withoutMarks(caseFolded).toUtf8();
    const QByteArray accented = caseFolded.toUtf8();
    if (accented != folded_)
        accented_ = accented;
}

TextKey::Beginning TextKey::beginning() const {
    Beginning numbers{};
    std::memcpy(numbers.data(), folded_.constData(),
                std::min(static_cast<std::size_t>(folded_.size()), sizeof(numbers)));
    for (std::uint64_t& number : numbers)
        number = qFromBigEndian(number);
    return numbers;
}

std::weak_ordering operator<=>(const TextKey& a, const TextKey& b) {
    if (const auto order = compareBytes(a.folded_, b.folded_); order != 0)
        return order;
    if (a.accented_.isEmpty() && b.accented_.isEmpty())
        return std::weak_ordering::equivalent;
    return compareBytes(a.accented_.isEmpty() ? a.folded_ : a.accented_,
                        b.accented_.isEmpty() ? b.folded_ : b.accented_);
}

std::weak_ordering compareTexts(const QString& a, const QString& b) {
    return compareUtf8(a.toUtf8(), b.toUtf8());
}

// As long as both texts are ASCII, the first byte that differs decides. Where something else comes
// first, the whole texts are folded.
std::weak_ordering compareUtf8(QByteArrayView a, QByteArrayView b) {
    const qsizetype shorter = std::min(a.size(), b.size());
    qsizetype place = 0;
    while (place < shorter && isAscii(a[place]) && lowerAscii(a[place]) == lowerAscii(b[place]))
        ++place;
    const bool plainA = place == a.size() || isAscii(a[place]);
    const bool plainB = place == b.size() || isAscii(b[place]);
    if (!plainA || !plainB)
        return TextKey(QString::fromUtf8(a)) <=> TextKey(QString::fromUtf8(b));
    if (place == a.size() || place == b.size())
        return a.size() <=> b.size();
    return lowerAscii(a[place]) <=> lowerAscii(b[place]);
}
