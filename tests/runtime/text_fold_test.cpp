// The folding of texts and of single characters.
#include "runtime/text_fold.h"

#include <gtest/gtest.h>

namespace {

QString foldOf(char16_t character) {
    const Fold& fold = Fold::of(character);
    return QStringView(fold.begin(), fold.end()).toString();
}

}  // namespace

TEST(TextFold, DropsCaseAndAccents) {
    EXPECT_EQ(folded(QStringLiteral("Émile ÅKESSON")), QStringLiteral("emile akesson"));
    EXPECT_EQ(folded(QStringLiteral("e\u0301")), QStringLiteral("e"));
}

TEST(TextFold, SpellsOutALetterThatStandsForSeveral) {
    EXPECT_EQ(folded(QStringLiteral("Straße")), QStringLiteral("strasse"));
    EXPECT_EQ(folded(QStringLiteral("\uFB01n")), QStringLiteral("fin"));
}

TEST(TextFold, PutsEveryAccentBehindItsLetter) {
    EXPECT_EQ(accented(QStringLiteral("É")), QStringLiteral("e\u0301"));
    EXPECT_EQ(accented(QStringLiteral("A\u030A")), QStringLiteral("a\u030A"));
}

TEST(TextFold, LeavesNothingOfASingleAccent) {
    EXPECT_EQ(foldOf(u'\u0301'), QString());
}

TEST(TextFold, LeavesHalfACharacterAsItIs) {
    EXPECT_EQ(foldOf(0xD801), QString(QChar(0xD801)));
}

TEST(TextFold, FoldsEveryCharacterOfTheFirstPlaneAloneAsWithinAText) {
    for (unsigned character = 0; character < 0x10000; ++character) {
        if (QChar::isSurrogate(character))
            continue;
        const QString text = QString(QChar(character));
        ASSERT_EQ(foldOf(static_cast<char16_t>(character)), folded(text)) << character;
        ASSERT_EQ(folded(u'x' + text + u'x'), u'x' + folded(text) + u'x') << character;
    }
}
