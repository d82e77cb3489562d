// The value of a field.
#include "store/value.h"

#include <gtest/gtest.h>

#include <limits>

#include "cycles/calendar.h"
#include "support/errors.h"

TEST(Value, IsNullUnlessItIsGivenAnything) {
    EXPECT_TRUE(Value().isNull());
    EXPECT_FALSE(Value(0).isNull());
    EXPECT_FALSE(Value(QString()).isNull());
    EXPECT_NE(Value(), Value(0));
    EXPECT_NE(Value(), Value(QString()));
}

TEST(Value, RaisesInvalidUseOfNullWhateverNullIsReadAs) {
    const Value null;
    EXPECT_EQ(errorOf([&] { null.toLong(); }), 94);
    EXPECT_EQ(errorOf([&] { null.toDouble(); }), 94);
    EXPECT_EQ(errorOf([&] { null.toDate(); }), 94);
    EXPECT_EQ(errorOf([&] { null.toText(); }), 94);
    EXPECT_EQ(errorOf([&] { null.toBoolean(); }), 94);
}

TEST(Value, RaisesTypeMismatchBetweenTextsAndNumbers) {
    const Value text(QStringLiteral("1"));
    EXPECT_EQ(errorOf([&] { text.toLong(); }), 13);
    EXPECT_EQ(errorOf([&] { text.toDouble(); }), 13);
    EXPECT_EQ(errorOf([&] { text.toDate(); }), 13);
    EXPECT_EQ(errorOf([&] { text.toBoolean(); }), 13);
    EXPECT_EQ(errorOf([] { Value(1).toText(); }), 13);
    EXPECT_EQ(errorOf([] { Value(1.5).toText(); }), 13);
}

TEST(Value, IsALongWithin32BitsOnly) {
    EXPECT_EQ(Value(std::int64_t{2147483647}).toLong(), 2147483647);
    EXPECT_EQ(Value(std::int64_t{-2147483648}).toLong(), std::numeric_limits<Long>::min());
    EXPECT_EQ(errorOf([] { Value(std::int64_t{2147483648}).toLong(); }), 6);
    EXPECT_EQ(errorOf([] { Value(std::int64_t{-2147483649}).toLong(); }), 6);
    EXPECT_EQ(errorOf([] { Value(1e10).toLong(); }), 6);
}

TEST(Value, RoundsARealNumberHalfToEvenWhenReadAsALong) {
    EXPECT_EQ(Value(2.5).toLong(), 2);
    EXPECT_EQ(Value(3.5).toLong(), 4);
}

TEST(Value, IsADateByDaysWholeOrNot) {
    EXPECT_EQ(Value(36599).toDate(), modCycles::DateSerial(2000, 3, 14));
    EXPECT_EQ(Value(36599.5).toDate().serial(), 36599.5);
    EXPECT_EQ(Value(modCycles::DateSerial(2000, 3, 14)).toDouble(), 36599.0);
}

TEST(Value, KeepsABooleanAsMinusOneOrZero) {
    EXPECT_EQ(Value(true), Value(-1));
    EXPECT_EQ(Value(false), Value(0));
    EXPECT_TRUE(Value(-1).toBoolean());
    EXPECT_TRUE(Value(1).toBoolean());
    EXPECT_FALSE(Value(0.0).toBoolean());
}

TEST(Value, IsEqualLetterForLetter) {
    EXPECT_EQ(Value(QStringLiteral("abc")), Value(QStringLiteral("abc")));
    EXPECT_NE(Value(QStringLiteral("abc")), Value(QStringLiteral("ABC")));
    EXPECT_NE(Value(1), Value(1.0));
}

TEST(IsNullOrEmpty, HoldsForNullAndTheEmptyTextButNotForABlankOrANumber) {
    EXPECT_TRUE(isNullOrEmpty(Value()));
    EXPECT_TRUE(isNullOrEmpty(Value(QString())));
    EXPECT_TRUE(isNullOrEmpty(Value(QStringLiteral(""))));
    EXPECT_FALSE(isNullOrEmpty(Value(QStringLiteral(" "))));
    EXPECT_FALSE(isNullOrEmpty(Value(0)));
}

TEST(TextOrNothing, IsNothingForNullAlone) {
    EXPECT_EQ(textOrNothing(Value()), QString());
    EXPECT_EQ(textOrNothing(Value(QStringLiteral(" a"))), QStringLiteral(" a"));
    EXPECT_EQ(errorOf([] { (void)textOrNothing(Value(1)); }), 13);
}
