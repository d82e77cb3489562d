// The range of a search for events.
#include "analyses/event_range.h"

#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "support/errors.h"
#include "support/recording_host.h"

using modCycles::DateSerial;

namespace {

const Date kBirth = DateSerial(1970, 5, 20);

Date forwardEnd(Date from, Integer length, RangeUnit unit) {
    const EventRange range = eventRange(kBirth, from, RangeDirection::Forward, length, unit);
    EXPECT_EQ(range.RangeStart, from);
    return range.RangeEnd;
}

Date backStart(Date from, Integer length, RangeUnit unit) {
    const EventRange range = eventRange(kBirth, from, RangeDirection::Back, length, unit);
    EXPECT_EQ(range.RangeEnd, from);
    return range.RangeStart;
}

TEST(EventRange, ReachesForwardByEachUnit) {
    const Date from = DateSerial(2001, 3, 14);
    EXPECT_EQ(forwardEnd(from, 100, RangeUnit::Days), DateSerial(2001, 6, 22));
    EXPECT_EQ(forwardEnd(from, 3, RangeUnit::Weeks), DateSerial(2001, 4, 4));
    EXPECT_EQ(forwardEnd(from, 11, RangeUnit::Months), DateSerial(2002, 2, 14));
    EXPECT_EQ(forwardEnd(from, 100, RangeUnit::Years), DateSerial(2101, 3, 14));
}

TEST(EventRange, ReachesBackByEachUnit) {
    const Date from = DateSerial(2001, 3, 14);
    EXPECT_EQ(backStart(from, 100, RangeUnit::Days), DateSerial(2000, 12, 4));
    EXPECT_EQ(backStart(from, 3, RangeUnit::Weeks), DateSerial(2001, 2, 21));
    EXPECT_EQ(backStart(from, 4, RangeUnit::Months), DateSerial(2000, 11, 14));
    EXPECT_EQ(backStart(from, 30, RangeUnit::Years), DateSerial(1971, 3, 14));
}

TEST(EventRange, CarriesADayThatTheMonthDoesNotHave) {
    EXPECT_EQ(forwardEnd(DateSerial(2001, 1, 31), 1, RangeUnit::Months), DateSerial(2001, 3, 3));
    EXPECT_EQ(forwardEnd(DateSerial(2000, 1, 31), 1, RangeUnit::Months), DateSerial(2000, 3, 2));
    EXPECT_EQ(forwardEnd(DateSerial(2000, 2, 29), 1, RangeUnit::Years), DateSerial(2001, 3, 1));
}

TEST(EventRange, ReachesBackNoFurtherThanTheBirth) {
    EXPECT_EQ(backStart(DateSerial(1970, 5, 22), 2, RangeUnit::Days), kBirth);
    EXPECT_EQ(backStart(DateSerial(1970, 5, 22), 3, RangeUnit::Days), kBirth);
    EXPECT_EQ(backStart(DateSerial(2001, 3, 14), 100, RangeUnit::Years), kBirth);
}

TEST(EventRange, CountsItsDaysAndThoseOfTheBirthBeforeIt) {
    const EventRange forward =
        eventRange(kBirth, DateSerial(1970, 6, 1), RangeDirection::Forward, 100, RangeUnit::Years);
    EXPECT_EQ(forward.SpanDays, 36525);
    EXPECT_EQ(forward.DayBase, 12);
    const EventRange back =
        eventRange(kBirth, DateSerial(1970, 6, 1), RangeDirection::Back, 1, RangeUnit::Weeks);
    EXPECT_EQ(back.SpanDays, 7);
    EXPECT_EQ(back.DayBase, 5);
    const EventRange none = eventRange(kBirth, kBirth, RangeDirection::Back, 1, RangeUnit::Months);
    EXPECT_EQ(none.SpanDays, 0);
    EXPECT_EQ(none.DayBase, 0);
}

TEST(EventRange, RaisesAnErrorBeyondTheYear9999) {
    const Date late = DateSerial(9950, 1, 1);
    EXPECT_THROW(forwardEnd(late, 100, RangeUnit::Years), std::out_of_range);
    EXPECT_THROW(forwardEnd(DateSerial(9999, 12, 31), 1, RangeUnit::Months), std::out_of_range);
    EXPECT_THROW(forwardEnd(DateSerial(9999, 12, 31), 1, RangeUnit::Days), std::overflow_error);
}

TEST(RangeText, TellsBothEnds) {
    RecordingHost host;
    const EventRange range =
        eventRange(kBirth, DateSerial(2001, 3, 4), RangeDirection::Forward, 1, RangeUnit::Months);
    EXPECT_EQ(rangeText(range), QStringLiteral("Searching from 4 March 2001 to 4 April 2001"));
}

TEST(RangeProgress, IsAShareOfAHundred) {
    EXPECT_EQ(rangeProgress(0, 36525), 0.0F);
    EXPECT_EQ(rangeProgress(1, 3), static_cast<float>(1.0 / 3 * 100));
    EXPECT_EQ(rangeProgress(36525, 36525), 100.0F);
}

TEST(RangeProgress, OverflowsOnARangeOfNoDays) {
    EXPECT_EQ(errorOf([] { rangeProgress(0, 0); }), 6);
}

}  // namespace
