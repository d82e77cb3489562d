// The date: its range, its sums, and the differences between dates.
#include "cycles/date.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>

#include "support/properties.h"

using namespace modCycles;

namespace {

constexpr double kMinute = 1.0 / 1440;

template <class A, class B>
concept Subtractable = requires(A a, B b) {
    a - b;
};
template <class A, class B>
concept Addable = requires(A a, B b) {
    a + b;
};

// A date is no number, and what is no date is none: neither converts into the other unasked.
static_assert(!Subtractable<Date, Date>);
static_assert(!Addable<Date, Date>);
static_assert(!Addable<double, Date>);
static_assert(Addable<Date, double> && Addable<Date, Long>);
static_assert(!std::is_convertible_v<double, Date>);
static_assert(!std::is_convertible_v<Date, double>);
static_assert(!std::is_default_constructible_v<Date>);

static_assert(DateDiff(Date(1), Date(3)) == 2);
static_assert(DateDiff(Date(3), Date(1)) == -2);
static_assert(DayCount(Date(3), Date(1)) == 2);

}  // namespace

TEST(Date, KeepsItsSerialToTheLastBit) {
    EXPECT_EQ(Date(36599.586805555555).serial(), 36599.586805555555);
    EXPECT_EQ(Date(-1.25).serial(), -1.25);
}

TEST(Date, EndsAfterTheLastMomentOf9999) {
    const double end = Date::kLatestDay + 1;
    EXPECT_NO_THROW(Date(std::nextafter(end, 0)));
    EXPECT_THROW(Date{end}, std::overflow_error);
    EXPECT_THROW(Date{std::numeric_limits<double>::infinity()}, std::overflow_error);
}

TEST(Date, BeginsWithTheFirstDayOf100) {
    const double end = Date::kEarliestDay - 1;  // a time before day 0 counts away from it
    EXPECT_NO_THROW(Date(std::nextafter(end, 0)));
    EXPECT_THROW(Date{end}, std::overflow_error);
}

TEST(Date, IsNeverMadeOfNoNumber) {
    EXPECT_THROW(Date{std::numeric_limits<double>::quiet_NaN()}, std::overflow_error);
}

TEST(Date, TakesTheDayWithoutTheTimeOnBothSidesOfDayZero) {
    EXPECT_EQ(Date(2.75).dayNumber(), 2);
    EXPECT_EQ(Date(0.75).dayNumber(), 0);
    EXPECT_EQ(Date(-0.75).dayNumber(), 0);
    EXPECT_EQ(Date(-2.75).dayNumber(), -2);
}

TEST(Date, IsDaysLaterByASum) {
    EXPECT_EQ(Date(36599) + 30, Date(36629));
    EXPECT_EQ(Date(36599) + -30, Date(36569));
    EXPECT_EQ(Date(36599.5) + 1, Date(36600.5));
}

TEST(Date, RaisesWhenASumLeavesTheRange) {
    EXPECT_EQ(Date(Date::kLatestDay - 1) + 1, Date(Date::kLatestDay));
    EXPECT_THROW(Date(Date::kLatestDay) + 1, std::overflow_error);
    EXPECT_EQ(Date(Date::kEarliestDay + 1) + -1, Date(Date::kEarliestDay));
    EXPECT_THROW(Date(Date::kEarliestDay) + -1, std::overflow_error);
}

TEST(Date, IsOrderedByItsSerial) {
    EXPECT_LT(Date(1), Date(1.5));
    EXPECT_LT(Date(-1), Date(1));
    EXPECT_EQ(Date(2), Date(2.0));
    EXPECT_NE(Date(2), Date(2.5));
}

TEST(DateDiff, CountsCalendarDaysAndNoTimes) {
    EXPECT_EQ(DateDiff(Date(10 + 1439 * kMinute), Date(11 + kMinute)), 1);
    EXPECT_EQ(DateDiff(Date(10 + kMinute), Date(10 + 1439 * kMinute)), 0);
    EXPECT_EQ(DateDiff(Date(-10 - 1439 * kMinute), Date(-9 - kMinute)), 1);
}

TEST(DayCount, IsZeroOnTheDayOfBirthAndOneOnTheNext) {
    EXPECT_EQ(DayCount(Date(100), Date(100)), 0);
    EXPECT_EQ(DayCount(Date(100), Date(101)), 1);
    EXPECT_EQ(DayCount(Date(100 + 1439 * kMinute), Date(101 + kMinute)), 1);
}

TEST(DayCount, SpansTheWholeRange) {
    EXPECT_EQ(DayCount(Date(Date::kEarliestDay), Date(Date::kLatestDay)), 3615899);
}

#ifdef RC_GTEST_PROP

namespace {

// Any day of the range, with no time.
rc::Gen<Date> anyDay() {
    return rc::gen::map(rc::gen::inRange(static_cast<int>(Date::kEarliestDay),
                                         static_cast<int>(Date::kLatestDay) + 1),
                        [](int day) { return Date(day); });
}

}  // namespace

RC_GTEST_PROP(DayCount, IsTheSameForTheDateEquallyFarBefore, ()) {
    const int days = *rc::gen::inRange(0, 40000);
    const Date birthdate = Date(*rc::gen::inRange(-600000, 2900000));
    RC_ASSERT(DayCount(birthdate, birthdate + days) == days);
    RC_ASSERT(DayCount(birthdate, birthdate + -days) == days);
}

RC_GTEST_PROP(DateDiff, IsUndoneByTheSum, ()) {
    const Date from = *anyDay();
    const Date to = *anyDay();
    RC_ASSERT(from + DateDiff(from, to) == to);
    RC_ASSERT(DateDiff(from, to) == -DateDiff(to, from));
}

#endif
