// The two encodings of small_text.h.
#include "store/small_text.h"

#include <QStringDecoder>
#include <algorithm>
#include <array>

namespace {

// What Windows-1252 has from 0x80 to 0x9F; the rest of it is Latin-1. The five bytes that it leaves
// open stand for the control characters of their number, so that every byte can be read back.
constexpr std::array<char16_t, 32> kBetweenAsciiAndLatin{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr int kFirstBetween = 0x80;
constexpr int kFirstLatin = 0xA0;
constexpr int kBytes = 0x100;

char16_t characterOf(unsigned char byte) {
    if (byte < kFirstBetween || byte >= kFirstLatin)
        return byte;
    return kBetweenAsciiAndLatin[static_cast<std::size_t>(byte - kFirstBetween)];
}

// The byte of a character; -1 if the code page does not have it.
int byteOf(char16_t character) {
    if (character < kFirstBetween || (character >= kFirstLatin && character < kBytes))
        return character;
    const auto found =
        std::find(kBetweenAsciiAndLatin.begin(), kBetweenAsciiAndLatin.end(), character);
    if (found == kBetweenAsciiAndLatin.end())
        return -1;
    return kFirstBetween + static_cast<int>(found - kBetweenAsciiAndLatin.begin());
}

bool isReadAsUtf8(const QByteArray& bytes) {
    const bool isAscii = std::all_of(bytes.begin(), bytes.end(), [](char byte) {
        return static_cast<unsigned char>(byte) < kFirstBetween;
    });
    if (isAscii)
        return false;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    return !decoder.hasError();
}

}  // namespace

QByteArray encodeSmallText(const QString& text) {
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar character : text) {
        const int byte = byteOf(character.unicode());
        if (byte < 0)
            return text.toUtf8();
        bytes += static_cast<char>(byte);
    }
    return isReadAsUtf8(bytes) ? text.toUtf8() : bytes;
}

QString decodeSmallText(const QByteArray& bytes) {
    if (isReadAsUtf8(bytes))
        return QString::fromUtf8(bytes);
    QString text;
    text.reserve(bytes.size());
    for (const char byte : bytes)
        text += QChar(characterOf(static_cast<unsigned char>(byte)));
    return text;
}
