// The comparison of text_order.h. Two texts are mostly told apart by the first letters in which
// they differ, so no more than these is folded; what they leave open, the whole texts decide.
#include "runtime/text_order.h"

#include <QByteArray>
#include <QString>
#include <algorithm>
#include <optional>

#include "runtime/text_fold.h"

namespace {

// The byte order of UTF-8 is that of code points.
std::weak_ordering compareCodePoints(const QString& a, const QString& b) {
    return a.toUtf8().compare(b.toUtf8()) <=> 0;
}

std::weak_ordering compareWhole(const QString& a, const QString& b) {
    if (const auto order = compareCodePoints(folded(a), folded(b)); order != 0)
        return order;
    return compareCodePoints(accented(a), accented(b));
}

// Stands for whatever is not a character of the first plane: half of one, or bytes that are none.
constexpr char16_t kBeyond = 0xD800;

// These take one character from a text and move the place behind it.
char16_t takeCharacter(QStringView text, qsizetype& place) {
    return text[place++].unicode();
}

// The six bits of a byte that continues a character, or something larger.
unsigned continuation(QByteArrayView text, qsizetype place) {
    constexpr unsigned kMark = 0x80;
    return place < text.size() ? static_cast<unsigned char>(text[place]) ^ kMark : kMark;
}

char16_t takeCharacter(QByteArrayView text, qsizetype& place) {
    constexpr unsigned kBits = 0x40;
    const unsigned lead = static_cast<unsigned char>(text[place++]);
    if (lead < 0x80)
        return static_cast<char16_t>(lead);
    if (lead < 0xC2 || lead >= 0xF0)
        return kBeyond;
    const unsigned second = continuation(text, place++);
    if (lead < 0xE0)
        return second < kBits ? static_cast<char16_t>((lead - 0xC0) * kBits + second) : kBeyond;
    const unsigned third = continuation(text, place++);
    const unsigned character = ((lead - 0xE0) * kBits + second) * kBits + third;
    return second < kBits && third < kBits && character >= 0x800 ? static_cast<char16_t>(character)
                                                                 : kBeyond;
}

// The letters that a text is folded into, from a place on.
template <class Text>
class Letters {
  public:
    static constexpr int kEnd = -1;

    Letters(Text text, qsizetype place) : text_(text), place_(place) {}

    int next() {
        while (letter_ == end_) {
            if (place_ >= text_.size())
                return kEnd;
            const Fold& fold = Fold::of(takeCharacter(text_, place_));
            letter_ = fold.begin();
            end_ = fold.end();
        }
        return *letter_++;
    }

  private:
    Text text_;
    qsizetype place_;
    const char16_t* letter_ = nullptr;
    const char16_t* end_ = nullptr;
};

bool isInsideCharacter(QStringView, qsizetype) {
    return false;
}

bool isInsideCharacter(QByteArrayView text, qsizetype place) {
    return place < text.size() && (static_cast<unsigned char>(text[place]) & 0xC0U) == 0x80U;
}

// Where two texts first differ, at the beginning of a character.
template <class Text>
qsizetype firstDifference(Text a, Text b) {
    qsizetype place = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
    while (place > 0 && (isInsideCharacter(a, place) || isInsideCharacter(b, place)))
        --place;
    return place;
}

bool isHalfCharacter(int letter) {
    return letter >= 0xD800 && letter < 0xE000;
}

// Most pairs are decided by two ASCII characters, which need no table: these give one without case.
constexpr int kNotAscii = -1;

int asciiOf(unsigned unit) {
    if (unit >= 0x80)
        return kNotAscii;
    return static_cast<int>(unit >= 'A' && unit <= 'Z' ? unit - 'A' + 'a' : unit);
}

int asciiAt(QStringView text, qsizetype place) {
    return place < text.size() ? asciiOf(text[place].unicode()) : kNotAscii;
}

int asciiAt(QByteArrayView text, qsizetype place) {
    return place < text.size() ? asciiOf(static_cast<unsigned char>(text[place])) : kNotAscii;
}

// The order by the first letters that differ; none if there are none, or not in the first plane.
template <class Text>
std::optional<std::weak_ordering> compareLetters(Text a, Text b) {
    const qsizetype start = firstDifference(a, b);
    if (start == a.size() && start == b.size())
        return std::weak_ordering::equivalent;
    const int asciiA = asciiAt(a, start);
    const int asciiB = asciiAt(b, start);
    if (asciiA != asciiB && asciiA != kNotAscii && asciiB != kNotAscii)
        return asciiA <=> asciiB;
    Letters<Text> lettersA(a, start);
    Letters<Text> lettersB(b, start);
    for (;;) {
        const int letterA = lettersA.next();
        const int letterB = lettersB.next();
        if (isHalfCharacter(letterA) || isHalfCharacter(letterB))
            return std::nullopt;
        if (letterA != letterB)
            return letterA <=> letterB;
        if (letterA == Letters<Text>::kEnd)
            return std::nullopt;
    }
}

}  // namespace

std::weak_ordering compareTexts(QStringView a, QStringView b) {
    const auto order = compareLetters(a, b);
    return order ? *order : compareWhole(a.toString(), b.toString());
}

std::weak_ordering compareUtf8(QByteArrayView a, QByteArrayView b) {
    const auto order = compareLetters(a, b);
    return order ? *order : compareWhole(QString::fromUtf8(a), QString::fromUtf8(b));
}
