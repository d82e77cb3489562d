// What a record set is searched for.
#include "store/criterion.h"

#include <gtest/gtest.h>

#include "support/errors.h"

namespace {

bool holds(const char16_t* criteria, const Value& value) {
    return Criterion(QString::fromUtf16(criteria)).isFulfilledBy(value);
}

Value text(const char* utf8) {
    return Value(QString::fromUtf8(utf8));
}

}  // namespace

TEST(Criterion, ReadsTheField) {
    EXPECT_EQ(Criterion(QStringLiteral("NameID = 5")).field(), QStringLiteral("NameID"));
    EXPECT_EQ(Criterion(QStringLiteral("  Name>'a*'  ")).field(), QStringLiteral("Name"));
}

TEST(Criterion, ComparesNumbersByEverySign) {
    EXPECT_TRUE(holds(u"f = 5", Value(5)));
    EXPECT_TRUE(holds(u"f = 5", Value(5.0)));
    EXPECT_FALSE(holds(u"f = 5", Value(6)));
    EXPECT_TRUE(holds(u"f <> 5", Value(6)));
    EXPECT_FALSE(holds(u"f <> 5", Value(5)));
    EXPECT_TRUE(holds(u"f < 5", Value(4)));
    EXPECT_FALSE(holds(u"f < 5", Value(5)));
    EXPECT_TRUE(holds(u"f <= 5", Value(5)));
    EXPECT_FALSE(holds(u"f <= 5", Value(6)));
    EXPECT_TRUE(holds(u"f > 5", Value(6)));
    EXPECT_FALSE(holds(u"f > 5", Value(5)));
    EXPECT_TRUE(holds(u"f >= 5", Value(5)));
    EXPECT_FALSE(holds(u"f >= 5", Value(4)));
}

TEST(Criterion, ReadsSignsAndDecimals) {
    EXPECT_TRUE(holds(u"f = -1", Value(-1)));
    EXPECT_TRUE(holds(u"f = +1", Value(1)));
    EXPECT_TRUE(holds(u"f = 1.5", Value(1.5)));
    EXPECT_TRUE(holds(u"NameID = 1234567", Value(1234567)));
}

TEST(Criterion, ComparesTextsInTheOneOrder) {
    EXPECT_TRUE(holds(u"Name > 'a*'", text("Abel")));
    EXPECT_TRUE(holds(u"Name > 'a*'", text("\xC3\x81kos")));
    EXPECT_TRUE(holds(u"Name > 'a*'", text("b")));
    EXPECT_TRUE(holds(u"Name = 'SMITH'", text("smith")));
    EXPECT_TRUE(holds(u"Name = ''", text("")));
}

TEST(Criterion, TakesTheAsteriskForALetterThatComesBeforeAllOthers) {
    EXPECT_FALSE(holds(u"Name > 'a*'", text("A")));
    EXPECT_FALSE(holds(u"Name > 'a*'", text("a*")));
    EXPECT_FALSE(holds(u"Name = 'a*'", text("abc")));
    EXPECT_FALSE(holds(u"Name > 'y*'", text("Xaver")));
}

TEST(Criterion, TakesTwoQuotesForOne) {
    EXPECT_TRUE(holds(u"Name = 'O''Brien'", text("O'Brien")));
    EXPECT_TRUE(holds(u"Name = ''''", text("'")));
}

TEST(Criterion, IsNeverFulfilledByNullOrByAnotherKind) {
    for (const char16_t* criteria : {u"f = 0", u"f <> 0", u"f < 1", u"f = ''", u"f <> 'a'"})
        EXPECT_FALSE(holds(criteria, Value())) << qPrintable(QString::fromUtf16(criteria));
    EXPECT_FALSE(holds(u"f <> 0", text("a")));
    EXPECT_FALSE(holds(u"f <> 'a'", Value(0)));
}

TEST(Criterion, RaisesWrongArgumentsForWhatItCannotRead) {
    for (const char16_t* criteria :
         {u"", u"Name", u"Name =", u"= 5", u"Name = abc", u"Name = 'a", u"Name = 'O'Brien'",
          u"Name == 5", u"Name = 5 AND x = 6", u"Name like 'a*'", u"Name = 1e5", u"Name = nan"})
        EXPECT_EQ(errorOf([&] { Criterion(QString::fromUtf16(criteria)); }), 3001)
            << qPrintable(QString::fromUtf16(criteria));
}

TEST(Criterion, TellsTheNumberThatAFieldMustHave) {
    EXPECT_EQ(Criterion(QStringLiteral("f = -5")).equalNumber(), -5);
    for (const char16_t* other : {u"f > 5", u"f <= 5", u"f <> 5", u"f = '5'"})
        EXPECT_EQ(Criterion(QString::fromUtf16(other)).equalNumber(), std::nullopt);
}
