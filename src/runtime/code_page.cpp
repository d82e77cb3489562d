// The table of the code page.
#include "runtime/code_page.h"

#include <algorithm>
#include <array>

namespace {

// From 0x80 to 0x9F; the rest of the code page is Latin-1.
constexpr std::array<char16_t, 32> kBetweenAsciiAndLatin{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr int kFirstBetween = 0x80;
constexpr int kFirstLatin = 0xA0;
constexpr int kBytes = 0x100;

}  // namespace

QChar characterOfByte(std::uint8_t byte) {
    if (byte < kFirstBetween || byte >= kFirstLatin)
        return QChar(static_cast<char16_t>(byte));
    return QChar(kBetweenAsciiAndLatin[static_cast<std::size_t>(byte - kFirstBetween)]);
}

QString textOfBytes(QByteArrayView bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char byte) { return characterOfByte(static_cast<std::uint8_t>(byte)); });
    return text;
}

std::optional<std::uint8_t> byteOfCharacter(QChar character) {
    const char16_t unit = character.unicode();
    if (unit < kFirstBetween || (unit >= kFirstLatin && unit < kBytes))
        return static_cast<std::uint8_t>(unit);
    const auto found = std::find(kBetweenAsciiAndLatin.begin(), kBetweenAsciiAndLatin.end(), unit);
    if (found == kBetweenAsciiAndLatin.end())
        return std::nullopt;
    return static_cast<std::uint8_t>(kFirstBetween + (found - kBetweenAsciiAndLatin.begin()));
}
