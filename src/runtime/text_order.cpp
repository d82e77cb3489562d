// The comparison of text_order.h, with a fast road for texts without accents.
#include "runtime/text_order.h"

#include <QChar>
#include <QList>
#include <algorithm>

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

QString decomposed(const QString& text) {
    return text.normalized(QString::NormalizationForm_D);
}

QString withoutMarks(const QString& decomposedText) {
    QString text;
    text.reserve(decomposedText.size());
    for (const char32_t codePoint : decomposedText.toUcs4()) {
        if (!isMark(QChar::category(codePoint)))
            text += QChar::fromUcs4(codePoint);
    }
    return text;
}

// A letter whose capital is written as several letters becomes these: ß becomes ss.
QString spelledOut(const QString& caseFolded) {
    return caseFolded.toUpper().toCaseFolded();
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
    const QString caseFolded = decomposed(decomposed(text).toCaseFolded());
    folded_ = spelledOut(withoutMarks(caseFolded)).toUtf8();
    const QByteArray accented = caseFolded.toUtf8();
    if (accented != folded_)
        accented_ = accented;
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
