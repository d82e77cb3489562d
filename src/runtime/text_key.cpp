// The keys of text_key.h: fifteen letters of one byte each, and a byte that says what the letters
// leave out, read as two numbers.
#include "runtime/text_key.h"

#include <QtEndian>
#include <algorithm>
#include <array>

#include "runtime/text_fold.h"

namespace {

// What the letters of a key tell of the text.
enum class Knowledge : unsigned char {
    All,    // it is the same as any other text with these letters
    Begin,  // it begins with them
    Nothing
};

constexpr std::size_t kLetters = 15;
constexpr std::uint64_t kKnowledgeMask = 0xFF;

// A letter beyond ASCII comes after all that are within it; more is not told of it, so it ends a
// key.
constexpr char16_t kLastAscii = 0x7F;
constexpr unsigned char kBeyondAscii = 0xFF;

// Fifteen letters, zeros behind the last, and what they tell.
using Bytes = std::array<unsigned char, kLetters + 1>;

Bytes keyOf(const Bytes& letters, Knowledge knowledge) {
    Bytes key = letters;
    key.back() = static_cast<unsigned char>(knowledge);
    return key;
}

// Half a character may be that of an accent, so that what follows it would decide.
Bytes keyOf(QStringView text) {
    Bytes letters{};
    std::size_t length = 0;
    bool isAscii = true;
    for (const QChar character : text) {
        isAscii = isAscii && character > QChar::Null && character <= kLastAscii;
        for (const char16_t letter : Fold::of(character.unicode())) {
            if (QChar::isSurrogate(letter))
                return keyOf({}, Knowledge::Nothing);
            if (length == kLetters)
                return keyOf(letters, Knowledge::Begin);
            const bool ends = letter > kLastAscii;
            letters[length++] = ends ? kBeyondAscii : static_cast<unsigned char>(letter);
            if (ends)
                return keyOf(letters, Knowledge::Begin);
        }
    }
    return keyOf(letters, isAscii ? Knowledge::All : Knowledge::Begin);
}

Knowledge knowledgeOf(std::uint64_t second) {
    return static_cast<Knowledge>(second & kKnowledgeMask);
}

}  // namespace

TextKey::TextKey(QStringView text) {
    const Bytes key = keyOf(text);
    first_ = qFromBigEndian<std::uint64_t>(key.data());
    second_ = qFromBigEndian<std::uint64_t>(key.data() + sizeof(first_));
}

std::partial_ordering operator<=>(const TextKey& a, const TextKey& b) {
    const Knowledge least = std::max(knowledgeOf(a.second_), knowledgeOf(b.second_));
    if (least == Knowledge::Nothing)
        return std::partial_ordering::unordered;
    if (a.first_ != b.first_)
        return a.first_ <=> b.first_;
    const auto order = (a.second_ & ~kKnowledgeMask) <=> (b.second_ & ~kKnowledgeMask);
    if (order == 0 && least != Knowledge::All)
        return std::partial_ordering::unordered;
    return order;
}
