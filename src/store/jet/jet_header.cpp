// The reading of a Jet file's header.
#include "store/jet/jet_header.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>

#include "store/jet/byte_view.h"

namespace {

constexpr int kSignature = 4;
constexpr int kVersion = 0x14;
constexpr qsizetype kEncodedHeader = 0x18;
constexpr int kCodePage = 0x3C;
constexpr int kKey = 0x3E;
constexpr int kPassword = 0x42;
constexpr int kCreated = 0x72;  // days since 30 December 1899

constexpr std::uint16_t kWindows1252 = 1252;

[[noreturn]] void refuse(const QString& cause) {
    throw JetFailure(ErrorNumber::InvalidFileFormat, cause);
}

// RC4, with the one key that all headers have.
class HeaderCipher {
  public:
    HeaderCipher() {
        constexpr std::array<std::uint8_t, 4> kHeaderKey{0xC7, 0xDA, 0x39, 0x6B};
        std::iota(state_.begin(), state_.end(), std::uint8_t{0});
        std::uint8_t other = 0;
        for (std::size_t i = 0; i < state_.size(); ++i) {
            other = static_cast<std::uint8_t>(other + state_[i] + kHeaderKey[i % 4]);
            std::swap(state_[i], state_[other]);
        }
    }

    char decoded(char byte) {
        ++place_;
        other_ = static_cast<std::uint8_t>(other_ + state_[place_]);
        std::swap(state_[place_], state_[other_]);
        const auto key = static_cast<std::uint8_t>(state_[place_] + state_[other_]);
        return static_cast<char>(static_cast<std::uint8_t>(byte) ^ state_[key]);
    }

  private:
    std::array<std::uint8_t, 256> state_{};
    std::uint8_t place_ = 0;
    std::uint8_t other_ = 0;
};

// The header as it was before a part of it was encoded.
QByteArray decoded(QByteArray header, const JetFormat& format) {
    HeaderCipher cipher;
    const auto end = std::min(header.size(), kEncodedHeader + format.encodedHeader);
    for (qsizetype place = kEncodedHeader; place < end; ++place)
        header[place] = cipher.decoded(header[place]);
    return header;
}

const JetFormat& formatOfVersion(std::uint8_t version) {
    switch (version) {
        case 0:
            return kJet3;
        case 1:
            return kJet4;
        default:
            refuse(QStringLiteral("it is of another version of Jet than 3 and 4"));
    }
}

// Jet 4 hides the password behind the day on which the file was made.
bool hasPassword(ByteView header, const JetFormat& format) {
    std::uint32_t mask = 0;
    if (format.version == kJet4.version) {
        const auto created = header.numberAt<double>(kCreated);
        constexpr double kOutOfRange = 2147483648.0;
        if (!(created > -kOutOfRange && created < kOutOfRange))
            throw JetDamage(QStringLiteral("the day on which it was made is none"));
        mask = static_cast<std::uint32_t>(static_cast<std::int32_t>(created));
    }
    for (int place = 0; place < format.password; place += 4) {
        if (header.numberAt<std::uint32_t>(kPassword + place) != mask)
            return true;
    }
    return false;
}

}  // namespace

bool isJet(const QByteArray& beginning) {
    const QByteArray signature = beginning.mid(kSignature);
    return signature.startsWith("Standard Jet DB") || signature.startsWith("Standard ACE DB");
}

const JetFormat& formatOfHeader(const QByteArray& header) {
    if (!isJet(header))
        refuse(QStringLiteral("it is no Jet database"));
    const JetFormat& format = formatOfVersion(ByteView(header).numberAt<std::uint8_t>(kVersion));
    const QByteArray plain = decoded(header, format);
    const ByteView view(plain);
    if (view.numberAt<std::uint32_t>(kKey) != 0)
        refuse(QStringLiteral("it is encrypted"));
    if (hasPassword(view, format))
        refuse(QStringLiteral("it has a password"));
    if (format.version == kJet3.version && view.numberAt<std::uint16_t>(kCodePage) != kWindows1252)
        refuse(QStringLiteral("its texts are not in the code page Windows-1252"));
    return format;
}
