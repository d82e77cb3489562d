// The words of rich text documents.
#include "rtf/rtf_tokens.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <limits>

#include "support/printing.h"

namespace {

QString described(const RtfToken& token) {
    const QString text = token.text.toString();
    const QString number = token.number ? QString::number(*token.number) : QString();
    switch (token.kind) {
        case RtfToken::Kind::GroupStart:
        case RtfToken::Kind::GroupEnd:
            return text;
        case RtfToken::Kind::Word:
            return u'\\' + text + number;
        case RtfToken::Kind::Symbol:
            return QStringLiteral("symbol ") + text;
        case RtfToken::Kind::Byte:
            return QStringLiteral("byte ") + number;
        case RtfToken::Kind::Text:
            return u'"' + text + u'"';
        case RtfToken::Kind::Binary:
            return QStringLiteral("binary ") + text;
        case RtfToken::Kind::End:
            break;
    }
    return QStringLiteral("end");
}

QStringList tokensOf(QStringView document) {
    RtfTokens tokens(document);
    QStringList all;
    for (RtfToken token = tokens.nextToken(); token.kind != RtfToken::Kind::End;
         token = tokens.nextToken())
        all += described(token);
    return all;
}

QStringList list(std::initializer_list<const char*> texts) {
    QStringList all;
    for (const char* text : texts)
        all += QString::fromUtf8(text);
    return all;
}

}  // namespace

TEST(RtfTokens, AreGroupsWordsAndTexts) {
    EXPECT_EQ(tokensOf(uR"({\rtf1 Anna Smith})"), list({"{", "\\rtf1", "\"Anna Smith\"", "}"}));
}

TEST(RtfTokens, TakeOneBlankBehindAWordForItsEnd) {
    EXPECT_EQ(tokensOf(uR"(\b  two)"), list({"\\b", "\" two\""}));
    EXPECT_EQ(tokensOf(uR"(\b )"), list({"\\b"}));
    EXPECT_EQ(tokensOf(uR"(\aNnA7 )"), list({"\\aNnA7"}));
    EXPECT_EQ(tokensOf(uR"(\b0\tab x)"), list({"\\b0", "\\tab", "\"x\""}));
    EXPECT_EQ(tokensOf(uR"(\fs20;x)"), list({"\\fs20", "\";x\""}));
}

TEST(RtfTokens, TakeAMinusForASignBeforeADigitAlone) {
    EXPECT_EQ(tokensOf(uR"(\li-360x)"), list({"\\li-360", "\"x\""}));
    EXPECT_EQ(tokensOf(uR"(\b-x)"), list({"\\b", "\"-x\""}));
    EXPECT_EQ(tokensOf(uR"(\b-)"), list({"\\b", "\"-\""}));
}

TEST(RtfTokens, KeepANumberWithinThirtyTwoBits) {
    const QString most = QString::number(std::numeric_limits<Long>::max());
    EXPECT_EQ(tokensOf(uR"(\li99999999999999999999)"), QStringList(QStringLiteral("\\li") + most));
    EXPECT_EQ(tokensOf(uR"(\li-99999999999999999999)"),
              QStringList(QStringLiteral("\\li-") + most));
}

TEST(RtfTokens, LeaveLineEndsOut) {
    EXPECT_EQ(tokensOf(u"a\r\nb\n\\b\r\nc"), list({"\"a\"", "\"b\"", "\\b", "\"c\""}));
}

TEST(RtfTokens, KnowSymbolsAndBytes) {
    EXPECT_EQ(
        tokensOf(uR"(\*\~\{\\\'e9\'FFx)"),
        list({"symbol *", "symbol ~", "symbol {", "symbol \\", "byte 233", "byte 255", "\"x\""}));
}

TEST(RtfTokens, TakeAByteWithoutTwoDigitsForASymbol) {
    EXPECT_EQ(tokensOf(uR"(\'zz)"), list({"symbol '", "\"zz\""}));
    EXPECT_EQ(tokensOf(uR"(\'4z)"), list({"symbol '", "\"4z\""}));
    EXPECT_EQ(tokensOf(uR"(a\'4)"), list({"\"a\"", "symbol '", "\"4\""}));
    EXPECT_EQ(tokensOf(uR"(\'\')"), list({"symbol '", "symbol '"}));
}

TEST(RtfTokens, TakeBinaryPiecesWhateverTheyHold) {
    EXPECT_EQ(tokensOf(uR"(\bin3 }{\x)"), list({"binary }{\\", "\"x\""}));
    EXPECT_EQ(tokensOf(uR"(\bin99 ab)"), list({"binary ab"}));
    EXPECT_EQ(tokensOf(uR"(\bin-1 ab)"), list({"binary ", "\"ab\""}));
}

TEST(RtfTokens, TakeCharactersBeyondAsciiAsTheyStand) {
    EXPECT_EQ(tokensOf(uR"(\b Žofie 😀)"), list({"\\b", "\"Žofie 😀\""}));
    EXPECT_EQ(tokensOf(uR"(\é)"), list({"symbol é"}));
}

TEST(RtfTokens, EndWithABackslash) {
    EXPECT_EQ(tokensOf(u"a\\"), list({"\"a\""}));
}
