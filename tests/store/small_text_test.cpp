// Texts as the bytes of small files, and back.
#include "store/small_text.h"

#include <gtest/gtest.h>

#include "support/printing.h"
#include "support/properties.h"

namespace {

void expectBytes(const QString& text, const QByteArray& bytes) {
    EXPECT_EQ(encodeSmallText(text), bytes) << qPrintable(text);
    EXPECT_EQ(decodeSmallText(bytes), text) << bytes.toHex().toStdString();
}

TEST(SmallText, TakesOneByteACharacterOfTheCodePage) {
    expectBytes(QStringLiteral("Müller, Zoë"), QByteArray("M\xFCller, Zo\xEB"));
    expectBytes(QStringLiteral("€ Šimon’s Žofie—Ÿ"),
                QByteArray("\x80 \x8Aimon\x92s \x8Eofie\x97\x9F"));
}

TEST(SmallText, HasNoByteOrderMark) {
    EXPECT_EQ(encodeSmallText(QStringLiteral("Ada")), QByteArray("Ada"));
    EXPECT_EQ(encodeSmallText(QStringLiteral("Чехов")).left(1), QByteArray("\xD0"));
}

TEST(SmallText, IsUtf8WhereTheCodePageLacksACharacter) {
    expectBytes(QStringLiteral("Чехов, Антон"), QStringLiteral("Чехов, Антон").toUtf8());
    expectBytes(QStringLiteral("Müller 東京 😀"), QStringLiteral("Müller 東京 😀").toUtf8());
}

TEST(SmallText, IsUtf8WhereTheBytesOfTheCodePageWouldBeTakenForIt) {
    expectBytes(QStringLiteral("Ã¼"), QByteArray("\xC3\x83\xC2\xBC"));
}

TEST(SmallText, ReadsWhatIsNoValidUtf8AsTheCodePage) {
    EXPECT_EQ(decodeSmallText("\xC3\xBC\xFC"), QStringLiteral("Ã¼ü"));
    EXPECT_EQ(decodeSmallText("\xE2\x82"), QStringLiteral("â‚"));
    EXPECT_EQ(decodeSmallText("\xC0\xAF"), QStringLiteral("À¯"));
}

TEST(SmallText, ReadsEveryByteThereIs) {
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    EXPECT_EQ(decodeSmallText(bytes).size(), 256);
    EXPECT_EQ(encodeSmallText(decodeSmallText(bytes)), bytes);
}

#ifdef RC_GTEST_PROP

RC_GTEST_PROP(SmallTextProperties, ReadsBackWhateverItWrote, (const std::u32string& text)) {
    const QString written = QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size()));
    const QString valid = QString::fromUtf8(written.toUtf8());
    RC_ASSERT(decodeSmallText(encodeSmallText(valid)) == valid);
}

RC_GTEST_PROP(SmallTextProperties, LosesNothingOfAnyBytes, (const std::string& bytes)) {
    const QString text = decodeSmallText(QByteArray::fromStdString(bytes));
    RC_ASSERT(decodeSmallText(encodeSmallText(text)) == text);
}

#endif

}  // namespace
