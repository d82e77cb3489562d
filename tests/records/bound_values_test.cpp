// What controls show of values, and take for one.
#include "records/bound_values.h"

#include <gtest/gtest.h>

#include <limits>

#include "cycles/calendar.h"
#include "support/printing.h"

using modCycles::DateSerial;

TEST(ShownText, IsEmptyForNullAndForTheEmptyText) {
    EXPECT_EQ(shownText({}), QString());
    EXPECT_EQ(shownText(QStringLiteral("")), QString());
}

TEST(ShownText, IsATextAsItStands) {
    EXPECT_EQ(shownText(QStringLiteral(" Smith\r\n")), QStringLiteral(" Smith\r\n"));
}

TEST(ShownText, IsTheShortestDigitsOfANumber) {
    EXPECT_EQ(shownText(Value(4711)), QStringLiteral("4711"));
    EXPECT_EQ(shownText(Value(std::numeric_limits<std::int64_t>::min())),
              QStringLiteral("-9223372036854775808"));
    EXPECT_EQ(shownText(3.0), QStringLiteral("3"));
    EXPECT_EQ(shownText(0.1), QStringLiteral("0.1"));
}

TEST(ShownCheck, IsSetForEveryNumberButZero) {
    EXPECT_TRUE(shownCheck(Value(true)));
    EXPECT_TRUE(shownCheck(Value(1)));
    EXPECT_FALSE(shownCheck(Value(0)));
}

TEST(ShownCheck, IsClearedForNullAndForAText) {
    EXPECT_FALSE(shownCheck({}));
    EXPECT_FALSE(shownCheck(QStringLiteral("-1")));
}

TEST(ShownDate, IsTheDateOfAnyNumberThatAControlCanHold) {
    EXPECT_EQ(shownDate(Value(DateSerial(1972, 10, 20))), DateSerial(1972, 10, 20));
    EXPECT_EQ(shownDate(Value(0)), DateSerial(1899, 12, 30));
    EXPECT_EQ(shownDate(Value(DateSerial(1753, 1, 1))), DateSerial(1753, 1, 1));
    EXPECT_EQ(shownDate(Value(DateSerial(9999, 12, 31))), DateSerial(9999, 12, 31));
}

TEST(ShownDate, IsNoneForADateThatNoControlCanHold) {
    EXPECT_EQ(shownDate(Value(DateSerial(1752, 12, 31))), std::nullopt);
    EXPECT_EQ(shownDate(DateSerial(9999, 12, 31).serial() + 1), std::nullopt);
    EXPECT_EQ(shownDate(1e300), std::nullopt);
    EXPECT_EQ(shownDate(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
}

TEST(ShownDate, IsNoneForNullAndForAText) {
    EXPECT_EQ(shownDate({}), std::nullopt);
    EXPECT_EQ(shownDate(QStringLiteral("1972-10-20")), std::nullopt);
}

TEST(EnteredText, IsNullForNoTextAndOtherwiseTheTextAsItStands) {
    EXPECT_TRUE(enteredText({}).isNull());
    EXPECT_TRUE(enteredText(QStringLiteral("")).isNull());
    EXPECT_EQ(enteredText(QStringLiteral(" ")), Value(QStringLiteral(" ")));
    EXPECT_EQ(enteredText(QStringLiteral("Anna")), Value(QStringLiteral("Anna")));
}
