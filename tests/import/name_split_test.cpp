// Full names of an old database taken apart.
#include "import/name_split.h"

#include <gtest/gtest.h>

namespace {

struct Split {
    const char16_t* name;
    const char16_t* first;
    const char16_t* last;
};

void expectSplit(const Split& split) {
    const QString name = QString::fromUtf16(split.name);
    EXPECT_EQ(ParseFirstName(name), QString::fromUtf16(split.first)) << name.toStdString();
    EXPECT_EQ(ParseLastName(name), QString::fromUtf16(split.last)) << name.toStdString();
}

}  // namespace

TEST(OldName, IsSplitAtItsCommaOrElseAtItsFirstBlank) {
    expectSplit({u"Doe, John", u"John", u"Doe"});
    expectSplit({u"John Doe", u"John", u"Doe"});
    expectSplit({u"John van Doe", u"John", u"van Doe"});
    expectSplit({u"Doe,John Paul", u"John Paul", u"Doe"});
}

TEST(OldName, OfOneWordIsALastName) {
    expectSplit({u"Smith", u"", u"Smith"});
    expectSplit({u"", u"", u""});
}

TEST(OldName, IsSplitAtItsFirstCommaAlone) {
    expectSplit({u"a, b, c", u"b, c", u"a"});
    expectSplit({u",John", u"John", u""});
    expectSplit({u"Doe,", u"", u"Doe"});
    expectSplit({u",", u"", u""});
}

TEST(OldName, IsSplitAtItsCommaWhateverBlanksComeBeforeIt) {
    expectSplit({u"van Doe , John", u"John", u"van Doe"});
    expectSplit({u" Doe , John ", u"John", u"Doe"});
}

TEST(OldName, ThatStartsWithABlankHasNoFirstName) {
    expectSplit({u" John Doe", u"", u"John Doe"});
    expectSplit({u" Smith", u"", u"Smith"});
    expectSplit({u" ", u"", u""});
}

TEST(OldName, KnowsNoBlankButTheBlank) {
    expectSplit({u"John\tDoe", u"", u"John\tDoe"});
    expectSplit({u"John\u00A0Doe", u"", u"John\u00A0Doe"});
}
