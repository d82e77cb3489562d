// How the start date moves by a unit.
#include "shell/date_scroll.h"

#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "support/printing.h"

using namespace modCycles;

namespace {

constexpr Date kLongAgo = kEarliestCalendarDate;

TEST(ScrollUnit, StandsInTheListAtThePlaceOfItsName) {
    const QStringList names = scrollUnitNames();
    EXPECT_EQ(names, QStringList({QStringLiteral("Days"), QStringLiteral("Weeks"),
                                  QStringLiteral("Months"), QStringLiteral("Years")}));
    const auto unitNamed = [&](const QString& name) {
        return scrollUnitAt(static_cast<int>(names.indexOf(name)));
    };
    EXPECT_EQ(unitNamed(QStringLiteral("Days")), ScrollUnit::Days);
    EXPECT_EQ(unitNamed(QStringLiteral("Weeks")), ScrollUnit::Weeks);
    EXPECT_EQ(unitNamed(QStringLiteral("Months")), ScrollUnit::Months);
    EXPECT_EQ(unitNamed(QStringLiteral("Years")), ScrollUnit::Years);
}

TEST(ScrollUnit, IsAskedForWhereNoneIsChosen) {
    EXPECT_EQ(scrollUnitAt(-1), std::nullopt);
    EXPECT_EQ(scrollUnitIsMissing(), QStringLiteral("Please select a unit from the dropdown box"));
}

TEST(DateScroll, MovesByDaysAndWeeks) {
    EXPECT_EQ(increasedDate(DateSerial(2000, 2, 28), ScrollUnit::Days), DateSerial(2000, 2, 29));
    EXPECT_EQ(increasedDate(DateSerial(1999, 12, 28), ScrollUnit::Weeks), DateSerial(2000, 1, 4));
    EXPECT_EQ(decreasedDate(DateSerial(2000, 3, 1), ScrollUnit::Days, kLongAgo),
              DateSerial(2000, 2, 29));
    EXPECT_EQ(decreasedDate(DateSerial(2000, 1, 4), ScrollUnit::Weeks, kLongAgo),
              DateSerial(1999, 12, 28));
}

TEST(DateScroll, RollsADayThatTheMonthDoesNotHaveOver) {
    EXPECT_EQ(decreasedDate(DateSerial(2001, 3, 31), ScrollUnit::Months, kLongAgo),
              DateSerial(2001, 3, 3));
    EXPECT_EQ(decreasedDate(DateSerial(2000, 3, 31), ScrollUnit::Months, kLongAgo),
              DateSerial(2000, 3, 2));
    EXPECT_EQ(increasedDate(DateSerial(2001, 1, 31), ScrollUnit::Months), DateSerial(2001, 3, 3));
    EXPECT_EQ(increasedDate(DateSerial(2000, 1, 31), ScrollUnit::Months), DateSerial(2000, 3, 2));
}

TEST(DateScroll, CarriesMonthsIntoTheNextYear) {
    EXPECT_EQ(increasedDate(DateSerial(2000, 12, 31), ScrollUnit::Months), DateSerial(2001, 1, 31));
    EXPECT_EQ(decreasedDate(DateSerial(2000, 1, 15), ScrollUnit::Months, kLongAgo),
              DateSerial(1999, 12, 15));
}

TEST(DateScroll, MovesALeapDayByYearsToTheFirstOfMarch) {
    EXPECT_EQ(decreasedDate(DateSerial(2000, 2, 29), ScrollUnit::Years, kLongAgo),
              DateSerial(1999, 3, 1));
    EXPECT_EQ(increasedDate(DateSerial(2000, 2, 29), ScrollUnit::Years), DateSerial(2001, 3, 1));
    EXPECT_EQ(decreasedDate(DateSerial(2000, 2, 29), ScrollUnit::Years, DateSerial(1999, 3, 2)),
              DateSerial(1999, 3, 2));
}

TEST(DateScroll, StopsAtTheEarliestDateWhenItGoesBack) {
    const Date earliest = DateSerial(2000, 1, 1);
    EXPECT_EQ(decreasedDate(DateSerial(2000, 1, 4), ScrollUnit::Weeks, earliest), earliest);
    EXPECT_EQ(decreasedDate(earliest, ScrollUnit::Days, earliest), earliest);
    EXPECT_EQ(decreasedDate(DateSerial(2000, 1, 8), ScrollUnit::Weeks, earliest), earliest);
}

TEST(DateScroll, RaisesBeyondTheLastDate) {
    const Date last = kLatestCalendarDate;
    EXPECT_THROW(increasedDate(last, ScrollUnit::Days), std::overflow_error);
    EXPECT_THROW(increasedDate(last, ScrollUnit::Weeks), std::overflow_error);
    EXPECT_THROW(increasedDate(last, ScrollUnit::Months), std::out_of_range);
    EXPECT_THROW(increasedDate(last, ScrollUnit::Years), std::out_of_range);
}

}  // namespace
