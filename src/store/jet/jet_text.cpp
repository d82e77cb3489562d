// The decoding of jet_text.h.
#include "store/jet/jet_text.h"

#include "runtime/code_page.h"

namespace {

constexpr std::uint16_t kCompressed = 0xFEFF;
constexpr qsizetype kUnit = 2;  // the bytes of a character

QString textOfUnits(ByteView bytes) {
    if (bytes.length() % kUnit != 0)
        throw JetDamage(QStringLiteral("a text ends within a character"));
    QString text(bytes.length() / kUnit, Qt::Uninitialized);
    qsizetype place = 0;
    for (QChar& character : text) {
        character = QChar(bytes.numberAt<char16_t>(place));
        place += kUnit;
    }
    return text;
}

// A character is one byte until a zero changes that, and two until the next.
QString textOfCompressed(ByteView bytes) {
    QString text;
    text.reserve(bytes.length());
    bool isCompressed = true;
    for (qsizetype place = 0; place < bytes.length();) {
        const auto byte = bytes.numberAt<std::uint8_t>(place);
        if (byte == 0) {
            isCompressed = !isCompressed;
            ++place;
        } else if (isCompressed) {
            text += QChar(char16_t{byte});
            ++place;
        } else {
            text += QChar(bytes.numberAt<char16_t>(place));
            place += kUnit;
        }
    }
    return text;
}

}  // namespace

QString jetText(ByteView bytes, const JetFormat& format) {
    const bool isCompressed = format.version == kJet4.version && bytes.length() >= kUnit &&
                              bytes.numberAt<std::uint16_t>(0) == kCompressed;
    return isCompressed ? textOfCompressed(bytes.from(kUnit)) : jetName(bytes, format);
}

QString jetName(ByteView bytes, const JetFormat& format) {
    return format.version == kJet4.version ? textOfUnits(bytes)
                                           : textOfBytes({bytes.data(), bytes.length()});
}
