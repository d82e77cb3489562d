// The splitting of a typed name, and its joining.
#include "records/name_split.h"

#include <gtest/gtest.h>

#include <ostream>

#include "support/printing.h"
#include "support/properties.h"

void PrintTo(const SplitName& name, std::ostream* out) {
    PrintTo(QStringList({name.first, name.last}), out);
}

namespace {

SplitName named(const QString& first, const QString& last) {
    return {.first = first, .last = last};
}

TEST(NameSplit, TakesTheFirstWordForTheFirstName) {
    EXPECT_EQ(splitName(QStringLiteral("John Doe")),
              named(QStringLiteral("John"), QStringLiteral("Doe")));
    EXPECT_EQ(splitName(QStringLiteral("Anna Maria Lee")),
              named(QStringLiteral("Anna"), QStringLiteral("Maria Lee")));
}

TEST(NameSplit, LeavesOutTheBlanksAroundTheNamesAndBetweenThem) {
    EXPECT_EQ(splitName(QStringLiteral("  John   van Doe ")),
              named(QStringLiteral("John"), QStringLiteral("van Doe")));
    EXPECT_EQ(splitName(QStringLiteral(" John Doe")), splitName(QStringLiteral("John Doe")));
    EXPECT_EQ(splitName(QStringLiteral("Anna  Maria Lee")),
              named(QStringLiteral("Anna"), QStringLiteral("Maria Lee")));
}

TEST(NameSplit, KeepsTheBlanksInsideTheLastName) {
    EXPECT_EQ(splitName(QStringLiteral("Anna Maria   Lee")),
              named(QStringLiteral("Anna"), QStringLiteral("Maria   Lee")));
}

TEST(NameSplit, TakesASingleWordForALastName) {
    EXPECT_EQ(splitName(QStringLiteral("Smith")), named({}, QStringLiteral("Smith")));
    EXPECT_EQ(splitName(QStringLiteral("  Smith ")), named({}, QStringLiteral("Smith")));
}

TEST(NameSplit, FindsNoNameInNothingOrBlanks) {
    EXPECT_EQ(splitName({}), named({}, {}));
    EXPECT_EQ(splitName(QStringLiteral("   ")), named({}, {}));
}

TEST(NameSplit, KnowsNoBlankButTheBlank) {
    const QString tab = QStringLiteral("John\tDoe");
    const QString noBreak = QStringLiteral("John\u00A0Doe");
    EXPECT_EQ(splitName(tab), named({}, tab));
    EXPECT_EQ(splitName(noBreak), named({}, noBreak));
}

TEST(NameJoin, PutsTheFirstNameFirst) {
    EXPECT_EQ(joinedName(named(QStringLiteral("Anna Maria"), QStringLiteral("Lee"))),
              QStringLiteral("Anna Maria Lee"));
}

TEST(NameJoin, HasNoBlanksAtItsEnds) {
    EXPECT_EQ(joinedName(named({}, QStringLiteral("Smith"))), QStringLiteral("Smith"));
    EXPECT_EQ(joinedName(named(QStringLiteral("Anna"), {})), QStringLiteral("Anna"));
    EXPECT_EQ(joinedName(named(QStringLiteral(" Anna "), QStringLiteral(" Lee "))),
              QStringLiteral("Anna   Lee"));
    EXPECT_EQ(joinedName(named({}, {})), QString());
}

#ifdef RC_GTEST_PROP

// Words and blanks in any order.
QString typedName() {
    const auto letters = rc::gen::element('a', 'b', ' ');
    return QString::fromStdString(*rc::gen::container<std::string>(letters));
}

RC_GTEST_PROP(NameSplit, GivesAFirstNameOfOneWordAndNoBlanksAtTheEnds, ()) {
    const SplitName name = splitName(typedName());
    RC_ASSERT(!name.first.contains(u' '));
    RC_ASSERT(name.last == name.last.trimmed());
    RC_ASSERT(name.first.isEmpty() || !name.last.isEmpty());
}

RC_GTEST_PROP(NameSplit, GivesTheSameNamesAgainOnceTheyAreJoined, ()) {
    const SplitName name = splitName(typedName());
    RC_ASSERT(splitName(joinedName(name)) == name);
}

#endif

}  // namespace
