// The two encodings of small_text.h.
#include "store/small_text.h"

#include <QStringDecoder>
#include <algorithm>

#include "runtime/code_page.h"

namespace {

bool isReadAsUtf8(const QByteArray& bytes) {
    constexpr unsigned char kFirstBeyondAscii = 0x80;
    const bool isAscii = std::all_of(bytes.begin(), bytes.end(), [](char byte) {
        return static_cast<unsigned char>(byte) < kFirstBeyondAscii;
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
        const std::optional<std::uint8_t> byte = byteOfCharacter(character);
        if (!byte)
            return text.toUtf8();
        bytes += static_cast<char>(*byte);
    }
    return isReadAsUtf8(bytes) ? text.toUtf8() : bytes;
}

QString decodeSmallText(const QByteArray& bytes) {
    if (isReadAsUtf8(bytes))
        return QString::fromUtf8(bytes);
    return textOfBytes(bytes);
}
