// The file header of bitmaps.
#include "rtf/dib.h"

#include <QtEndian>
#include <cstdint>
#include <optional>

namespace {

constexpr std::uint32_t kFileHeader = 14;  // bytes
constexpr std::uint32_t kOldHeader = 12;
constexpr std::uint32_t kHeader = 40;

template <class Number>
Number numberAt(const QByteArray& bytes, qsizetype place) {
    return qFromLittleEndian<Number>(bytes.constData() + place);
}

// The bytes between the bitmap's header and its pixels: the masks and the palette.
std::uint32_t tableSize(const QByteArray& dib, std::uint32_t header) {
    constexpr std::uint32_t kMasks = 12;
    constexpr std::uint32_t kByMasks = 3;
    constexpr std::uint16_t kBitsWithPalette = 8;
    if (header == kOldHeader) {
        const auto bits = numberAt<std::uint16_t>(dib, 10);
        return bits <= kBitsWithPalette ? 3U << bits : 0;
    }
    const auto bits = numberAt<std::uint16_t>(dib, 14);
    const bool hasMasks = header == kHeader && numberAt<std::uint32_t>(dib, 16) == kByMasks;
    const auto coloursUsed = numberAt<std::uint32_t>(dib, 32);
    const std::uint32_t colours =
        coloursUsed == 0 && bits <= kBitsWithPalette ? 1U << bits : coloursUsed;
    constexpr std::uint32_t kMostColours = 256;
    return (hasMasks ? kMasks : 0) + 4 * std::min(colours, kMostColours);
}

}  // namespace

QByteArray bmpFile(const QByteArray& dib) {
    const auto size = static_cast<std::uint32_t>(dib.size());
    if (size < kOldHeader)
        return {};
    const auto header = numberAt<std::uint32_t>(dib, 0);
    if (header > size || (header != kOldHeader && header < kHeader))
        return {};
    QByteArray file(kFileHeader, '\0');
    file[0] = 'B';
    file[1] = 'M';
    qToLittleEndian(kFileHeader + size, file.data() + 2);
    qToLittleEndian(kFileHeader + header + tableSize(dib, header), file.data() + 10);
    return file + dib;
}

QByteArray dibOf(const QByteArray& bmpFile) {
    return bmpFile.mid(kFileHeader);
}

bool isBmpFile(const QByteArray& file) {
    return file.startsWith("BM");
}
