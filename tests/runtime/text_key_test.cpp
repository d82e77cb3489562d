// The keys that most pairs of texts are put in order by.
#include "runtime/text_key.h"

#include <gtest/gtest.h>

#include <QString>
#include <vector>

#include "runtime/text_order.h"
#include "support/properties.h"

namespace {

std::partial_ordering compareKeys(QStringView a, QStringView b) {
    return TextKey(a) <=> TextKey(b);
}

constexpr auto kLess = std::partial_ordering::less;
constexpr auto kEqual = std::partial_ordering::equivalent;
constexpr auto kOpen = std::partial_ordering::unordered;

}  // namespace

TEST(TextKey, OrdersTextsByTheFirstLettersThatDiffer) {
    EXPECT_EQ(compareKeys(u"abe", u"Zed"), kLess);
    EXPECT_EQ(compareKeys(u"Smith", u"Smith, Anna"), kLess);
    EXPECT_EQ(compareKeys(u"", u"a"), kLess);
    EXPECT_EQ(compareKeys(u"Apr 1, 2000", u"Apr 10, 1850"), kLess);
    EXPECT_EQ(compareKeys(u"abcdefghijklmna", u"abcdefghijklmnb and more"), kLess);
}

TEST(TextKey, HasNoRegardToCase) {
    EXPECT_EQ(compareKeys(u"SMITH", u"smith"), kEqual);
    EXPECT_EQ(compareKeys(u"abcdefghijklmno", u"ABCDEFGHIJKLMNO"), kEqual);
}

TEST(TextKey, LeavesLongTextsOpenThatBeginAlike) {
    EXPECT_EQ(compareKeys(u"abcdefghijklmnop", u"abcdefghijklmnoq"), kOpen);
    EXPECT_EQ(compareKeys(u"abcdefghijklmno", u"abcdefghijklmnop"), kOpen);
}

TEST(TextKey, LeavesTextsOpenThatAccentsMayTellApart) {
    EXPECT_EQ(compareKeys(u"\u00c9mile", u"emile"), kOpen);
    EXPECT_EQ(compareKeys(u"\u00c9mile", u"\u00c9mile"), kOpen);
    EXPECT_EQ(compareKeys(u"\u00c9mile", u"Zed"), kLess);
}

TEST(TextKey, PutsLettersBeyondAsciiBehindTheOthersAndLeavesThemOpenAmongThemselves) {
    EXPECT_EQ(compareKeys(u"zed", u"\u0418\u0432\u0430\u043d"), kLess);
    EXPECT_EQ(compareKeys(u"\u0418", u"\u0432"), kOpen);
}

TEST(TextKey, LeavesACharacterBeyondTheFirstPlaneOpenAsItMayBeAnAccent) {
    EXPECT_EQ(compareKeys(u"a\U000E0100b", u"ac"), kOpen);
    EXPECT_TRUE(compareTexts(u"a\U000E0100b", u"ac") < 0);
}

TEST(TextKey, DoesNotTakeANullCharacterForTheEnd) {
    EXPECT_EQ(compareKeys(QStringView(u"a\0", 2), u"a"), kOpen);
    EXPECT_EQ(compareKeys(u"a", QStringView(u"a\0b", 3)), kLess);
}

#ifdef RC_GTEST_PROP

namespace {

QString anyText() {
    static const std::vector<char32_t> kLetters{
        U'a',      U'A',      U'b',          U'z',          U' ',          U'*',      U'\u00df',
        U'\u00c9', U'\u00e9', U'\u0301',     U'\u0130',     U'\u212A',     U'\uFB03', U'\u03a3',
        U'\0',     U'\x7f',   U'\U0001F600', U'\U00010400', U'\U000E0100', U'\uFA6C', U'\uFFFD'};
    const auto codePoints =
        *rc::gen::container<std::vector<char32_t>>(rc::gen::elementOf(kLetters));
    return QString::fromUcs4(codePoints.data(), static_cast<qsizetype>(codePoints.size()));
}

}  // namespace

RC_GTEST_PROP(TextKey, SaysNothingThatTheTextsDoNot, ()) {
    const QString begin = anyText();
    const QString a = begin + anyText();
    const QString b = begin + anyText();
    const auto byKey = compareKeys(a, b);
    const std::partial_ordering byText = compareTexts(a, b);
    RC_ASSERT((byKey == kOpen || byKey == byText));
}

#endif
