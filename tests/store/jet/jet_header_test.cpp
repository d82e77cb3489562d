// What the header of a file tells of it.
#include "store/jet/jet_header.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>

#include "store/jet/jet_errors.h"
#include "support/jet_builder.h"
#include "support/printing.h"

namespace {

QByteArray headerOf(int version) {
    return builtJet(version, {}).bytes.first(kJetHeader);
}

// Why a file with that header cannot be read; "" if it can.
QString refusalOf(const QByteArray& header) {
    try {
        formatOfHeader(header);
        return {};
    } catch (const JetFailure& failure) {
        EXPECT_EQ(failure.number, ErrorNumber::InvalidFileFormat);
        return failure.cause;
    }
}

QString refusalWith(int version, int place, std::uint32_t number) {
    QByteArray header = headerOf(version);
    putInHeader(header, place, number);
    return refusalOf(header);
}

constexpr int kKey = 0x3E;
constexpr int kPassword = 0x42;
constexpr int kCreated = 0x72;

}  // namespace

TEST(JetHeader, TellsTheFormat) {
    EXPECT_EQ(&formatOfHeader(headerOf(3)), &kJet3);
    EXPECT_EQ(&formatOfHeader(headerOf(4)), &kJet4);
}

TEST(JetHeader, IsKnownByItsText) {
    EXPECT_TRUE(isJet(headerOf(4).first(kJetSignature)));
    EXPECT_FALSE(isJet(headerOf(4).first(kJetSignature - 1)));
    EXPECT_FALSE(isJet(headerOf(4).mid(1)));
    EXPECT_FALSE(isJet(QByteArray("SQLite format 3")));
    const QString none = QStringLiteral("it is no Jet database");
    EXPECT_EQ(refusalOf(headerOf(4).mid(1)), none);
    EXPECT_EQ(refusalOf({}), none);
}

TEST(JetHeader, OfAnotherVersionIsRefused) {
    const QString other = QStringLiteral("it is of another version of Jet than 3 and 4");
    for (const int version : {2, 3, 5, 255}) {
        QByteArray header = headerOf(4);
        header[0x14] = static_cast<char>(version);
        EXPECT_EQ(refusalOf(header), other);
    }
    QByteArray header = headerOf(4);
    header.replace("Standard Jet DB", "Standard ACE DB");
    header[0x14] = 2;
    EXPECT_TRUE(isJet(header));
    EXPECT_EQ(refusalOf(header), other);
}

TEST(JetHeader, OfAnEncryptedFileIsRefused) {
    for (const int version : {3, 4}) {
        EXPECT_EQ(refusalWith(version, kKey, 1), QStringLiteral("it is encrypted"));
        EXPECT_EQ(refusalWith(version, kKey, 0x80000000), QStringLiteral("it is encrypted"));
    }
}

TEST(JetHeader, OfAFileWithAPasswordIsRefused) {
    const QString secret = QStringLiteral("it has a password");
    EXPECT_EQ(refusalWith(3, kPassword, 'a'), secret);
    EXPECT_EQ(refusalWith(3, kPassword + 16, 'a'), secret);
    EXPECT_EQ(refusalWith(3, kPassword + 20, 'a'), QString());  // there it has ended
    EXPECT_EQ(refusalWith(4, kPassword, 0), secret);
    EXPECT_EQ(refusalWith(4, kPassword + 36, 'a'), secret);
    EXPECT_EQ(refusalWith(4, kPassword + 40, 'a'), QString());
}

TEST(JetHeader, WhoseDayMakesNoSenseIsDamaged) {
    for (const double day : {1e300, -1e300, std::numeric_limits<double>::quiet_NaN()}) {
        QByteArray header = headerOf(4);
        const auto bits = std::bit_cast<std::uint64_t>(day);
        putInHeader(header, kCreated, static_cast<std::uint32_t>(bits));
        putInHeader(header, kCreated + 4, static_cast<std::uint32_t>(bits >> 32));
        EXPECT_EQ(refusalOf(header),
                  QStringLiteral("the file is damaged, the day on which it was made is none"));
    }
}

TEST(JetHeader, OfAnotherCodePageIsRefusedWhereTextsAreInIt) {
    constexpr int kCodePage = 0x3C;
    EXPECT_EQ(refusalWith(3, kCodePage, 1250),
              QStringLiteral("its texts are not in the code page Windows-1252"));
    EXPECT_EQ(refusalWith(4, kCodePage, 1250), QString());
}

TEST(JetHeader, ThatBreaksOffIsDamaged) {
    for (const int version : {3, 4}) {
        for (qsizetype length = kJetSignature; length < kPassword; ++length)
            EXPECT_EQ(refusalOf(headerOf(version).first(length)),
                      QStringLiteral("the file is damaged, something in it breaks off"));
    }
}
