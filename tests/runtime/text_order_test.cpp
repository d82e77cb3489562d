// The one order of texts.
#include "runtime/text_order.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <compare>
#include <string>
#include <vector>

#include "runtime/text_fold.h"
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
    EXPECT_TRUE(std::is_lt(compareTexts(QStringLiteral("Weiss"), QStringLiteral("Weiß"))));
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
        U'a',      U'A',      U'b',      U'e',      U'E',          U'É',          U'é',
        U's',      U'S',      U'z',      U' ',      U',',          U'*',          U'-',
        U'\'',     U'ß',      U'ẞ',      U'Å',      U'å',          U'Ø',          U'\u0301',
        U'\u030A', U'\u212B', U'\u212A', U'\u0345', U'\uFB01',     U'\U0001F600', U'ı',
        U'İ',      U'Σ',      U'ς',      U'\u0000', U'\U00010400', U'\U00010428', U'\uAC01',
        U'\uFA6C', U'\uFFFD'};
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

RC_GTEST_PROP(TextOrder, IsThatOfTheWholeFoldedTextsAndThenOfTheAccents, ()) {
    const QString a = anyText();
    const QString b = anyText();
    auto expected = folded(a).toStdU32String() <=> folded(b).toStdU32String();
    if (expected == 0)
        expected = accented(a).toStdU32String() <=> accented(b).toStdU32String();
    RC_ASSERT(std::is_eq(compareTexts(a, b)) == std::is_eq(expected));
    RC_ASSERT(std::is_lt(compareTexts(a, b)) == std::is_lt(expected));
}

RC_GTEST_PROP(TextOrder, IsTheSameInUtf8, ()) {
    const QString a = anyText();
    const QString b = anyText();
    const bool agree = compareTexts(a, b) == compareUtf8(a.toUtf8(), b.toUtf8());
    RC_ASSERT(agree);
}

RC_GTEST_PROP(TextOrder, IsAStrictWeakOrderOfAnyBytes, ()) {
    const auto a = *rc::gen::arbitrary<std::string>();
    const auto b = *rc::gen::arbitrary<std::string>();
    const auto c = *rc::gen::arbitrary<std::string>();
    RC_ASSERT(std::is_lt(compareUtf8(a, b)) == std::is_gt(compareUtf8(b, a)));
    if (compareUtf8(a, b) <= 0 && compareUtf8(b, c) <= 0)
        RC_ASSERT(std::is_lteq(compareUtf8(a, c)));
}

RC_GTEST_PROP(TextOrder, HasNoRegardToTheFormOfComposition, ()) {
    const QString text = anyText();
    RC_ASSERT(std::is_eq(compareTexts(text, text.normalized(QString::NormalizationForm_C))));
    RC_ASSERT(std::is_eq(compareTexts(text, text.normalized(QString::NormalizationForm_D))));
}

#endif
