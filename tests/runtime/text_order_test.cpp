// The one order of texts.
#include "runtime/text_order.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <compare>
#include <vector>

#include "support/properties.h"

namespace {

// Each text comes before all that follow it.
void expectAscending(const QStringList& texts) {
    for (qsizetype i = 0; i < texts.size(); ++i) {
        for (qsizetype j = 0; j < texts.size(); ++j) {
            EXPECT_EQ(compareTexts(texts[i], texts[j]), i <=> j)
                << texts[i].toStdString() << " and " << texts[j].toStdString();
        }
    }
}

void expectEqual(const QString& a, const QString& b) {
    EXPECT_EQ(compareTexts(a, b), std::weak_ordering::equivalent) << a.toStdString();
    EXPECT_EQ(compareTexts(b, a), std::weak_ordering::equivalent) << a.toStdString();
    EXPECT_TRUE(TextKey(a) == TextKey(b)) << a.toStdString();
}

}  // namespace

TEST(TextOrder, HasNoRegardToCaseAndSortsAccentsBesideTheirLetter) {
    expectAscending({QStringLiteral("abe"), QStringLiteral("de Vries"), QStringLiteral("Émile"),
                     QStringLiteral("Zed")});
}

TEST(TextOrder, PutsAShorterTextBeforeItsContinuations) {
    expectAscending({QString(), QStringLiteral("Smith"), QStringLiteral("smith, Ab"),
                     QStringLiteral("Smith, Anna"), QStringLiteral("Smithers")});
}

TEST(TextOrder, DoesNotIgnorePunctuation) {
    expectAscending({QStringLiteral("*"), QStringLiteral("A"), QStringLiteral("a*"),
                     QStringLiteral("Aa"), QStringLiteral("O'Neil"), QStringLiteral("Oates"),
                     QStringLiteral("Oneil")});
}

TEST(TextOrder, PutsAnAccentAfterTheSameTextWithoutIt) {
    expectAscending({QStringLiteral("Andre"), QStringLiteral("André"), QStringLiteral("Andrea"),
                     QStringLiteral("Andréa")});
}

TEST(TextOrder, SpellsTheSharpSOut) {
    expectAscending({QStringLiteral("Strasman"), QStringLiteral("Strasse"),
                     QStringLiteral("Straße"), QStringLiteral("Straub")});
    expectEqual(QStringLiteral("STRAẞE"), QStringLiteral("straße"));
}

TEST(TextOrder, FollowsCodePointsAndNotUtf16Units) {
    expectAscending(
        {QStringLiteral("z"), QStringLiteral("\uFFFD"), QString::fromUcs4(U"\U0001F600")});
}

TEST(TextOrder, TakesTextsThatDifferInCaseAloneForEqual) {
    expectEqual(QStringLiteral("ANNA"), QStringLiteral("anna"));
    expectEqual(QStringLiteral("ÉMILE"), QStringLiteral("émile"));
    expectEqual(QStringLiteral("ΟΔΟΣ"), QStringLiteral("οδος"));
}

TEST(TextOrder, TakesComposedAndDecomposedCharactersForEqual) {
    expectEqual(QStringLiteral("Émile"), QStringLiteral("E\u0301mile"));
    expectEqual(QStringLiteral("Åsa"), QStringLiteral("A\u030Asa"));
    expectEqual(QStringLiteral("Åsa"), QStringLiteral("\u212Bsa"));  // the sign for the unit
}

TEST(TextOrder, TellsTextsThatDifferInAnAccentApart) {
    EXPECT_TRUE(std::is_neq(compareTexts(QStringLiteral("Anna"), QStringLiteral("Ånna"))));
    EXPECT_TRUE(std::is_neq(compareTexts(QStringLiteral("é"), QStringLiteral("è"))));
    EXPECT_FALSE(TextKey(QStringLiteral("Weiss")) == TextKey(QStringLiteral("Weiß")));
}

TEST(TextOrder, TakesBytesThatAreNoUtf8) {
    EXPECT_TRUE(std::is_neq(compareUtf8("Anna\xE9", "Anna")));
    EXPECT_TRUE(std::is_eq(compareUtf8("Anna\xE9", "Anna\xE9")));
}

#ifdef RC_GTEST_PROP

namespace {

// A short text of few letters, so that many share a beginning, with case, accents, marks,
// punctuation, and characters beyond the first plane.
QString anyText() {
    static const std::vector<char32_t> kLetters{
        U'a',      U'A',      U'b',      U'e',      U'E',         U'É',          U'é',
        U's',      U'S',      U'z',      U' ',      U',',         U'*',          U'-',
        U'\'',     U'ß',      U'ẞ',      U'Å',      U'å',         U'Ø',          U'\u0301',
        U'\u030A', U'\u212B', U'\u212A', U'\u0345', U'\uFB01',    U'\U0001F600', U'ı',
        U'İ',      U'Σ',      U'ς',      U'\u0000', U'\U00010400'};
    const auto codePoints =
        *rc::gen::container<std::vector<char32_t>>(rc::gen::elementOf(kLetters));
    return QString::fromUcs4(codePoints.data(), static_cast<qsizetype>(codePoints.size()));
}

}  // namespace

RC_GTEST_PROP(TextOrder, IsAStrictWeakOrder, ()) {
    const QString a = anyText();
    const QString b = anyText();
    const QString c = anyText();
    RC_ASSERT(std::is_eq(compareTexts(a, a)));
    RC_ASSERT(std::is_lt(compareTexts(a, b)) == std::is_gt(compareTexts(b, a)));
    if (compareTexts(a, b) <= 0 && compareTexts(b, c) <= 0)
        RC_ASSERT(std::is_lteq(compareTexts(a, c)));
    if (compareTexts(a, b) == 0 && compareTexts(b, c) == 0)
        RC_ASSERT(std::is_eq(compareTexts(a, c)));
}

RC_GTEST_PROP(TextOrder, IsTheSameByKeysAndByBytes, ()) {
    const QString a = anyText();
    const QString b = anyText();
    const bool agree = (TextKey(a) <=> TextKey(b)) == compareUtf8(a.toUtf8(), b.toUtf8());
    RC_ASSERT(agree);
}

RC_GTEST_PROP(TextOrder, HasNoRegardToTheFormOfComposition, ()) {
    const QString text = anyText();
    RC_ASSERT(std::is_eq(compareTexts(text, text.normalized(QString::NormalizationForm_C))));
    RC_ASSERT(std::is_eq(compareTexts(text, text.normalized(QString::NormalizationForm_D))));
}

#endif
