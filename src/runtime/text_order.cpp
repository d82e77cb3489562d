// The comparison of text_order.h, with a fast road for the letters of the European languages.
#include "runtime/text_order.h"

#include <QChar>
#include <QList>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <cstdint>
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

QString caseFolded(const QString& text) {
    return decomposed(decomposed(text).toCaseFolded());
}

QByteArray folded(const QString& caseFoldedText) {
    return spelledOut(withoutMarks(caseFoldedText)).toUtf8();
}

// A character that UTF-8 writes in two bytes, folded; found out when it is first met.
struct FoldedLetter {
    std::array<char, 7> bytes{};
    std::int8_t length = -1;
};

const FoldedLetter& foldedLetter(char32_t codePoint) {
    static std::array<FoldedLetter, 0x800> letters;
    FoldedLetter& letter = letters[codePoint];
    if (letter.length < 0) {
        const QByteArray bytes = folded(caseFolded(QString::fromUcs4(&codePoint, 1)));
        Q_ASSERT(bytes.size() <= static_cast<qsizetype>(letter.bytes.size()));
        std::copy(bytes.begin(), bytes.end(), letter.bytes.begin());
        letter.length = static_cast<std::int8_t>(bytes.size());
    }
    return letter;
}

// Reads the folded bytes of a text one by one. That is the same as folding the whole text, as no
// character's folding depends on its neighbours.
class FoldedReader {
  public:
    static constexpr int kEnd = -1;      // less than every byte
    static constexpr int kUnknown = -2;  // a character of more than two bytes, or no UTF-8

    explicit FoldedReader(QByteArrayView text) : text_(text) {}

    int next() {
        while (letterPlace_ == letterLength_) {
            if (text_.isEmpty())
                return kEnd;
            if (isAscii(text_[0])) {
                const char byte = lowerAscii(text_[0]);
                text_ = text_.sliced(1);
                return byte;
            }
            if (!readLetter())
                return kUnknown;
        }
        return static_cast<unsigned char>(letter_[letterPlace_++]);
    }

  private:
    bool readLetter() {
        const auto byteAt = [this](qsizetype i) { return static_cast<unsigned char>(text_[i]); };
        if (text_.size() < 2 || byteAt(0) < 0xC2 || byteAt(0) > 0xDF || (byteAt(1) & 0xC0) != 0x80)
            return false;
        const FoldedLetter& letter =
            foldedLetter(static_cast<char32_t>((byteAt(0) & 0x1F) << 6 | (byteAt(1) & 0x3F)));
        letter_ = letter.bytes.data();
        letterPlace_ = 0;
        letterLength_ = letter.length;
        text_ = text_.sliced(2);
        return true;
    }

    QByteArrayView text_;
    const char* letter_ = nullptr;
    int letterPlace_ = 0;
    int letterLength_ = 0;
};

// How many ASCII letters two texts begin with in common, whatever their case.
qsizetype commonPrefix(QByteArrayView a, QByteArrayView b) {
    const qsizetype shorter = std::min(a.size(), b.size());
    qsizetype place = 0;
    while (place < shorter && isAscii(a[place]) && lowerAscii(a[place]) == lowerAscii(b[place]))
        ++place;
    return place;
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
    const QString folding = caseFolded(text);
    folded_ = folded(folding);
    const QByteArray accented = folding.toUtf8();
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

// The first folded byte that differs decides. Where none does, the accents decide, for which the
// whole texts are folded; so they are where a character is met that the reader does not know.
std::weak_ordering compareUtf8(QByteArrayView a, QByteArrayView b) {
    const qsizetype start = commonPrefix(a, b);
    if (start < std::min(a.size(), b.size()) && isAscii(a[start]) && isAscii(b[start]))
        return lowerAscii(a[start]) <=> lowerAscii(b[start]);
    FoldedReader readerA(a.sliced(start));
    FoldedReader readerB(b.sliced(start));
    int byteA = readerA.next();
    int byteB = readerB.next();
    while (byteA == byteB && byteA >= 0) {
        byteA = readerA.next();
        byteB = readerB.next();
    }
    const bool known = byteA != FoldedReader::kUnknown && byteB != FoldedReader::kUnknown;
    if (known && byteA != byteB)
        return byteA <=> byteB;
    if (a == b)
        return std::weak_ordering::equivalent;
    return TextKey(QString::fromUtf8(a)) <=> TextKey(QString::fromUtf8(b));
}
