// Dates to Qt's and back.
#include "runtime/qt_dates.h"

#include <gtest/gtest.h>

#include <cmath>

#include "cycles/calendar.h"
#include "support/properties.h"

using modCycles::DateSerial;

TEST(QtDates, AreTheSameDayOnBothSides) {
    EXPECT_EQ(toQDate(Date(0)), QDate(1899, 12, 30));
    EXPECT_EQ(toQDate(DateSerial(2000, 2, 29)), QDate(2000, 2, 29));
    EXPECT_EQ(toQDate(DateSerial(1753, 1, 1)), QDate(1753, 1, 1));
    EXPECT_EQ(toQDate(DateSerial(9999, 12, 31)), QDate(9999, 12, 31));
    EXPECT_EQ(fromQDate(QDate(1753, 1, 1)), DateSerial(1753, 1, 1));
    EXPECT_EQ(fromQDate(QDate(9999, 12, 31)), DateSerial(9999, 12, 31));
}

TEST(QtDates, AgreeOnEveryDayOfTheCalendar) {
    const Date last = DateSerial(9999, 12, 31);
    for (Date date = DateSerial(1753, 1, 1); date < last; date = date + 1) {
        const QDate day = toQDate(date);
        ASSERT_EQ(fromQDate(day), date);
        ASSERT_EQ(day, QDate(modCycles::Year(date), modCycles::Month(date), modCycles::Day(date)));
    }
}

TEST(QtDates, TakeTheDayOfADateWithATime) {
    EXPECT_EQ(toQDate(DateSerial(2000, 3, 14) + 0.999), QDate(2000, 3, 14));
    EXPECT_EQ(toQDate(Date(-2.75)), QDate(1899, 12, 28));
}

TEST(QtDates, KeepTheWholeMinuteOfADateWithATime) {
    for (int minute = 0; minute < 1440; ++minute) {
        const QTime time = toQTime(DateSerial(2000, 3, 14) + minute / 1440.0);
        ASSERT_EQ(time, QTime(minute / 60, minute % 60)) << minute;
    }
}

TEST(QtDates, EndADayBeforeMidnight) {
    EXPECT_EQ(toQTime(Date(std::nextafter(36600.0, 0))), QTime(23, 59, 59, 999));
    EXPECT_EQ(toQTime(Date(std::nextafter(-36600.0, -36601.0))), QTime(0, 0));
}

TEST(QtDates, CountATimeForwardBeforeDayZeroToo) {
    const QDateTime moment(QDate(1899, 12, 28), QTime(18, 0), Qt::UTC);
    EXPECT_EQ(fromQDateTime(moment), Date(-2.75));
    EXPECT_EQ(toQTime(Date(-2.75)), QTime(18, 0));
}

TEST(QtDates, RaiseOutsideTheRange) {
    EXPECT_THROW(fromQDate(QDate()), std::overflow_error);
    EXPECT_THROW(fromQDate(QDate(99, 12, 31)), std::overflow_error);
    EXPECT_THROW(fromQDate(QDate(10000, 1, 1)), std::overflow_error);
}

#ifdef RC_GTEST_PROP

namespace {

constexpr int kMillisecondsPerDay = 86'400'000;

QDateTime momentOf(Long day, int milliseconds) {
    return {toQDate(Date(day)), QTime::fromMSecsSinceStartOfDay(milliseconds), Qt::UTC};
}

}  // namespace

RC_GTEST_PROP(QtDates, KeepEveryMillisecondOfAMoment, ()) {
    const Long day = *rc::gen::inRange(-53688, 2958466);
    const int milliseconds = *rc::gen::inRange(0, kMillisecondsPerDay);
    const Date date = fromQDateTime(momentOf(day, milliseconds));
    RC_ASSERT(date.dayNumber() == day);
    RC_ASSERT(toQTime(date).msecsSinceStartOfDay() == milliseconds);
}

#endif
